#pragma once

#include <QUuid>

/// Identifiers of records.
namespace ids {

/// A random identifier (version 4 of RFC 4122). QUuid's own function asks the system or the processor for each, which
/// takes longer than reading the attributes of the entry that it is for. Any thread.
QUuid fresh();

} // namespace ids
