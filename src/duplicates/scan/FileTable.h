#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <vector>

/// The files that the walk of a duplicate scan has found, in the order in which it found them. Made to be small, since
/// all files of a disk may stand here: a name is kept as its bytes, and a folder's path once for all its files.
class FileTable
{
public:
    struct File
    {
        qint64 size = 0;    ///< bytes; of a link the link's own
        quint64 name = 0;   ///< where the name begins among all names; grows in the order of discovery
        quint32 folder = 0; ///< index of the folder
        bool isLink = false;
        bool isRegular = true; ///< links followed; false of a pipe, a socket, a device
    };

    /// Where the table ends, to go back to.
    struct Mark
    {
        size_t files = 0;
        qsizetype names = 0;
    };

    /// Gives the folder's index.
    quint32 addFolder(const QString &path);

    void add(quint32 folder, QByteArrayView name, qint64 size, bool isLink, bool isRegular = true);

    Mark mark() const { return {files_.size(), names_.size()}; }

    /// Forgets the files added since.
    void cut(Mark mark);

    /// Sorts the files by size, the largest first; those of one size stay in the order of their discovery.
    void sortBySize();

    const std::vector<File> &files() const { return files_; }

    /// The file's path as bytes: folder, slash, name.
    QByteArray nativePath(const File &file) const;

private:
    std::vector<File> files_;
    std::vector<QByteArray> folders_; // paths as bytes, with the slash
    QByteArray names_;                // each with a NUL behind it
};
