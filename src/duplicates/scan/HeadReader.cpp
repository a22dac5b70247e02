#include "duplicates/scan/HeadReader.h"

#include "duplicates/scan/ContentPartition.h"

#include <algorithm>
#include <chrono>

namespace {

constexpr size_t mostAhead = 32;           // files, while the disk is slow
constexpr qint64 slowReading = 50'000;     // ns; from memory it takes a tenth of it
constexpr int expectedAfterASlowOne = 256; // files

} // namespace

HeadReader::HeadReader(const FileTable &table, std::span<const Bucket> buckets,
                       const std::function<bool()> &isCancelled, Clock clock)
    : table_(table)
    , buckets_(buckets)
    , file_(buckets.empty() ? 0 : buckets.front().first)
    , isCancelled_(isCancelled)
    , clock_(std::move(clock))
{
}

HeadReader::Clock HeadReader::steadyClock()
{
    return
        [] { return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count(); };
}

/// The file whose turn it is, and while the disk is slow those behind it.
bool HeadReader::isNextToBeOpened() const
{
    if (buckets_.empty())
        return false;
    return opened_.empty() || (isDiskSlow() && opened_.size() < mostAhead && !isCancelled_());
}

void HeadReader::openNext()
{
    const FileTable::File &file = table_.files()[file_];
    // Not even opened is what the walk has seen to be a pipe or a device, where an opening alone has effects.
    opened_.push_back({static_cast<quint32>(file_),
                       file.isRegular ? files::FileReader(table_.nativePath(file)) : files::FileReader()});
    if (isDiskSlow() && opened_.back().reader.isOpen())
        ContentPartition::expectHead(opened_.back().reader, file.size);
    if (++file_ < buckets_.front().second)
        return;
    buckets_ = buckets_.subspan(1);
    file_ = buckets_.empty() ? 0 : buckets_.front().first;
}

HeadReader::Head HeadReader::next()
{
    while (isNextToBeOpened())
        openNext();
    Head head = std::move(opened_.front());
    opened_.pop_front();
    if (!head.reader.isOpen())
        return head;
    const qint64 start = clock_();
    head.isRead = ContentPartition::readHead(head.reader, table_.files()[head.file].size, head.content);
    // Advice costs a little for each file, and nothing is won by it where everything is in memory anyway.
    expecting_ = clock_() - start >= slowReading ? expectedAfterASlowOne : std::max(expecting_ - 1, 0);
    return head;
}
