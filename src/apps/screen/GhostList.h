#pragma once

#include "apps/ghosts/GhostApp.h"
#include "base/RecordListModel.h"

#include <vector>

/// The ghosts as the list shows them: those that the search leaves, in the order of the scan.
namespace ghostlist {

struct Row
{
    QUuid id;
    QString name;
    QString key;
    size_t fileCount = 0;
    qint64 totalSize = 0;
    bool looksInstalled = false;
    bool isTicked = false;
};

std::vector<Row> rows(const std::vector<GhostApp> &ghosts, const QString &search);

Row row(const GhostApp &ghost);

/// appName, bundleID, filesText, totalText, badgeText, badgeNote, looksInstalled, spokenText (what stands beside the name),
/// isTicked.
std::vector<RecordListModel<Row>::Role> roles();

/// What a ghost is tagged with, and what that means.
QString badgeText(bool looksInstalled);
QString badgeNote(bool looksInstalled);

/// What a removal of all groups that are ticked takes: the number of groups, and the bytes of their ticked files.
struct Pending
{
    int count = 0;
    qint64 size = 0;
    int looksInstalled = 0; ///< groups that may have an owner yet
};
Pending pending(const std::vector<GhostApp> &ghosts);

} // namespace ghostlist
