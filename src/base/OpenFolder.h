#pragma once

#include "base/Date.h"
#include "base/FileCalls.h"
#include "base/FileIdentity.h"

#include <QString>

#include <optional>

namespace files {

/// A folder that is held open, so that nothing done in it is led elsewhere by what is put into its path meanwhile. Names are
/// those of entries in it: one that is none ("", ".", "a/b") stands for nothing. May block for as long as the disk does;
/// any thread.
class OpenFolder
{
public:
    /// An entry as it stands at one moment.
    struct Entry
    {
        Identity identity;
        Date modified;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    /// Links above the folder are followed, none at it. Throws Error (the system's).
    explicit OpenFolder(const QString &path);

    /// A folder in it, and no link to one. Throws Error (the system's).
    OpenFolder inner(const QString &name) const;

    /// The entry itself. None when nothing is there, or it can't be asked.
    std::optional<Entry> find(const QString &name) const;

    /// True when the system says that nothing of that name is there; false also when it can't be asked.
    bool isGone(const QString &name) const;

    /// Removes an entry that is no folder. Throws Error (the system's).
    void remove(const QString &name) const;

    /// Where it was as it was opened.
    const QString &path() const { return path_; }

    int number() const { return folder_.number(); }

private:
    OpenFolder(const Descriptor &parent, const QString &name, const QString &path);

    QString path_;
    Descriptor folder_;
};

} // namespace files
