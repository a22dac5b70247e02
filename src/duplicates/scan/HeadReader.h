#pragma once

#include "base/Files.h"
#include "duplicates/scan/FileTable.h"

#include <QByteArray>

#include <deque>
#include <functional>
#include <span>
#include <utility>
#include <vector>

/// Opens the files of all buckets in their order, and reads how they begin. When the disk turns out to be slow, it opens
/// some ahead of their turn and lets the disk fetch their beginnings meanwhile: asked for one file after the other, the disk
/// would stand idle most of the time.
class HeadReader
{
public:
    /// Files of one size in the table: the first and the one behind the last.
    using Bucket = std::pair<size_t, size_t>;

    struct Head
    {
        quint32 file = 0; ///< index in the table
        files::FileReader reader;
        bool isRead = false; ///< false where it can't be opened or read, or is no regular file
        QByteArray content = {};
    };

    /// Nanoseconds of a clock that no one sets.
    using Clock = std::function<qint64()>;

    /// The first three outlive the reader. `isCancelled` is asked before each file that is opened ahead of its turn.
    HeadReader(const FileTable &table, std::span<const Bucket> buckets,
               const std::function<bool()> &isCancelled, Clock clock = steadyClock());

    /// The next file in the order, whose turn it is, so that the flag is not asked again. To be called at most once for each file of the buckets. Blocks for as long as the disk
    /// does.
    Head next();

private:
    bool isDiskSlow() const { return expecting_ > 0; }
    static Clock steadyClock();
    bool isNextToBeOpened() const;
    void openNext();

    const FileTable &table_;
    std::span<const Bucket> buckets_; // those not opened yet, the first from `file_` on
    size_t file_ = 0;
    const std::function<bool()> &isCancelled_;
    const Clock clock_;
    std::deque<Head> opened_;
    int expecting_ = 0; // for so many more files the disk counts as slow
};
