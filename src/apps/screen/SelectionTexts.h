#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "apps/screen/GhostList.h"

#include <QString>

#include <vector>

/// What the App Manager says of the applications and ghosts that are ticked: in its selection bars, and in the questions
/// before they go.
namespace selectiontexts {

struct SelectedApps
{
    int count = 0;
    qint64 total = 0; ///< bytes, with their associated files
};

SelectedApps selected(const std::vector<RealInstalledApp> &apps);

QString bar(const SelectedApps &apps);
QString button(const SelectedApps &apps);
QString title(const SelectedApps &apps); ///< of the question
QString question(const SelectedApps &apps);

QString bar(const ghostlist::Pending &ghosts);
QString button(const ghostlist::Pending &ghosts);
QString title(const ghostlist::Pending &ghosts);
QString question(const ghostlist::Pending &ghosts);

} // namespace selectiontexts
