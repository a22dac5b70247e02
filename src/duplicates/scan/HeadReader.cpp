#include "duplicates/scan/HeadReader.h"

#include "duplicates/scan/ContentPartition.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr size_t mostAhead = 32;           // files, while the disk is slow
constexpr qint64 slowReading = 50'000;     // ns; from memory it takes a tenth of it
constexpr int expectedAfterASlowOne = 256; // files

} // namespace

HeadReader::HeadReader(const FileTable &table, std::span<const Bucket> buckets)
    : table_(table)
    , buckets_(buckets)
    , file_(buckets.empty() ? 0 : buckets.front().first)
{
}

void HeadReader::expect(const Head &head) const
{
    if (head.reader.isOpen())
        head.reader.expect(0, ContentPartition::headLength(table_.files()[head.file].size));
}

void HeadReader::openAhead()
{
    const size_t wanted = isDiskSlow() ? mostAhead : 1;
    while (opened_.size() < wanted && !buckets_.empty()) {
        const FileTable::File &file = table_.files()[file_];
        // Not even opened is what the walk has seen to be a pipe or a device, where an opening alone has effects.
        opened_.push_back({static_cast<quint32>(file_), file.isRegular
                                                            ? files::FileReader(table_.nativePath(file))
                                                            : files::FileReader()});
        if (isDiskSlow())
            expect(opened_.back());
        if (++file_ < buckets_.front().second)
            continue;
        buckets_ = buckets_.subspan(1);
        file_ = buckets_.empty() ? 0 : buckets_.front().first;
    }
}

HeadReader::Head HeadReader::next()
{
    openAhead();
    Head head = std::move(opened_.front());
    opened_.pop_front();
    if (!head.reader.isOpen())
        return head;
    QElapsedTimer clock;
    clock.start();
    const qint64 length = ContentPartition::headLength(table_.files()[head.file].size);
    head.isRead = head.reader.read(0, length, head.content);
    // Advice costs a little for each file, and nothing is won by it where everything is in memory anyway.
    expecting_ = clock.nsecsElapsed() >= slowReading ? expectedAfterASlowOne : std::max(expecting_ - 1, 0);
    return head;
}
