#pragma once

#include "platform/Workspace.h"

#include <QVariant>

/// Kinds of files as the desktop's portal for panels is told of them.
namespace panelfilter {

/// The value of its option "filters", of the signature a(sa(us)). Not for `FileType::any`, which needs none.
QVariant of(Workspace::FileType type);

} // namespace panelfilter
