#pragma once

#include "filesystem/FileEntry.h"
#include "filesystem/FileItem.h"
#include "platform/Platform.h"

#include <atomic>
#include <optional>
#include <vector>

class SizeProbes;

/// Reads folders and measures trees, and does the small plain file operations. Every operation blocks for as long
/// as the disk does and is safe from any thread, but for those that hand a path to the desktop.
class FileSystemService
{
public:
    FileSystemService(const Platform &platform, SizeProbes &probes);
    FileSystemService(const FileSystemService &) = delete;
    FileSystemService &operator=(const FileSystemService &) = delete;

    /// The process's one instance, made at the first call with its arguments and never destroyed.
    static FileSystemService &shared(const Platform &platform, SizeProbes &probes);

    /// Cancels the tree scan that is under way: every folder entered from then on measures 0. Stays set until a
    /// scan's starter clears it.
    std::atomic<bool> scanCancelled = false;

    /// One level of a folder, in the file system's order. An unreadable folder gives an empty list.
    std::vector<FileItem> listDirectory(const QString &path, bool includeHidden) const;

    /// None when the entry's attributes can't be read.
    std::optional<FileItem> makeFileItem(const QString &path) const;

    /// Measures the folder at `path`, itself at `depth`, listing folders above `maxDepth` and handing those at it
    /// to a size probe. Children come largest first, at most 30 a folder; equal ones in listing order. Hidden
    /// entries are left out, except in what the probe measures. Unreadable folders have size 0 and no children.
    FileEntry scanTree(const QString &path, int depth, int maxDepth) const;

    /// Gives the entry at `path` another name in its folder. Throws Error (the system's), also when it is taken.
    void renameItem(const QString &path, const QString &newName) const;

    /// Makes a folder. Throws Error (the system's).
    void createFolder(const QString &parentPath, const QString &name) const;

    /// The first `length` bytes of a file as text. None when it can't be opened or when they are not UTF-8, which
    /// a text cut inside a character isn't either.
    std::optional<QString> readTextPrefix(const QString &path, qint64 length) const;

    /// The code of the error of `adminTrash` that tells a cancelled password dialog from a failure.
    static constexpr int adminCancelled = Recycler::cancelled;

    /// Moves an entry to the Trash; of a link the link itself. Returns when it is done, on any thread. On the main one
    /// the event loop runs meanwhile, so that the caller may be entered again. Throws Error: the recycle service's, or
    /// "Quillmere.Trash" when the entry is still there without one.
    void moveToTrash(const QString &path) const;

    /// Moves an entry to the Trash with an administrator's rights, for which the system asks; blocks for as long, so
    /// never on the main thread. Nothing there is a success. Throws Error in the domain "Quillmere.AdminTrash".
    void adminTrash(const QString &path) const;

    /// Opens a terminal in a folder; a leading tilde is the home folder. Main thread.
    void openInTerminal(const QString &path) const;

    /// Shows an entry selected in its folder. Main thread.
    void revealInFinder(const QString &path) const;

private:
    const Platform &platform_;
    SizeProbes &probes_;
};
