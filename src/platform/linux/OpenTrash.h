#pragma once

#include "base/Date.h"
#include "base/OpenFolder.h"

#include <QString>

#include <optional>

/// A Trash with its folders held open, so that no link that is put into its place meanwhile is followed. It knows items and
/// the notes beside them as TrashFolder tells of them; any other folder is a Trash without notes. Blocks; any thread.
class OpenTrash
{
public:
    /// By the folder of its items. Throws Error (the system's), ENOTDIR where this or the Trash around it is a link. Notes
    /// behind a link count as none; those that can't be reached are an Error.
    explicit OpenTrash(const QString &items);

    /// Removes what lies at a path below the items for good, and the note of a whole item right after it: whatever ends the
    /// program in between leaves one note without an item and no item without a note. A note that is there though its item
    /// isn't goes too, but for one that was written after `begin`, whose item may be on its way. Throws Error as
    /// files::removeTree does.
    void remove(const QString &relative, Date begin) const;

    /// Takes away what the desktop has noted of the sizes of folders that are gone, and once no item is left, all notes but
    /// those of the last hour.
    void forgetWhatIsGone() const;

private:
    using Note = files::OpenFolder::Entry;

    void forget(const QString &item, const Note &note) const;
    bool isInPlace() const;
    void forgetSizes() const;
    void forgetOldNotes() const;

    std::optional<files::OpenFolder> around_; // none of a Trash without notes
    files::OpenFolder items_;
    std::optional<files::OpenFolder> notes_;
};
