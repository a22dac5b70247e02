#include "shell/FolderPanel.h"

#include "base/Paths.h"

#include <QDebug>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

#include <utility>

FolderPanel::FolderPanel(QQmlEngine &engine)
    : engine_(engine)
{
}

FolderPanel::~FolderPanel() = default;

void FolderPanel::choose(const Workspace::FolderRequest &request, Workspace::FolderChosen chosen)
{
    chosen_ = std::move(chosen);
    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/shell/FolderPanel.qml")));
    dialog_.reset(component.createWithInitialProperties({
        {QStringLiteral("title"), request.message},
        {QStringLiteral("currentFolder"), QUrl::fromEncoded(paths::fileUrl(request.start))},
    }));
    if (!dialog_) {
        qWarning() << "No folder panel:" << component.errorString();
        return;
    }
    connect(dialog_.get(), SIGNAL(accepted()), this, SLOT(accept()));
    connect(dialog_.get(), SIGNAL(rejected()), this, SLOT(reject()));
    QMetaObject::invokeMethod(dialog_.get(), "open");
}

void FolderPanel::accept()
{
    const QUrl folder = dialog_->property("selectedFolder").toUrl();
    finish(paths::fromFileUrl(folder.toEncoded(QUrl::FullyEncoded)));
}

void FolderPanel::reject()
{
    finish(std::nullopt);
}

void FolderPanel::finish(const std::optional<QString> &folder)
{
    dialog_.release()->deleteLater(); // it is this object's own signal that brought us here
    if (const Workspace::FolderChosen chosen = std::exchange(chosen_, nullptr))
        chosen(folder);
}
