#pragma once

#include "Verb.h"

#include <array>
#include <limits>
#include <vector>

/// The groups of verbs, a source file each. A new one is declared here and stands in `groups`.
namespace verbs {

inline constexpr qsizetype anyNumber = std::numeric_limits<qsizetype>::max();

std::vector<Verb> ofFiles();      ///< folders and trees
std::vector<Verb> ofDisk();       ///< sizes of the user's main folders, and the map
std::vector<Verb> ofDuplicates(); ///< files of equal content
std::vector<Verb> ofCleanup();    ///< what can be cleaned
std::vector<Verb> ofApps();       ///< installed applications
std::vector<Verb> ofGhosts();     ///< what gone applications have left behind
std::vector<Verb> ofExports();    ///< both as files for a spreadsheet
std::vector<Verb> ofTexts();      ///< formatters and settings

/// In the order in which the help lists them.
inline constexpr std::array groups = {ofFiles, ofDisk,   ofDuplicates, ofCleanup,
                                      ofApps,  ofGhosts, ofExports,    ofTexts};

} // namespace verbs
