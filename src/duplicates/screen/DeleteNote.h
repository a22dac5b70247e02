#pragma once

#include "duplicates/DuplicateFileGroup.h"
#include "duplicates/PathLists.h"

#include <QString>

#include <functional>
#include <vector>

/// What a user should know before a delete run, beyond the number and the size of the files on view that go.
struct DeleteNote
{
    qint64 hiddenFiles = 0;   ///< go, though the filter hides them
    qint64 lostGroups = 0;    ///< no file of them stays
    qint64 keptOtherwise = 0; ///< files that go and are the very file that is kept, reached another way

    /// A sentence for each count above 0; empty where there is none.
    QString text() const;
};

/// What a delete note is made from.
namespace deletenotes {

/// What the groups tell by themselves. `shown` are those that pass the filter, by index, in rising order; a run takes the
/// others too.
DeleteNote fromGroups(const std::vector<DuplicateFileGroup> &groups, const std::vector<size_t> &shown);

/// Of each group of which some files stay and others go two lists: those that go, then those that stay.
PathLists choices(const std::vector<DuplicateFileGroup> &groups);

/// How many of the files that go are the very file that is kept. Blocks for as long as the disk does; what it counted so
/// far where `isUnwanted` comes true. Any thread.
qint64 countOfKept(const PathLists &choices, const std::function<bool()> &isUnwanted);

} // namespace deletenotes
