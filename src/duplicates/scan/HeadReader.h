#pragma once

#include "base/Files.h"
#include "duplicates/scan/FileTable.h"

#include <QByteArray>

#include <deque>
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

    /// Both outlive the reader.
    HeadReader(const FileTable &table, std::span<const Bucket> buckets);

    /// The next file in the order. To be called at most once for each file of the buckets. Blocks for as long as the disk
    /// does.
    Head next();

private:
    bool isDiskSlow() const { return expecting_ > 0; }
    void openAhead();
    void expect(const Head &head) const;

    const FileTable &table_;
    std::span<const Bucket> buckets_; // those not opened yet, the first from `file_` on
    size_t file_ = 0;
    std::deque<Head> opened_;
    int expecting_ = 0; // for so many more files the disk counts as slow
};
