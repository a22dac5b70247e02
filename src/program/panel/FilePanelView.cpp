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
    , places_(platform)
    , rows_({{"name", [](const auto &entry) { return paths::inOneLine(entry.name); }},
             {"symbol", [](const auto &entry) { return symbolOf(entry); }},
             {"isFolder", [](const auto &entry) { return entry.isFolder; }}})
    , wish_{{}, request_.showsHidden, isForSaving()}
    , replaceQuestion_([this] { finish(replacedPath_); })
    , deed_(platform, [this] { emit changed(); })
{
    offerName(request_.suggestedName.value_or(QString()));
    open(request_.start.isEmpty() ? platform_.home : request_.start);
    places_.leaveOutMissing();
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

QString FilePanelView::cutShortText() const
{
    return isCutShort_ ? QStringLiteral("Not all of this folder could be read") : QString();
}

void FilePanelView::setFileName(const QString &name)
{
    rename([this, name] { name_.type(name); });
}

void FilePanelView::offerName(const QString &name)
{
    rename([this, name] { name_.offer(name); });
}

void FilePanelView::rename(const std::function<void()> &change)
{
    const QString before = name_.text();
    change();
    if (name_.text() == before)
        return;
    if (deed_.kind() == PanelDeed::Kind::save)
        deed_.drop(); // it looks after the name of before
    failureText_.clear();
    emit fileNameChanged();
    emit changed();
}

QString FilePanelView::resultText() const
{
    if (deed_.isSlow())
        return QStringLiteral("Waiting for the disk to answer…");
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
    if (const QString path = places_.path(row); !path.isEmpty())
        open(path);
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
    if (isTakingRows_ || row == selected_)
        return;
    selected_ = row < rows_.rowCount() ? row : -1;
    failureText_.clear(); // it stands where the path is told
    offerSelected();
    emit changed();
}

void FilePanelView::offerSelected()
{
    if (!isForSaving() || selected_ < 0)
        return;
    const folderlisting::Entry entry = rows_.records()[static_cast<size_t>(selected_)];
    if (!entry.isFolder)
        offerName(entry.name);
}

void FilePanelView::openRow(int row)
{
    if (row < 0 || row >= rows_.rowCount())
        return;
    const folderlisting::Entry entry = rows_.records()[static_cast<size_t>(row)];
    if (entry.isFolder) {
        open(paths::join(folder_, entry.name));
    } else {
        offerName(entry.name); // another may have been typed since it was selected
        accept();
    }
}

void FilePanelView::press(int row)
{
    const bool isThere = row >= 0 && row < rows_.rowCount();
    pressedBefore_ = std::exchange(
        pressed_, isThere ? paths::join(folder_, rows_.records()[static_cast<size_t>(row)].name) : QString());
    select(row);
    offerSelected();
}

void FilePanelView::openPressedTwice(int row)
{
    if (pressed_ == pressedBefore_)
        openRow(row);
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
    if (!canAccept() || deed_.kind() == PanelDeed::Kind::save)
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
    deed_.drop(); // its answer could ask another question over this one
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
    if (!panelquestions::canNameFolder(name)) {
        if (!name.isEmpty())
            fail(QStringLiteral("No folder can have the name “%1”").arg(paths::inOneLine(name)));
        return;
    }
    const QString path = paths::join(folder_, name);
    failureText_.clear();
    deed_.begin(PanelDeed::Kind::makeFolder, [this, path]() -> PanelDeed::Outcome {
        return [this, path, failure = panelquestions::make(path)] {
            if (failure.isEmpty())
                open(path);
            else
                fail(QStringLiteral("The folder can’t be made: %1").arg(failure));
        };
    });
}

void FilePanelView::open(const QString &folder)
{
    folder_ = paths::standardized(folder);
    selected_ = -1;
    rows_.reset({});
    failureText_.clear();
    typed_.clear();
    deed_.drop(); // it was about another folder
    places_.mark(folder_);
    list();
    emit folderChanged();
}

void FilePanelView::list()
{
    wish_.folder = folder_;
    isListed_ = hasFailed_ = isCutShort_ = isSlow_ = false;
    selected_ = -1;
    const LatestQuestion::Token token = listing_.ask();
    platform_.workQueue.post(WorkPriority::userInitiated, [wish = wish_, token, self = QPointer(this),
                                                           &main = platform_.mainQueue] {
        const auto answer = [&](std::optional<folderlisting::Listing> listing) {
            token.answer(main, self,
                         [listing = std::move(listing)](FilePanelView &view) { view.take(listing); });
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

void FilePanelView::take(const std::optional<folderlisting::Listing> &listing)
{
    const bool isFirst = !isListed_;
    isListed_ = listing.has_value();
    hasFailed_ = !isListed_;
    isCutShort_ = listing && listing->isCutShort;
    isSlow_ = false;
    if (listing)
        takeRows(listing->entries);
    if (isFirst)
        emit listed();
    else
        emit kept(selected_);
    emit changed();
}

void FilePanelView::takeRows(const std::vector<folderlisting::Entry> &entries)
{
    std::optional<folderlisting::Entry> held;
    if (selected_ >= 0)
        held = rows_.records()[static_cast<size_t>(selected_)];
    isTakingRows_ = true;
    rows_.update(entries, std::equal_to<>());
    isTakingRows_ = false;
    const auto now = held ? std::find(entries.begin(), entries.end(), *held) : entries.end();
    selected_ = now == entries.end() ? -1 : static_cast<int>(now - entries.begin());
}

QString FilePanelView::savePath() const
{
    const QString path = name_.pathFrom(folder_, platform_.home);
    const bool isComplete = path.isEmpty() || name_.meansFolder() || request_.extension.isEmpty()
                            || paths::extension(path).compare(request_.extension, Qt::CaseInsensitive) == 0;
    return isComplete ? path : path + u'.' + request_.extension;
}

void FilePanelView::save()
{
    const QString path = savePath();
    failureText_.clear();
    deed_.begin(PanelDeed::Kind::save,
                [this, path, meansFolder = name_.meansFolder()]() -> PanelDeed::Outcome {
                    return [this, path, meansFolder, found = panelquestions::lookAt(path)] {
                        takeLook(path, meansFolder, found);
                    };
                });
}

void FilePanelView::takeLook(const QString &path, bool meansFolder, panelquestions::Found found)
{
    using panelquestions::Found;
    if (meansFolder && found != Found::folder) {
        fail(QStringLiteral("There is no folder “%1”").arg(paths::inOneLine(path)));
        return;
    }
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
    deed_.drop();
    if (const Workspace::PathChosen chosen = std::exchange(chosen_, nullptr))
        chosen(path);
}
