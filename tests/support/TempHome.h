#pragma once

#include <QByteArray>
#include <QString>

/// An empty folder of a test's own, with the means to fill it. Removed at the end unless the test has failed, so that
/// what it left can be looked at.
class TempHome
{
public:
    TempHome();
    ~TempHome();
    TempHome(const TempHome &) = delete;
    TempHome &operator=(const TempHome &) = delete;

    /// The folder's absolute path, links resolved.
    const QString &path() const { return path_; }

    /// The absolute path of something below the folder.
    QString at(const QString &relative) const;

    /// Makes a file with that content, and the folders above it. Gives its path.
    QString file(const QString &relative, const QByteArray &content = {}) const;

    /// Makes a file of `size` bytes that takes no room on the disk. Gives its path.
    QString sparseFile(const QString &relative, qint64 size) const;

    /// Makes a folder and those above it. Gives its path.
    QString folder(const QString &relative) const;

    /// Makes a symbolic link that reads `target`. Gives its path.
    QString link(const QString &relative, const QString &target) const;

    /// Makes an executable shell script. Gives its path.
    QString script(const QString &relative, const QByteArray &lines) const;

    /// Sets the permission bits of an entry.
    void setMode(const QString &relative, unsigned mode) const;

private:
    QString path_;
};
