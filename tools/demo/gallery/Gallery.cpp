#include "gallery/Gallery.h"

#include "controls/Pictures.h"
#include "gallery/GalleryPoses.h"
#include "program/AccessibleItems.h"
#include "program/PictureProvider.h"

#include <QFontDatabase>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

#include <stdexcept>

Q_IMPORT_QML_PLUGIN(QuillmerePlugin)
Q_IMPORT_QML_PLUGIN(Quillmere_GalleryPlugin)

Gallery::Gallery(bool isDark)
{
    accessibleitems::install();
    QFontDatabase::addApplicationFont(
        QStringLiteral(":/qt/qml/Quillmere/controls/symbols/QuillmereSymbols.ttf"));
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine_.addImageProvider(Pictures::provider, new PictureProvider);
    engine_.setInitialProperties({{QStringLiteral("isDark"), isDark}});
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/Gallery/gallery/GalleryWindow.qml")));
    if (!engine_.rootObjects().isEmpty())
        window_ = qobject_cast<QQuickWindow *>(engine_.rootObjects().constFirst());
    if (!window_)
        throw std::runtime_error("the gallery can't be loaded");
}

GalleryPoses &Gallery::poses()
{
    return *engine_.singletonInstance<GalleryPoses *>(qmlTypeId("Quillmere.Gallery", 1, 0, "GalleryPoses"));
}

void Gallery::setDark(bool isDark)
{
    window_->setProperty("isDark", isDark);
}

void Gallery::showWhole()
{
    window_->setProperty("isWhole", true);
}
