#pragma once

#include "base/GroupRows.h"
#include "support/Rows.h"

#include <QAbstractItemModelTester>
#include <QStringList>

#include <utility>
#include <vector>

#include <gtest/gtest.h>

/// Rows over groups of names that a test makes and changes.
struct NamedGroups : public testing::Test
{
    struct Member
    {
        QUuid id;
        QString name;
    };
    struct Group
    {
        QUuid id;
        std::vector<Member> members;
    };

    /// A head is called as its first member and tells how many there are; a member tells its name in brackets.
    class Rows final : public GroupRows
    {
    public:
        enum Role {
            titleRole = firstOwnRole,
            detailRole,
        };

        explicit Rows(const std::vector<Group> &groups)
            : groups_(groups)
        {
        }
        QHash<int, QByteArray> roleNames() const override
        {
            QHash<int, QByteArray> names = GroupRows::roleNames();
            names.insert({{titleRole, "title"}, {detailRole, "detail"}});
            return names;
        }

    private:
        size_t groupCount() const override { return groups_.size(); }
        size_t memberCount(size_t group) const override { return groups_[group].members.size(); }
        QUuid groupId(size_t group) const override { return groups_[group].id; }
        QUuid memberId(size_t group, size_t member) const override
        {
            return groups_[group].members[member].id;
        }
        QVariant headData(size_t group, int role) const override
        {
            const std::vector<Member> &members = groups_[group].members;
            if (role == titleRole)
                return members.empty() ? QString() : members.front().name;
            return role == detailRole ? QString::number(members.size()) : QVariant();
        }
        QVariant memberData(size_t group, size_t member, int role) const override
        {
            const QString &name = groups_[group].members[member].name;
            if (role == titleRole)
                return name;
            return role == detailRole ? u'(' + name + u')' : QVariant();
        }

        const std::vector<Group> &groups_;
    };

    std::vector<Group> groups;
    Rows rows{groups};
    const QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};

    static Group group(const QStringList &names)
    {
        Group made{QUuid::createUuid(), {}};
        for (const QString &name : names)
            made.members.push_back({QUuid::createUuid(), name});
        return made;
    }

    /// Takes these groups, and shows them all.
    void show(std::vector<Group> taken)
    {
        groups = std::move(taken);
        rows.show(all());
    }

    std::vector<size_t> all() const
    {
        std::vector<size_t> indices(groups.size());
        for (size_t index = 0; index < indices.size(); ++index)
            indices[index] = index;
        return indices;
    }

    /// Four groups: of "a0" to "a2", "b0" and "b1", "c0" to "c2", "d0" and "d1".
    void showFour()
    {
        show({group({QStringLiteral("a0"), QStringLiteral("a1"), QStringLiteral("a2")}),
              group({QStringLiteral("b0"), QStringLiteral("b1")}),
              group({QStringLiteral("c0"), QStringLiteral("c1"), QStringLiteral("c2")}),
              group({QStringLiteral("d0"), QStringLiteral("d1")})});
    }

    /// `count` groups of three members: "0x", "0y" and "0z", and so on.
    void showTriples(int count)
    {
        std::vector<Group> triples;
        for (int i = 0; i < count; ++i)
            triples.push_back(group(
                {QStringLiteral("%1x").arg(i), QStringLiteral("%1y").arg(i), QStringLiteral("%1z").arg(i)}));
        show(std::move(triples));
    }

    void takeAway(size_t fromGroup, size_t member)
    {
        std::vector<Member> &members = groups[fromGroup].members;
        members.erase(members.begin() + static_cast<std::ptrdiff_t>(member));
    }
    void takeAway(size_t wholeGroup)
    {
        groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(wholeGroup));
    }

    QString text(int row, const QByteArray &role) const { return rowValue(&rows, row, role).toString(); }
    QString texts(const QByteArray &role) const { return columnTexts(&rows, role).join(u' '); }

    /// The rows that a signal of a change names: the first and the last.
    static std::pair<int, int> range(const QList<QVariant> &change)
    {
        return {change[0].toModelIndex().row(), change[1].toModelIndex().row()};
    }
};
