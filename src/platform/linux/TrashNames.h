#pragma once

#include <QLatin1StringView>

/// What is called how in a Trash, by freedesktop.org's rules for a trash can.
namespace trashnames {

inline constexpr QLatin1StringView items{"files"};
inline constexpr QLatin1StringView notes{"info"};
inline constexpr QLatin1StringView noteSuffix{".trashinfo"};
inline constexpr QLatin1StringView sizes{
    "directorysizes"}; ///< of the folders among the items, for the desktop

} // namespace trashnames
