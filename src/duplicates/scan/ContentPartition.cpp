#include "duplicates/scan/ContentPartition.h"

#include "base/Files.h"

#include <QRandomGenerator>
#include <QtEndian>

#include <algorithm>
#include <utility>

#include <xxhash.h>

namespace {

/// Beyond this, contents are read a second time where one of them turns up again.
constexpr qsizetype mostKept = 4 << 20; // bytes, of all contents of one size

/// Files of one size up to which all their heads are kept: 4 MiB of them, 8 for large files.
constexpr size_t mostHeadsKept = 1024;

/// Only to find candidates: what decides is the content. Seeded, so that nobody can prepare files that all collide.
size_t hashOf(QByteArrayView content)
{
    static const quint64 seed = QRandomGenerator::system()->generate64();
    return XXH3_64bits_withSeed(content.data(), static_cast<size_t>(content.size()), seed);
}

} // namespace

ContentPartition::ContentPartition(const FileTable &table, qint64 size, size_t count, Sha256 &sha256)
    : table_(table)
    , size_(size)
    , keepsHeads_(count <= mostHeadsKept)
    , sha256_(sha256)
{
}

qint64 ContentPartition::headLength(qint64 size)
{
    return size > largestReadWhole ? sampleSize : std::min(size, headSize);
}

/// All that is compared of a file.
bool ContentPartition::readAll(const files::FileReader &reader, QByteArray &content) const
{
    return reader.isOpen() && reader.read(0, headLength(size_), content)
           && (isWholeInHead() || readOn(reader, content));
}

/// From the head to the end of what is compared. A file that has shrunk gives less, which is its content then.
bool ContentPartition::readOn(const files::FileReader &reader, QByteArray &content) const
{
    if (size_ <= largestReadWhole)
        return reader.read(headLength(size_), size_ - headLength(size_), content);
    if (!reader.read(size_ - sampleSize, sampleSize, content))
        return false;
    const qint64 littleEndianSize = qToLittleEndian(size_);
    content.append(reinterpret_cast<const char *>(&littleEndianSize), sizeof littleEndianSize);
    return true;
}

bool ContentPartition::add(quint32 file, const files::FileReader &reader, QByteArray head)
{
    const Member member{file, reader.modified()};
    if (isWholeInHead()) {
        addContent(member, head);
        return true;
    }
    const size_t key = headKey(head);
    Head *known = knownHead(key, head);
    if (!known) {
        heads_.emplace(key, Head{member, keepsHeads_ ? head : QByteArray()});
        return true;
    }
    addFirst(*known);
    if (!readOn(reader, head))
        return false;
    addContent(member, head);
    return true;
}

/// By what a head is looked up. Where heads are kept the bytes decide, and a glance at both ends finds candidates well
/// enough; else nothing but the key is known of a head.
size_t ContentPartition::headKey(const QByteArray &head) const
{
    constexpr qsizetype glance = 64; // bytes
    if (!keepsHeads_ || head.size() <= 2 * glance)
        return hashOf(head);
    const QByteArrayView bytes = head;
    return hashOf(bytes.first(glance)) ^ (hashOf(bytes.last(glance)) << 1U);
}

/// The head of those that begin so; null while there is none.
ContentPartition::Head *ContentPartition::knownHead(size_t key, const QByteArray &head)
{
    const auto [first, end] = heads_.equal_range(key);
    const auto known = std::find_if(
        first, end, [&](const auto &entry) { return !keepsHeads_ || entry.second.kept == head; });
    return known == end ? nullptr : &known->second;
}

/// Reads the rest of the first file of a head, now that a second one begins like it.
void ContentPartition::addFirst(Head &head)
{
    if (std::exchange(head.isFirstAdded, true))
        return;
    const files::FileReader reader(table_.nativePath(table_.files()[head.first.file]));
    QByteArray content = head.kept;
    if (keepsHeads_ ? reader.isOpen() && readOn(reader, content) : readAll(reader, content))
        addContent({head.first.file, reader.modified()}, content);
    else
        ++lostFiles_;
}

void ContentPartition::addContent(const Member &member, const QByteArray &content)
{
    const size_t hash = isWholeInHead() ? headKey(content) : hashOf(content);
    if (Content *known = equalContent(hash, content)) {
        if (known->equal.members.size() == 1)
            known->equal.digest = sha256_.hex(content);
        known->equal.members.push_back(member);
        return;
    }
    Content made;
    made.equal.members.push_back(member);
    made.length = content.size();
    made.kept = keptIfRoom(content);
    const auto index = static_cast<qsizetype>(contents_.size());
    const auto [first, isNew] = firstOfHash_.try_emplace(hash, index);
    if (!isNew)
        made.next = std::exchange(first->second, index);
    contents_.push_back(std::move(made));
}

ContentPartition::Content *ContentPartition::equalContent(size_t hash, const QByteArray &content)
{
    const auto first = firstOfHash_.find(hash);
    for (qsizetype i = first == firstOfHash_.end() ? -1 : first->second; i != -1;) {
        Content &known = contents_[static_cast<size_t>(i)];
        if (holds(known, content))
            return &known;
        i = known.next;
    }
    return nullptr;
}

/// Whether these bytes are the content of that class. One that was not kept is read again from its first member; should
/// that have changed since, the bytes count as another content.
bool ContentPartition::holds(const Content &known, const QByteArray &content)
{
    if (known.length != content.size())
        return false;
    if (known.kept)
        return *known.kept == content;
    const quint32 file = known.equal.members.front().file;
    const files::FileReader reader(table_.nativePath(table_.files()[file]));
    QByteArray again;
    return readAll(reader, again) && again == content;
}

/// The content where it still fits into what may be kept, and counts it there.
std::optional<QByteArray> ContentPartition::keptIfRoom(const QByteArray &content)
{
    if (keptBytes_ + content.size() > mostKept)
        return std::nullopt;
    keptBytes_ += content.size();
    return content;
}

std::vector<ContentPartition::Class> ContentPartition::takeShared()
{
    std::vector<Class> shared;
    for (Content &content : contents_) {
        if (content.equal.members.size() > 1)
            shared.push_back(std::move(content.equal));
    }
    return shared;
}
