#pragma once

#include "base/Date.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

#include <dirent.h>

/// All access to the disk. Names are bytes (see base/Paths.h), so nothing here goes through a library that would
/// lose some. Every call may block for as long as the disk does. Safe from any thread.
namespace files {

enum class Kind {
    file,
    directory,
    link,
    other, ///< pipe, socket, device
};

/// What the file system says of one entry itself; a link is a link, and has its own size.
struct Attributes
{
    Kind kind = Kind::other;
    qint64 size = 0;                    ///< bytes, as reported for the entry
    Date modified = dates::distantPast; ///< content modification
    Date created = dates::distantPast;  ///< birth; the distant past where it is not kept
    bool isHidden = false;              ///< the file system's attribute; a leading dot where there is none

    bool isDirectory() const { return kind == Kind::directory; }
};

/// What measuring a tree needs of an entry itself, and no more.
struct Extent
{
    Kind kind = Kind::other;
    qint64 size = 0; ///< bytes, as reported for the entry
    bool isHidden = false;

    bool isDirectory() const { return kind == Kind::directory; }
};

/// The entry's own attributes. None when they can't be read.
std::optional<Attributes> attributes(const QString &path);

/// True when something is there; a link counts by what it leads to.
bool exists(const QString &path);

/// True when a folder is there; links are followed.
bool isDirectory(const QString &path);

/// Where a path really leads, without a link on the way. None when nothing is there.
std::optional<QString> realPath(const QString &path);

/// What a link reads, which may lead nowhere. None for anything else.
std::optional<QString> linkTarget(const QString &path);

/// The names in a folder without "." and "..", in the file system's order, hidden ones included. None when it
/// can't be listed. Links are followed.
std::optional<std::vector<QString>> list(const QString &folder);

/// At most `most` bytes from the start of a regular file. None when it can't be opened or read, and for pipes,
/// sockets and devices, whose opening could wait for ever.
std::optional<QByteArray> readPrefix(const QString &path, qint64 most);

/// The whole of a regular file. Throws Error: the system's where it can't be opened or read, EFBIG for more than
/// `most` bytes, which are not read then, and EINVAL for what is no regular file.
QByteArray readAll(const QString &path, qint64 most);

/// Makes one folder. Throws Error (the system's) when it can't, also when the name is taken.
void makeDirectory(const QString &path);

/// Makes a folder and those above it that are missing. Throws Error (the system's).
void makeDirectories(const QString &path);

/// Moves an entry within its volume. Never replaces: throws Error with EEXIST when the target's name is taken,
/// and the system's error for any other failure.
void move(const QString &from, const QString &to);

/// Reads a folder entry by entry, without holding all of it. Not to be shared between threads.
class DirectoryReader
{
public:
    explicit DirectoryReader(const QString &folder);
    ~DirectoryReader();
    DirectoryReader(const DirectoryReader &) = delete;
    DirectoryReader &operator=(const DirectoryReader &) = delete;

    /// False when the folder can't be listed.
    bool isOpen() const { return directory_ != nullptr; }

    /// Moves on to the next entry ("." and ".." are passed over). False at the end, and when the folder isn't open.
    bool next();

    /// True when the folder could be opened but not be read to its end.
    bool hasFailed() const { return hasFailed_; }

    /// The current entry's name, valid until the next call of `next`.
    QByteArrayView name() const;

    /// The current entry's own attributes. None when they can't be read, as when it has just vanished.
    std::optional<Attributes> attributes() const;

    /// The part of `attributes` that a measure needs, at less cost.
    std::optional<Extent> extent() const;

    /// The same of what a link leads to; of any other entry its own. None for a link that leads nowhere.
    std::optional<Extent> followedExtent() const;

    /// What the current entry is as far as the listing itself tells, which costs no question to the disk. None on
    /// file systems that don't tell.
    std::optional<Kind> listedKind() const;

private:
    QString folder_;
    DIR *directory_ = nullptr;
    const dirent *entry_ = nullptr;
    bool hasFailed_ = false;
};

/// A regular file, open to be read at any place. Opening never waits: a pipe, a socket or a device is refused, links
/// followed. Not to be shared between threads.
class FileReader
{
public:
    /// Nothing open.
    FileReader() = default;

    /// `path` as the file system's own bytes (see paths::toBytes).
    explicit FileReader(const QByteArray &path);
    FileReader(FileReader &&other) noexcept;
    ~FileReader();
    FileReader(const FileReader &) = delete;
    FileReader &operator=(const FileReader &) = delete;

    /// False when the file can't be opened, or is no regular file.
    bool isOpen() const { return descriptor_ != -1; }

    /// When the content was last changed, as it was at the opening.
    Date modified() const { return modified_; }

    /// Lets the disk begin to fetch these bytes, which will be read soon. Returns at once.
    void expect(qint64 offset, qint64 count) const;

    /// Appends to `content` up to `count` bytes from `offset` on; fewer where the file ends. False when the
    /// disk fails to give them; what was read so far has been appended then.
    bool read(qint64 offset, qint64 count, QByteArray &content) const;

private:
    QByteArray path_; // what a test knows the file by
    int descriptor_ = -1;
    Date modified_ = dates::distantPast;
};

/// The calls that a test can make fail.
enum class Operation {
    list,
    kind, ///< of `DirectoryReader`: what the listing tells of an entry; it tells nothing then
    next, ///< of `DirectoryReader`: the step to the next entry, with the folder's path
    attributes,
    open,  ///< of `removeTree`, of each folder inside too
    read,  ///< of `FileReader`, with no path
    write, ///< of `writeAtomically`, whose path this and the next two get
    sync,
    rename,
    move,   ///< of `move`, with the path that it leaves; EINVAL is a file system without an exclusive rename
    remove, ///< of `removeTree`, of each entry
};

/// Asked before each of these calls with the path at hand; an error number other than 0 makes the call fail
/// with it. For tests only: an empty function takes it away again. Not to be changed while calls are under way.
void injectFaults(std::function<int(Operation, const QString &path)> injected);

} // namespace files
