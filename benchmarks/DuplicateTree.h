#pragma once

#include "PlantedTree.h"
#include "TreeShape.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// What a home is like in which some files are equal. Of the tree's own shape the sizes are those of the files up to 1 MiB.
struct DuplicateTreeShape
{
    std::string name; ///< what the lines of its figures begin with
    TreeShape tree;
    size_t largePerMille = 0;       ///< contents above 1 MiB, in a thousand
    std::int64_t largestBeyond = 0; ///< bytes that such a content has at most beyond 1 MiB
    size_t groupEvery = 0;          ///< one content in so many has two copies or more
    size_t mostCopies = 0;
    size_t linkEvery = 0; ///< one copy in so many is a hard link to another; 0 for none

    /// The homes that are measured, the usual one first.
    static const DuplicateTreeShape &usual();
    static const DuplicateTreeShape &deep();
};

/// Fills an empty folder with such a home. One file in twenty is hidden or in a folder that a scan ignores, and some begin
/// like another of their size. Files are equal only where that is meant. The same shape gives the same tree, byte for
/// byte. Throws std::system_error.
PlantedTree generateDuplicateTree(const std::string &home, const DuplicateTreeShape &shape);
