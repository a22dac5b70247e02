#include "program/FallbackPanel.h"

#include <QDebug>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <utility>

FallbackPanel::FallbackPanel() = default;

FallbackPanel::~FallbackPanel()
{
    if (view_)
        view_->withdraw();
}

void FallbackPanel::attach(QQmlEngine &engine, QQuickWindow &window, const Platform &platform)
{
    engine_ = &engine;
    window_ = &window;
    platform_ = &platform;
}

void FallbackPanel::chooseFolder(const Workspace::FolderRequest &request, const Workspace::PathChosen &chosen)
{
    show({request.message, request.start, request.showsHidden, {}}, chosen);
}

void FallbackPanel::chooseSavePath(const Workspace::SaveRequest &request, const Workspace::PathChosen &chosen)
{
    const bool isList = request.fileType == Workspace::FileType::commaSeparatedText;
    show({request.message, request.start, false, request.suggestedName,
          isList ? QStringLiteral("csv") : QString()},
         chosen);
}

void FallbackPanel::giveUp()
{
    if (view_)
        view_->cancel();
}

void FallbackPanel::show(const FilePanelView::Request &request, const Workspace::PathChosen &chosen)
{
    drop();
    if (!engine_) {
        chosen(std::nullopt);
        return;
    }
    view_ = std::make_unique<FilePanelView>(*platform_, request,
                                            [this, chosen](const std::optional<QString> &path) {
                                                drop();
                                                chosen(path);
                                            });
    QQmlEngine::setObjectOwnership(view_.get(), QQmlEngine::CppOwnership);
    QQmlComponent component(engine_,
                            QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/program/panel/FilePanel.qml")));
    if (!component.isReady()) {
        qWarning() << "No panel:" << component.errorString();
        view_->cancel();
        return;
    }
    sheet_.reset(component.createWithInitialProperties({
        {QStringLiteral("view"), QVariant::fromValue(view_.get())},
        {QStringLiteral("parent"), QVariant::fromValue(window_->contentItem())},
    }));
}

void FallbackPanel::drop()
{
    // Each in a later turn, since a click on one of them may have brought us here; the sheet ahead of what it looks at.
    if (view_)
        view_->withdraw(); // a sheet that closes asks it to cancel
    if (const auto sheet = std::exchange(sheet_, nullptr).release()) {
        QMetaObject::invokeMethod(sheet, "close");
        sheet->deleteLater();
    }
    if (const auto view = std::exchange(view_, nullptr).release())
        view->deleteLater();
}
