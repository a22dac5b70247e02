#include "duplicates/scan/FileTable.h"

#include "base/Paths.h"

#include <algorithm>

quint32 FileTable::addFolder(const QString &path)
{
    // One slash more, whatever the path ends in: a scan path may have been given with one at its end.
    folders_.push_back(paths::toBytes(path) + '/');
    return static_cast<quint32>(folders_.size() - 1);
}

void FileTable::add(quint32 folder, QByteArrayView name, qint64 size, bool isLink, bool isRegular)
{
    files_.push_back({size, static_cast<quint64>(names_.size()), folder, isLink, isRegular});
    names_.append(name.data(), name.size()).append('\0');
}

void FileTable::cut(Mark mark)
{
    files_.resize(mark.files);
    names_.truncate(mark.names);
}

void FileTable::sortBySize()
{
    std::sort(files_.begin(), files_.end(), [](const File &left, const File &right) {
        return left.size != right.size ? left.size > right.size : left.name < right.name;
    });
}

QByteArray FileTable::nativePath(const File &file) const
{
    const QByteArray &folder = folders_[file.folder];
    const QByteArrayView name(names_.constData() + file.name);
    QByteArray path(folder.size() + name.size(), Qt::Uninitialized);
    std::copy(name.begin(), name.end(), std::copy(folder.begin(), folder.end(), path.begin()));
    return path;
}
