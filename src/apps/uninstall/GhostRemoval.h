#pragma once

#include "apps/catalogue/AssociatedFile.h"
#include "platform/Locations.h"

#include <vector>

class FileSystemService;

/// How far a removal of ghosts' files has come. It tells what was tried: a file that stays is counted like one that goes. A
/// plain value.
struct GhostRemoval
{
    int count = 0;   ///< files
    qint64 size = 0; ///< bytes

    /// Moves those of `files` that are selected and still there to the Trash. Blocks; any thread. On the main one the event
    /// loop runs meanwhile.
    void remove(const std::vector<AssociatedFile> &files, const FileSystemService &fileSystem,
                const Locations &locations);
};
