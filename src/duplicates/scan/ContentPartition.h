#pragma once

#include "base/Date.h"
#include "base/Sha256.h"
#include "duplicates/scan/FileTable.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <unordered_map>
#include <vector>

namespace files {
class FileReader;
}

/// The second stage of a duplicate scan, for the files of one size: which of them are equal.
///
/// What is compared is a file's digest, SHA-256 over the whole content of a file of at most 1 MiB, and over the first and
/// last 8 KiB and the size of a larger one. It is reached with less: a file whose beginning no other has is read no
/// further, contents are told apart in memory, and only one that at least two files share is digested, once. Files may be
/// rewritten meanwhile: what is compared is always read in one go, never put together out of what two moments gave.
class ContentPartition
{
public:
    static constexpr qint64 largestReadWhole = 1 << 20; ///< bytes, inclusive
    static constexpr qint64 sampleSize = 8192;          ///< bytes, from each end of a larger file
    static constexpr qint64 headSize = 4096;            ///< bytes that decide whether a file is read on

    struct Member
    {
        quint32 file = 0; ///< index in the table
        Date modified = dates::distantPast;
    };

    /// Files of equal content, in the order in which they were added.
    struct Class
    {
        QString digest; ///< empty while there is one member
        std::vector<Member> members;
    };

    /// For `count` files of `size` bytes out of `table`. Table and digest outlive it.
    ContentPartition(const FileTable &table, qint64 size, size_t count, Sha256 &sha256);

    /// Appends the head of a file of `size` bytes: what decides whether it is read on. Of a file larger than `largestReadWhole`
    /// it is all that is compared. A file that has shrunk gives less. False when it can't be read.
    static bool readHead(const files::FileReader &reader, qint64 size, QByteArray &head);

    /// Lets the disk begin to fetch it.
    static void expectHead(const files::FileReader &reader, qint64 size);

    /// Puts the file with that index in the table to those that are equal to it, reading on from its head where another
    /// begins alike. False when it can't be read. Blocks for as long as the disk does.
    bool add(quint32 file, const files::FileReader &reader, const QByteArray &head);

    /// How many files that were read once could not be read a second time, or began otherwise by then.
    int lostFiles() const { return lostFiles_; }

    /// Those with two members or more, in the order in which their first members were read whole, which is not that in
    /// which they were added. To be called once, at the end.
    std::vector<Class> takeShared();

private:
    /// The files that begin alike; of the first one nothing more is known until there is a second.
    struct Head
    {
        Member first;
        QByteArray kept; ///< how they begin, where the beginnings are kept
        bool isFirstAdded = false;
    };

    /// The class, and its content as long as there is room for it.
    struct Content
    {
        Class equal;
        qsizetype length = 0;
        std::optional<QByteArray> kept;
        qsizetype next = -1; ///< the next one of the same hash; -1 for none
        bool isLost = false; ///< not kept, and its only file has changed
    };

    bool isWholeInHead() const { return size_ <= headSize || size_ > largestReadWhole; }
    size_t contentKey(const QByteArray &content) const;
    size_t headKey(const QByteArray &head) const;
    Head *knownHead(size_t key, const QByteArray &head);
    bool readAll(const files::FileReader &reader, QByteArray &content) const;
    bool readAgain(const files::FileReader &reader, const QByteArray &head, QByteArray &content) const;
    void addFirst(Head &known, const QByteArray &head);
    void addContent(const Member &member, const QByteArray &content);
    Content *equalContent(size_t hash, const QByteArray &content);
    bool holds(Content &known, const QByteArray &content);
    std::optional<QByteArray> keptIfRoom(const QByteArray &content);

    const FileTable &table_;
    const qint64 size_;
    const bool keepsHeads_; ///< there are so few files that how each of them begins can stay in memory
    const bool hashes_;     ///< there are so many files that heads and contents are looked up by their hashes
    Sha256 &sha256_;
    std::unordered_multimap<size_t, Head> heads_;       // by key
    std::unordered_map<size_t, qsizetype> firstOfHash_; // index in contents_
    std::vector<Content> contents_;
    qsizetype keptBytes_ = 0;
    int lostFiles_ = 0;
};
