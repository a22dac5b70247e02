#include "program/panel/FilePanelView.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "filesystem/FileItem.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace {

constexpr double shortWait = 0.3;   // seconds; what comes within needs no word
constexpr double typingPause = 1.0; // seconds that end what is typed in the list

bool isNameOfOneFolder(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'/') && name != QStringLiteral(".")
           && name != QStringLiteral("..");
}

QString symbolOf(const folderlisting::Entry &entry)
{
    FileItem item;
    item.isDirectory = entry.isFolder;
    item.ext = paths::extension(entry.name).toLower();
    return iconName(item);
}

} // namespace

FilePanelView::FilePanelView(const Platform &platform, Request request, Workspace::PathChosen chosen)
    : platform_(platform)
    , request_(std::move(request))
    , chosen_(std::move(chosen))
    , places_({{"name", [](const panelplaces::Place &place) { return place.name; }},
               {"symbol", [](const panelplaces::Place &place) { return place.symbol; }},
               {"isHere", [](const panelplaces::Place &place) { return place.isHere; }},
               {"hereText",
                [](const panelplaces::Place &place) {
                    return place.isHere ? QStringLiteral("On view") : QString();
                }}})
    , rows_({{"name", [](const auto &entry) { return paths::inOneLine(entry.name); }},
             {"symbol", [](const auto &entry) { return symbolOf(entry); }},
             {"isFolder", [](const auto &entry) { return entry.isFolder; }}})
    , wish_{{}, request_.showsHidden, isForSaving()}
    , replaceQuestion_([this] { finish(replacedPath_); })
{
    places_.reset(panelplaces::usual(*platform_.locations));
    offerName(request_.suggestedName.value_or(QString()));
    open(request_.start.isEmpty() ? platform_.home : request_.start);
    leaveOutMissingPlaces();
}

void FilePanelView::leaveOutMissingPlaces()
{
    QStringList asked;
    for (const panelplaces::Place &place : places_.records())
        asked << place.path;
    // Places may lie on another disk, which may never answer: until it does they are shown.
    platform_.workQueue.post(
        WorkPriority::userInitiated,
        [asked, token = lookForPlaces_.ask(), self = QPointer(this), &main = platform_.mainQueue] {
            for (const QString &path : asked) {
                if (!files::exists(path))
                    token.answer(main, self, [path](FilePanelView &view) { view.leaveOut(path); });
            }
        });
}

void FilePanelView::leaveOut(const QString &missing)
{
    std::vector<panelplaces::Place> left = places_.records();
    std::erase_if(left, [&](const panelplaces::Place &place) { return place.path == missing; });
    places_.update(std::move(left), [](const panelplaces::Place &one, const panelplaces::Place &other) {
        return one.path == other.path;
    });
}

QString FilePanelView::title() const
{
    return paths::inOneLine(request_.title);
}

QString FilePanelView::symbol() const
{
    return isForSaving() ? QStringLiteral("doc.fill") : QStringLiteral("folder.fill");
}

QString FilePanelView::acceptLabel() const
{
    return isForSaving() ? QStringLiteral("Save") : QStringLiteral("Open");
}

QStringList FilePanelView::crumbs() const
{
    QStringList names{QStringLiteral("/")};
    for (const QString &name : folder_.split(u'/', Qt::SkipEmptyParts))
        names << paths::inOneLine(name);
    return names;
}

void FilePanelView::setShowsHidden(bool showsHidden)
{
    if (wish_.showsHidden == showsHidden)
        return;
    wish_.showsHidden = showsHidden;
    list();
}

QString FilePanelView::emptySymbol() const
{
    return hasFailed_ ? QStringLiteral("questionmark.folder") : QStringLiteral("folder");
}

QString FilePanelView::emptyText() const
{
    if (hasFailed_)
        return QStringLiteral("This folder can’t be opened");
    if (!isListed_ || rows_.rowCount() > 0)
        return {};
    return isForSaving() ? QStringLiteral("Nothing in this folder")
                         : QStringLiteral("No folders in this folder");
}

void FilePanelView::setFileName(const QString &name)
{
    if (fileName_ == name)
        return;
    fileName_ = name;
    failureText_.clear();
    emit fileNameChanged();
    emit changed();
}

int FilePanelView::stemLength() const
{
    const QString extension = paths::extension(fileName_);
    return static_cast<int>(extension.isEmpty() ? fileName_.size() : fileName_.size() - extension.size() - 1);
}

QString FilePanelView::resultText() const
{
    return paths::withTilde(paths::inOneLine(result()), paths::inOneLine(platform_.home));
}

QString FilePanelView::result() const
{
    if (isForSaving())
        return savePath();
    if (selected_ < 0)
        return folder_;
    return paths::join(folder_, rows_.records()[static_cast<size_t>(selected_)].name);
}

bool FilePanelView::canAccept() const
{
    return isForSaving() ? !savePath().isEmpty() : isListed_;
}

void FilePanelView::openPlace(int row)
{
    if (row >= 0 && row < places_.rowCount())
        open(places_.records()[static_cast<size_t>(row)].path);
}

void FilePanelView::openCrumb(int index)
{
    const QStringList names = folder_.split(u'/', Qt::SkipEmptyParts);
    if (index >= 0 && index <= names.size())
        open(u'/' + names.first(index).join(u'/'));
}

void FilePanelView::goUp()
{
    if (canGoUp())
        open(paths::parent(folder_));
}

void FilePanelView::select(int row)
{
    selected_ = row < rows_.rowCount() ? row : -1;
    if (isForSaving() && selected_ >= 0) {
        const folderlisting::Entry &entry = rows_.records()[static_cast<size_t>(selected_)];
        if (!entry.isFolder)
            offerName(entry.name);
    }
    emit changed();
}

void FilePanelView::openRow(int row)
{
    if (row < 0 || row >= rows_.rowCount())
        return;
    const folderlisting::Entry entry = rows_.records()[static_cast<size_t>(row)];
    if (entry.isFolder)
        open(paths::join(folder_, entry.name));
    else
        accept();
}

int FilePanelView::find(const QString &typed)
{
    const double now = platform_.clock.steadySeconds();
    typed_ = now - std::exchange(lastTyped_, now) > typingPause ? typed : typed_ + typed;
    const auto &entries = rows_.records();
    const auto found =
        std::find_if(entries.begin(), entries.end(), [this](const folderlisting::Entry &entry) {
            return paths::display(entry.name).startsWith(typed_, Qt::CaseInsensitive);
        });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

bool FilePanelView::takeKey(int key, int modifiers, const QString &text)
{
    const auto held = Qt::KeyboardModifiers(modifiers) & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if ((key == Qt::Key_Backspace && held == Qt::NoModifier)
        || (key == Qt::Key_Up && held == Qt::AltModifier)) {
        goUp();
        return true;
    }
    if (held != Qt::NoModifier || text.isEmpty() || !text.front().isPrint())
        return false;
    if (const int row = find(text); row >= 0)
        emit found(row);
    return true;
}

void FilePanelView::accept()
{
    if (!canAccept())
        return;
    if (isForSaving())
        save();
    else
        finish(result());
}

void FilePanelView::cancel()
{
    finish(std::nullopt);
}

void FilePanelView::askForFolderName()
{
    asksForFolderName_ = canMakeFolder();
    emit changed();
}

void FilePanelView::cancelFolderName()
{
    asksForFolderName_ = false;
    emit changed();
}

void FilePanelView::makeFolder(const QString &name)
{
    cancelFolderName();
    if (!isNameOfOneFolder(name))
        return;
    const QString path = paths::join(folder_, name);
    platform_.workQueue.post(WorkPriority::userInitiated, [path, token = deed_.ask(), self = QPointer(this),
                                                           &main = platform_.mainQueue] {
        token.answer(main, self, [path, failure = panelquestions::make(path)](FilePanelView &view) {
            if (failure.isEmpty())
                view.open(path);
            else
                view.fail(QStringLiteral("The folder can’t be made: %1").arg(failure));
        });
    });
}

void FilePanelView::open(const QString &folder)
{
    folder_ = paths::standardized(folder);
    rows_.reset({});
    markPlaces();
    list();
    emit folderChanged();
}

void FilePanelView::list()
{
    wish_.folder = folder_;
    isListed_ = hasFailed_ = isSlow_ = false;
    selected_ = -1;
    failureText_.clear();
    deed_.drop(); // it was about another folder
    const LatestQuestion::Token token = listing_.ask();
    platform_.workQueue.post(WorkPriority::userInitiated, [wish = wish_, token, self = QPointer(this),
                                                           &main = platform_.mainQueue] {
        const auto answer = [&](std::optional<std::vector<folderlisting::Entry>> entries) {
            token.answer(main, self,
                         [entries = std::move(entries)](FilePanelView &view) { view.take(entries); });
        };
        answer(folderlisting::list(wish, answer, [&] { return token.isUnwanted(); }));
    });
    guarded::postAfter(platform_.mainQueue, shortWait, QPointer(this), [token](FilePanelView &view) {
        if (token.isUnwanted() || view.isListed_ || view.hasFailed_)
            return;
        view.isSlow_ = true;
        emit view.changed();
    });
    emit changed();
}

void FilePanelView::take(const std::optional<std::vector<folderlisting::Entry>> &entries)
{
    const bool isFirst = !isListed_;
    isListed_ = entries.has_value();
    hasFailed_ = !isListed_;
    isSlow_ = false;
    if (entries)
        takeRows(*entries);
    if (isFirst)
        emit listed();
    emit changed();
}

void FilePanelView::takeRows(const std::vector<folderlisting::Entry> &entries)
{
    std::optional<folderlisting::Entry> held;
    if (selected_ >= 0)
        held = rows_.records()[static_cast<size_t>(selected_)];
    rows_.update(entries, std::equal_to<>());
    const auto now = held ? std::find(entries.begin(), entries.end(), *held) : entries.end();
    selected_ = now == entries.end() ? -1 : static_cast<int>(now - entries.begin());
}

void FilePanelView::markPlaces()
{
    for (int row = 0; row < places_.rowCount(); ++row) {
        panelplaces::Place place = places_.records()[static_cast<size_t>(row)];
        const bool isHere = place.path == folder_;
        if (std::exchange(place.isHere, isHere) != isHere)
            places_.replace(row, place);
    }
}

void FilePanelView::offerName(const QString &name)
{
    offeredName_ = name;
    setFileName(paths::inOneLine(name));
}

QString FilePanelView::savePath() const
{
    const bool isTyped = fileName_ != paths::inOneLine(offeredName_);
    const QString name = isTyped ? fileName_ : offeredName_;
    if (name.isEmpty())
        return {};
    const QString path = isTyped ? paths::expandTilde(name, platform_.home) : name;
    return paths::standardized(path.startsWith(u'/') ? path : paths::join(folder_, path));
}

void FilePanelView::save()
{
    const QString path = savePath();
    platform_.workQueue.post(WorkPriority::userInitiated, [path, token = deed_.ask(), self = QPointer(this),
                                                           &main = platform_.mainQueue] {
        token.answer(main, self, [path, found = panelquestions::lookAt(path)](FilePanelView &view) {
            view.takeLook(path, found);
        });
    });
}

void FilePanelView::takeLook(const QString &path, panelquestions::Found found)
{
    using panelquestions::Found;
    switch (found) {
    case Found::folder: // nothing can be saved as a folder, but in it
        offerName(*request_.suggestedName);
        open(path);
        return;
    case Found::noFolder:
        fail(QStringLiteral("There is no folder “%1”").arg(paths::inOneLine(paths::parent(path))));
        return;
    case Found::file:
        replacedPath_ = path;
        replaceQuestion_.ask(
            QStringLiteral("“%1” already exists.").arg(paths::inOneLine(paths::lastComponent(path))));
        return;
    case Found::nothing:
        finish(path);
        return;
    }
}

void FilePanelView::fail(const QString &text)
{
    failureText_ = text;
    emit changed();
}

void FilePanelView::finish(const std::optional<QString> &path)
{
    if (const Workspace::PathChosen chosen = std::exchange(chosen_, nullptr))
        chosen(path);
}
