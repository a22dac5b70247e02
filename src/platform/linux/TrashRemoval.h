#pragma once

#include <QString>
#include <QStringList>

/// What goes from the Trash for good.
namespace trashremoval {

/// As told of Recycler::removeForGood.
void remove(const QStringList &items, const QString &trash);

} // namespace trashremoval
