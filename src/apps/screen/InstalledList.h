#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "base/Clock.h"
#include "base/RecordListModel.h"

#include <QStringList>

#include <vector>

/// The installed applications as the list shows them: those that the search leaves, in the order of the reader's choice.
namespace installedlist {

enum class SortOption { name, size, lastUsed };

/// In the order in which they are offered.
const QStringList &sortLabels();

struct Row
{
    QUuid id;
    QString name;
    QString version;
    QString bundleID;
    QString path;
    std::optional<QString> icon;
    qint64 size = 0;
    qint64 totalSize = 0;
    std::optional<Date> lastUsed;
    bool isTicked = false;
};

/// Of all applications that `search` leaves, sorted; equal ones in the order of `apps`. An application without a date stands
/// behind all that have one.
std::vector<Row> rows(const std::vector<RealInstalledApp> &apps, const QString &search, SortOption sortBy);

Row row(const RealInstalledApp &app);

/// appName, versionText, bundleID, path, picture (a key; empty for none), sizeText (of the bundle), totalText, lastUsedText,
/// spokenText (what stands beside the name), isTicked.
std::vector<RecordListModel<Row>::Role> roles(const Clock &clock);

} // namespace installedlist
