#pragma once

#include "support/TempHome.h"

/// Files for the duplicate finder, of real content.
namespace equalfiles {

/// Four groups in the folders a, b and c below `folder`, and one of files too small to count at first:
/// photo (3 × 300 KB, of 600 KB waste), film (3 × 120 KB), report (2 × 200 KB), plain (2 × 150 KB) and note (2 × 5 KB);
/// and one file that is like no other. Scanned in the order of the folders, the first of each group is in a.
void fill(const TempHome &home, const QString &folder);

/// Four groups below `folder`, of which some have one file by two ways: "way" is a link to the folder a, where photo.jpg
/// (300 KB) and film.mov (120 KB) are; linked.bin (200 KB) in b has a hard link in c; plain.pdf (150 KB) is in b and c.
void fillWays(const TempHome &home, const QString &folder);

/// As many groups of three files of 1 KB each in one folder, of which one is older than the others.
void fillTriples(const TempHome &home, const QString &folder, int triples);

/// As many pairs of 1 KB each in one folder.
void fillPairs(const TempHome &home, const QString &folder, int pairs);

} // namespace equalfiles
