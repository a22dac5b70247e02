#pragma once

#include "apps/catalogue/AssociatedFile.h"
#include "base/Date.h"
#include "base/Sums.h"

#include <QString>
#include <QUuid>

#include <optional>
#include <vector>

/// An installed application, as the last scan found it.
struct RealInstalledApp
{
    QUuid id; ///< fresh at each scan, so that a choice by it does not outlive the list
    QString name;
    QString version;  ///< "—" where it tells none
    qint64 size = 0;  ///< bytes of the bundle alone
    QString bundleID; ///< "unknown" where it has none
    QString path;     ///< absolute, of the bundle
    /// A key for whoever draws it: the absolute path of its picture, which need not exist. None where it tells none.
    std::optional<QString> icon;
    /// When the bundle was last modified, which is as close as this comes: nothing here keeps a record of use.
    std::optional<Date> lastUsed;
    qint64 cacheSize = 0; ///< bytes, like the next three, of its associated files
    qint64 preferencesSize = 0;
    qint64 supportSize = 0;
    qint64 containerSize = 0;
    std::vector<AssociatedFile> associatedFiles; ///< those of "Other" are in none of the four sizes
    bool selected = false;                       ///< the user's choice

    /// Bytes of the bundle and the four sizes; associated files of "Other" are not in it.
    qint64 totalSize() const
    {
        qint64 total = size;
        for (const qint64 part : {cacheSize, preferencesSize, supportSize, containerSize})
            total = sums::saturated(total, part);
        return total;
    }

    bool operator==(const RealInstalledApp &) const = default;
};
