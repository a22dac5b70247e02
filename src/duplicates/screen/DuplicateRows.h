#pragma once

#include "base/GroupRows.h"
#include "duplicates/DuplicateFileGroup.h"
#include "duplicates/SameFile.h"

#include <QString>

#include <functional>
#include <vector>

/// What the rows of the Duplicate Finder's list say: heads of groups, and their files. Main thread only.
class DuplicateRows final : public GroupRows
{
    Q_OBJECT

public:
    enum Role {
        titleRole = firstOwnRole, ///< head: the first file's name; file: its name
        detailRole,               ///< head: how many files, and sizes; file: its path
        trailingRole,             ///< head: what can be won back; file: its date
        keepRole,                 ///< file: it stays
        badgeRole,                ///< file: "KEEP" or "DELETE"
        badgeSymbolRole,          ///< file
        tipRole,                  ///< file: what a click does
        sameMarkRole,             ///< head: its files are not all files of their own; else empty
        sameTipRole,              ///< head: what that means
        lossMarkRole,             ///< head: none of its files stays; else empty
        lossTipRole,              ///< head: what that means
        spokenRole,               ///< all but the title, for who does not see it
    };
    Q_ENUM(Role)

    /// Which of a group's files are one, as far as that is known.
    using KindOf = std::function<samefile::Kind(const QUuid &group)>;

    /// `groups` outlives the model, which shows nothing of it until `show`. `home` is written as a tilde.
    DuplicateRows(const std::vector<DuplicateFileGroup> &groups, QString home, KindOf kindOf,
                  QObject *parent = nullptr);

    /// Tells that one file's flag has changed, and its head where that says something else now.
    void refreshFile(size_t group, size_t file);

    QHash<int, QByteArray> roleNames() const override;

private:
    size_t groupCount() const override { return groups_.size(); }
    size_t memberCount(size_t group) const override { return groups_[group].files.size(); }
    QUuid groupId(size_t group) const override { return groups_[group].id; }
    QUuid memberId(size_t group, size_t file) const override { return groups_[group].files[file].id; }
    QVariant headData(size_t index, int role) const override;
    QVariant memberData(size_t group, size_t index, int role) const override;

    const std::vector<DuplicateFileGroup> &groups_;
    const QString home_;
    const KindOf kindOf_;
};
