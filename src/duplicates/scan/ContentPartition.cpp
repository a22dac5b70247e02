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

/// So few files are compared with one another at once; to look them up by hashes would take longer.
constexpr size_t mostComparedAtOnce = 8;

/// All that is compared of a file of that size, in bytes.
qint64 comparedLength(qint64 size)
{
    return size > ContentPartition::largestReadWhole ? 2 * ContentPartition::sampleSize + qint64(sizeof size)
                                                     : size;
}

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
    , hashes_(count > mostComparedAtOnce || static_cast<qint64>(count) * comparedLength(size) > mostKept)
    , sha256_(sha256)
{
}

bool ContentPartition::readHead(const files::FileReader &reader, qint64 size, QByteArray &head)
{
    if (size <= largestReadWhole)
        return reader.read(0, std::min(size, headSize), head);
    if (!reader.read(0, sampleSize, head) || !reader.read(size - sampleSize, sampleSize, head))
        return false;
    const qint64 littleEndianSize = qToLittleEndian(size);
    head.append(reinterpret_cast<const char *>(&littleEndianSize), sizeof littleEndianSize);
    return true;
}

void ContentPartition::expectHead(const files::FileReader &reader, qint64 size)
{
    reader.expect(0, size <= largestReadWhole ? std::min(size, headSize) : sampleSize);
    if (size > largestReadWhole)
        reader.expect(size - sampleSize, sampleSize);
}

/// All that is compared of a file, out of one opening.
bool ContentPartition::readAll(const files::FileReader &reader, QByteArray &content) const
{
    return reader.isOpen()
           && (isWholeInHead() ? readHead(reader, size_, content) : reader.read(0, size_, content));
}

/// The same of a file whose head is known, once more from its beginning and in one read: a head of one moment and a rest
/// of another may be the parts of two contents. False as well when it begins otherwise by now.
bool ContentPartition::readAgain(const files::FileReader &reader, const QByteArray &head,
                                 QByteArray &content) const
{
    return readAll(reader, content)
           && QByteArrayView(content).first(std::min<qsizetype>(content.size(), headSize)) == head;
}

bool ContentPartition::add(quint32 file, const files::FileReader &reader, const QByteArray &head)
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
    addFirst(*known, head);
    QByteArray content;
    if (!readAgain(reader, head, content))
        return false;
    addContent(member, content);
    return true;
}

/// By what a content is looked up; without hashes they are all kept, and looked at one by one.
size_t ContentPartition::contentKey(const QByteArray &content) const
{
    return hashes_ ? hashOf(content) : 0;
}

/// By what a head is looked up. Where heads are kept the bytes decide, and a glance at both ends finds candidates well
/// enough; else nothing but the key is known of a head.
size_t ContentPartition::headKey(const QByteArray &head) const
{
    constexpr qsizetype glance = 64; // bytes
    if (!hashes_)
        return 0;
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

/// Reads the first file of a head whole, now that a second one begins like it.
void ContentPartition::addFirst(Head &known, const QByteArray &head)
{
    if (std::exchange(known.isFirstAdded, true))
        return;
    const quint32 file = known.first.file;
    const files::FileReader reader(table_.nativePath(table_.files()[file]));
    QByteArray content;
    if (readAgain(reader, head, content))
        addContent({file, reader.modified()}, content);
    else
        ++lostFiles_;
}

void ContentPartition::addContent(const Member &member, const QByteArray &content)
{
    const size_t hash = size_ <= headSize ? headKey(content) : contentKey(content);
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

/// Whether these bytes, whose hash is that of the class, are its content. One that was not kept is read again from its
/// first member. Should that have changed since, the digest decides; where there is none yet, nothing is left of that
/// content, and the file is left out.
bool ContentPartition::holds(Content &known, const QByteArray &content)
{
    if (known.length != content.size() || known.isLost)
        return false;
    if (known.kept)
        return *known.kept == content;
    const FileTable::File &file = table_.files()[known.equal.members.front().file];
    const files::FileReader reader(table_.nativePath(file));
    QByteArray again;
    if (readAll(reader, again) && again == content)
        return true;
    if (known.equal.members.size() > 1)
        return known.equal.digest == sha256_.hex(content);
    known.isLost = true;
    ++lostFiles_;
    return false;
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
