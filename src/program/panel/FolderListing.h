#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// What the program's own panel lists of a folder.
namespace folderlisting {

struct Entry
{
    QString name;
    bool isFolder = false; ///< also where it is a link to one

    bool operator==(const Entry &) const = default;
};

struct Listing
{
    std::vector<Entry> entries;
    bool isCutShort = false; ///< the disk failed before all were read

    bool operator==(const Listing &) const = default;
};

struct Wish
{
    QString folder;
    bool showsHidden = false;
    bool withFiles = false;
};

/// The entries wished for, folders ahead of files, each in the order of the current locale; none where the folder can't be
/// listed, or not one of them read. Where a link leads is asked of another disk, which may never answer, so a folder with links tells what else is
/// in it ahead through `withoutLinks`. Empty as soon as `isUnwanted`. Any thread.
std::optional<Listing> list(const Wish &wish, const std::function<void(Listing)> &withoutLinks,
                            const std::function<bool()> &isUnwanted);

} // namespace folderlisting
