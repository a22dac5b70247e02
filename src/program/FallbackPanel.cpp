#include "program/FallbackPanel.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <QDebug>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>
#include <QWindow>

#include <utility>

namespace {

QUrl urlOf(const QString &path)
{
    return QUrl::fromEncoded(paths::fileUrl(path));
}

/// Shows the name that a panel for saving begins with. From Qt 6.8 on the toolkit's own, which belongs to its parent
/// window, takes the name and yet leaves its field empty.
void showName(const QWindow &parentWindow, const QString &name)
{
    for (QObject *field : parentWindow.findChildren<QObject *>(QStringLiteral("fileNameTextField"))) {
        if (field->property("text").toString().isEmpty())
            field->setProperty("text", paths::display(name));
    }
}

/// Lets a folder panel offer hidden folders: it has no property for it, but the list inside it has. To it a package is a
/// folder like any other.
void showHiddenFolders(const QWindow &parentWindow)
{
    for (const QObject *list : parentWindow.findChildren<QObject *>(QStringLiteral("folderDialogListView"))) {
        if (auto *folders = list->property("model").value<QObject *>())
            folders->setProperty("showHidden", true);
    }
}

} // namespace

FallbackPanel::FallbackPanel() = default;

FallbackPanel::~FallbackPanel() = default;

void FallbackPanel::attach(QQmlEngine &engine, QWindow &window, const QString &home)
{
    engine_ = &engine;
    window_ = &window;
    home_ = home;
}

void FallbackPanel::chooseFolder(const Workspace::FolderRequest &request, Workspace::PathChosen chosen)
{
    chosen_ = std::move(chosen);
    show(QStringLiteral("FolderPanel.qml"),
         {{"title", paths::display(request.message)}, {"currentFolder", urlOf(startFor(request.start))}},
         {[this] { finish(pathOf("selectedFolder")); }, [this] { finish(std::nullopt); }});
    if (dialog_ && request.showsHidden)
        showHiddenFolders(*window_);
}

void FallbackPanel::chooseSavePath(const Workspace::SaveRequest &request, Workspace::PathChosen chosen)
{
    chosen_ = std::move(chosen);
    showSavePanel(request);
}

void FallbackPanel::giveUp()
{
    next_ = {};
    finish(std::nullopt);
}

void FallbackPanel::accept()
{
    const Next next = std::exchange(next_, {}); // a copy: what follows may show the next dialog
    if (next.accepted)
        next.accepted();
}

void FallbackPanel::reject()
{
    const Next next = std::exchange(next_, {});
    if (next.rejected)
        next.rejected();
}

void FallbackPanel::show(const QString &qmlFile, const Properties &properties, Next next)
{
    dropDialog();
    if (!engine_) {
        finish(std::nullopt);
        return;
    }
    QQmlComponent component(engine_, QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/program/") + qmlFile));
    dialog_.reset(component.create());
    if (!dialog_) {
        qWarning() << "No panel:" << component.errorString();
        finish(std::nullopt);
        return;
    }
    // Nothing is shown without a window, unless the toolkit's platform has dialogs of its own.
    dialog_->setProperty("parentWindow", QVariant::fromValue(window_));
    // Not as initial properties: a panel takes the name of a new file only once it knows that it is there to save.
    for (const auto &[name, value] : properties)
        dialog_->setProperty(name, value);
    next_ = std::move(next);
    connect(dialog_.get(), SIGNAL(accepted()), this, SLOT(accept()));
    connect(dialog_.get(), SIGNAL(rejected()), this, SLOT(reject()));
    QMetaObject::invokeMethod(dialog_.get(), "open");
}

void FallbackPanel::showSavePanel(const Workspace::SaveRequest &request)
{
    const QString start = startFor(request.start);
    show(QStringLiteral("SavePanel.qml"),
         {{"title", paths::display(request.message)},
          {"acceptLabel", QStringLiteral("Save")},
          {"currentFolder", urlOf(start)},
          {"selectedFile", urlOf(paths::join(start, request.suggestedName))}},
         {[this, request] { takeSavePath(request, pathOf("selectedFile")); },
          [this] { finish(std::nullopt); }});
    if (dialog_)
        showName(*window_, request.suggestedName);
}

void FallbackPanel::takeSavePath(const Workspace::SaveRequest &request, const QString &path)
{
    if (files::isDirectory(path)) // nothing can be saved as a folder, but in it
        showSavePanel({request.message, request.suggestedName, path});
    else if (files::exists(path))
        askToReplace({request.message, paths::lastComponent(path), paths::parent(path)}, path);
    else
        finish(path);
}

void FallbackPanel::askToReplace(const Workspace::SaveRequest &request, const QString &path)
{
    const Properties properties{
        {"title", paths::display(request.message)},
        {"text", QStringLiteral("“%1” already exists.").arg(paths::display(request.suggestedName))},
        {"informativeText", QStringLiteral("Saving replaces what it holds.")},
    };
    show(QStringLiteral("ReplaceQuestion.qml"), properties,
         {[this, path] { finish(path); }, [this, request] { showSavePanel(request); }});
}

QString FallbackPanel::startFor(const QString &folder) const
{
    return folder.isEmpty() ? home_ : folder;
}

QString FallbackPanel::pathOf(const char *property) const
{
    const QUrl url = dialog_->property(property).toUrl();
    const QByteArray encoded = url.toEncoded(QUrl::FullyEncoded);
    if (!encoded.startsWith('/'))
        return paths::fromFileUrl(encoded);
    // Qt 6.4 hands over the path of a typed name with no "file:" before it.
    return paths::fromBytes(QByteArray::fromPercentEncoding(encoded));
}

void FallbackPanel::dropDialog()
{
    if (!dialog_)
        return;
    disconnect(dialog_.get(), nullptr, this, nullptr);
    dialog_.release()->deleteLater(); // its own signal may have brought us here
}

void FallbackPanel::finish(const std::optional<QString> &path)
{
    dropDialog();
    const bool isNone = !path || path->isEmpty();
    if (const Workspace::PathChosen chosen = std::exchange(chosen_, nullptr))
        chosen(isNone ? std::nullopt : path);
}
