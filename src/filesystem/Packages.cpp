#include "filesystem/Packages.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

/// In the order of the alphabet. Lower case.
constexpr std::array<std::string_view, 34> endings = {
    "app",          "appex",         "bundle",       "component", "docset",       "fcpbundle",
    "framework",    "imovielibrary", "kext",         "key",       "logicx",       "mdimporter",
    "mpkg",         "musiclibrary",  "numbers",      "pages",     "photolibrary", "photoslibrary",
    "pkg",          "playground",    "plugin",       "prefpane",  "qlgenerator",  "rtfd",
    "saver",        "scptd",         "sparsebundle", "tvlibrary", "workflow",     "xcarchive",
    "xcdatamodeld", "xcodeproj",     "xcworkspace",  "xpc",
};
static_assert(std::is_sorted(endings.begin(), endings.end()));

} // namespace

namespace packages {

bool isPackage(QByteArrayView folderName)
{
    const qsizetype dot = folderName.lastIndexOf('.');
    if (dot <= 0 || folderName.size() - dot > 16)
        return false;
    const QByteArray ending = folderName.sliced(dot + 1).toByteArray().toLower();
    return std::binary_search(endings.begin(), endings.end(),
                              std::string_view(ending.constData(), static_cast<size_t>(ending.size())));
}

} // namespace packages
