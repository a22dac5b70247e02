#pragma once

#include "base/Paths.h"
#include "duplicates/screen/DuplicateRows.h"
#include "support/LocaleGuard.h"
#include "support/Rows.h"

#include <QAbstractItemModelTester>

#include <utility>
#include <vector>

#include <gtest/gtest.h>

/// The list of the Duplicate Finder over groups that a test makes and changes.
struct ShownGroups : public testing::Test
{
    const LocaleGuard reader;
    std::vector<DuplicateFileGroup> groups;
    QHash<QUuid, samefile::Kind> kinds; ///< what is known of groups
    DuplicateRows rows{groups, QStringLiteral("/home/ada"),
                       [this](const QUuid &group) { return kinds.value(group, samefile::Kind::none); }};
    const QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};

    /// Equal files of that size, of March 1, 2026, 9:30 UTC.
    static DuplicateFileGroup group(qint64 size, const QStringList &files)
    {
        DuplicateFileGroup made;
        made.id = QUuid::createUuid();
        made.size = size;
        for (const QString &path : files)
            made.files.push_back({QUuid::createUuid(), paths::lastComponent(path), path,
                                  dates::fromUnix(1772357400, 0), true});
        return made;
    }

    /// Takes these groups, and shows them all.
    void show(std::vector<DuplicateFileGroup> taken)
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

    QString text(int row, const QByteArray &role) const { return rowValue(&rows, row, role).toString(); }
    QString texts(const QByteArray &role) const { return columnTexts(&rows, role).join(u' '); }

    /// The rows that a signal of a change names: the first and the last.
    static std::pair<int, int> range(const QList<QVariant> &change)
    {
        return {change[0].toModelIndex().row(), change[1].toModelIndex().row()};
    }
};
