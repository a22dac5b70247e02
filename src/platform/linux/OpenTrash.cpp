#include "platform/linux/OpenTrash.h"

#include "base/AtomicWrite.h"
#include "base/Error.h"
#include "base/FileIdentity.h"
#include "base/FileRemoval.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "platform/linux/TrashNames.h"

#include <QByteArrayList>

#include <cerrno>
#include <chrono>
#include <ctime>

#include <unistd.h>

namespace {

constexpr qint64 mostSizes = 64 << 20; // bytes of the desktop's file of sizes; a larger one is left alone

std::optional<files::OpenFolder> folderAround(const QString &items)
{
    if (paths::lastComponent(items) != trashnames::items)
        return std::nullopt;
    return files::OpenFolder(paths::parent(items));
}

/// True where there are no notes, or where they lie behind a link.
bool tellsOfNoNotes(const Error &error)
{
    return error.code == ENOENT || error.code == ENOTDIR || error.code == ELOOP;
}

std::optional<files::OpenFolder> notesIn(const files::OpenFolder &trash)
{
    try {
        return trash.inner(trashnames::notes);
    } catch (const Error &error) {
        if (!tellsOfNoNotes(error)) // else they would be left of items that are gone
            throw;
        return std::nullopt;
    }
}

} // namespace

OpenTrash::OpenTrash(const QString &items)
    : around_(folderAround(items))
    , items_(around_ ? around_->inner(trashnames::items) : files::OpenFolder(items))
    , notes_(around_ ? notesIn(*around_) : std::nullopt)
{
}

void OpenTrash::remove(const QString &relative, Date begin) const
{
    const auto note = notes_ ? notes_->find(relative + trashnames::noteSuffix) : std::nullopt;
    try {
        files::removeTree(items_, relative);
    } catch (const Error &error) {
        if (note && error.code == ENOENT && note->modified < begin)
            forget(relative, *note);
        throw;
    }
    if (note)
        forget(relative, *note);
}

void OpenTrash::forget(const QString &item, const Note &note) const
{
    const QString name = item + trashnames::noteSuffix;
    if (!items_.isGone(item) || notes_->find(name) != note) // another item has taken the name meanwhile
        return;
    try {
        notes_->remove(name);
    } catch (const Error &) {
        // It stays, and what empties the Trash next finds it.
    }
}

void OpenTrash::forgetWhatIsGone() const
{
    if (!around_)
        return;
    forgetSizes();
    const auto left = files::list(items_.path());
    if (notes_ && left && left->empty())
        forgetOldNotes();
}

/// True when the Trash still lies where it was as it was opened.
bool OpenTrash::isInPlace() const
{
    return files::identity(around_->path()) == files::openIdentity(around_->number());
}

/// The file is the desktop's, a line for each folder: its size, its note's date and its name, percent-encoded.
void OpenTrash::forgetSizes() const
{
    const QString file = paths::join(around_->path(), trashnames::sizes);
    const auto attributes = files::attributes(file);
    if (!attributes || attributes->kind != files::Kind::file)
        return;
    try {
        const QByteArray content = files::readAll(file, mostSizes);
        QByteArray kept;
        for (const QByteArray &line : content.split('\n')) {
            const QByteArray name = QByteArray::fromPercentEncoding(line.mid(line.lastIndexOf(' ') + 1));
            if (!name.isEmpty() && !items_.isGone(paths::fromBytes(name)))
                kept += line + '\n';
        }
        if (!isInPlace()) // the file may have been another folder's
            return;
        if (kept.isEmpty())
            around_->remove(trashnames::sizes);
        else if (kept != content)
            files::writeAtomically(file, kept);
    } catch (const Error &) {
        // Lines of folders that are gone are nothing but that: the desktop passes them over.
    }
}

/// A note is written ahead of its item, so that a fresh one may be of an item that is on its way.
void OpenTrash::forgetOldNotes() const
{
    const Date newest = dates::fromUnix(std::time(nullptr), 0) - std::chrono::hours(1);
    for (const QString &name : files::list(notes_->path()).value_or(std::vector<QString>())) {
        const auto note = name.endsWith(trashnames::noteSuffix) ? notes_->find(name) : std::nullopt;
        if (note && note->modified < newest)
            forget(name.chopped(trashnames::noteSuffix.size()), *note);
    }
}
