#include "duplicates/scan/DuplicateScan.h"

#include "base/Files.h"
#include "base/Ids.h"
#include "base/Paths.h"
#include "duplicates/scan/ContentPartition.h"
#include "duplicates/scan/DuplicateWalk.h"
#include "duplicates/scan/HeadReader.h"

#include <algorithm>
#include <utility>

namespace duplicatescan {
namespace {

using Bucket = HeadReader::Bucket;

/// The sizes that more than one file has, the largest first, so that a run that is stopped has seen what is worth most.
std::vector<Bucket> bucketsOf(const FileTable &table)
{
    const std::vector<FileTable::File> &files = table.files();
    std::vector<Bucket> buckets;
    for (size_t first = 0, end = 0; first < files.size(); first = end) {
        while (end < files.size() && files[end].size == files[first].size)
            ++end;
        if (end - first > 1)
            buckets.emplace_back(first, end);
    }
    return buckets;
}

/// The date of the entry itself, which an open file does not tell of a link.
Date modificationDate(const FileTable::File &file, const ContentPartition::Member &member,
                      const QString &path)
{
    if (!file.isLink)
        return member.modified;
    const auto own = files::attributes(path);
    return own ? own->modified : dates::distantPast;
}

DuplicateFileGroup makeGroup(const FileTable &table, const ContentPartition::Class &equal,
                             const QSet<QString> &marked)
{
    DuplicateFileGroup group;
    group.id = ids::fresh();
    group.hash = equal.digest;
    group.files.reserve(equal.members.size());
    bool hasMarked = false;
    for (const ContentPartition::Member &member : equal.members) {
        const FileTable::File &file = table.files()[member.file];
        const QString path = paths::fromBytes(table.nativePath(file));
        group.size = file.size;
        group.files.push_back({ids::fresh(), paths::lastComponent(path), path,
                               modificationDate(file, member, path), group.files.empty()});
        hasMarked = hasMarked || marked.contains(path);
    }
    // Marks of an earlier result decide for the whole group, even where that leaves several copies.
    for (DuplicateFileEntry &entry : group.files)
        entry.keep = hasMarked ? !marked.contains(entry.path) : entry.keep;
    return group;
}

/// The second stage: the groups among the files of equal size, in the order of the buckets.
class Comparison
{
public:
    Comparison(const FileTable &table, const Request &request, const Hooks &hooks)
        : table_(table)
        , request_(request)
        , hooks_(hooks)
    {
    }

    Result run()
    {
        const std::vector<Bucket> buckets = bucketsOf(table_);
        HeadReader heads(table_, buckets, hooks_.isCancelled);
        for (size_t done = 0; done < buckets.size() && !hooks_.isCancelled();) {
            compare(buckets[done], heads);
            hooks_.bucketDone(++done, buckets.size());
        }
        result_.wasCancelled = hooks_.isCancelled();
        return std::move(result_);
    }

private:
    void compare(const Bucket &bucket, HeadReader &heads)
    {
        ContentPartition partition(table_, table_.files()[bucket.first].size, bucket.second - bucket.first,
                                   sha256_);
        for (size_t file = bucket.first; file < bucket.second && !hooks_.isCancelled(); ++file) {
            HeadReader::Head head = heads.next();
            if (!head.isRead || !partition.add(head.file, head.reader, head.content))
                ++result_.hashFailureCount;
        }
        result_.hashFailureCount += partition.lostFiles();
        for (const ContentPartition::Class &equal : partition.takeShared())
            result_.groups.push_back(makeGroup(table_, equal, request_.markedForDeletion));
    }

    const FileTable &table_;
    const Request &request_;
    const Hooks &hooks_;
    Sha256 sha256_;
    Result result_;
};

void sortByWaste(std::vector<DuplicateFileGroup> &groups)
{
    std::stable_sort(groups.begin(), groups.end(),
                     [](const DuplicateFileGroup &left, const DuplicateFileGroup &right) {
                         return left.wastedBytes() > right.wastedBytes();
                     });
}

} // namespace

Result run(const Request &request, const Hooks &hooks)
{
    // A run that has once seen that it is cancelled is, whatever becomes of the flag.
    bool isCancelled = false;
    Hooks own = hooks;
    own.isCancelled = [&] { return isCancelled = isCancelled || hooks.isCancelled(); };
    FileTable table;
    const DuplicateWalk::Hooks walkHooks{own.isCancelled, own.entered};
    DuplicateWalk walk(table, request.minFileSize, walkHooks);
    for (const QString &scanPath : request.scanPaths) {
        if (own.isCancelled())
            break;
        walk.run(scanPath, request.ignorePaths);
    }
    if (own.isCancelled())
        return {{}, 0, true, true};
    own.comparing();
    table.sortBySize();
    Result result = Comparison(table, request, own).run();
    sortByWaste(result.groups);
    return result;
}

} // namespace duplicatescan
