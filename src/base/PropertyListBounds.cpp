#include "base/PropertyListBounds.h"

#include <QByteArray>

#include <algorithm>
#include <vector>

namespace {

using namespace propertylistbounds;

/// The structure of a binary list: eight bytes of head, objects, a table of their offsets, and a trailer of 32 bytes.
class Binary
{
public:
    explicit Binary(QByteArrayView content)
        : content_(content)
    {
    }

    /// Goes through all that the root refers to, as the library does, and gives up at the bounds. A circle comes to the
    /// deepest level.
    bool isModest()
    {
        if (!readTrailer())
            return false;
        waiting_.push_back({root_, 0});
        for (qsizetype visited = 0; !waiting_.empty(); ++visited) {
            const Visit next = waiting_.back();
            waiting_.pop_back();
            if (next.depth > deepest || visited > mostObjects || !visit(next))
                return false;
        }
        return true;
    }

private:
    struct Visit
    {
        quint64 object = 0;
        int depth = 0;
    };

    static constexpr quint64 headSize = 8;
    static constexpr quint64 trailerSize = 32;

    quint64 byteAt(quint64 place) const
    {
        return static_cast<uchar>(content_[static_cast<qsizetype>(place)]);
    }

    quint64 numberAt(quint64 place, quint64 size) const
    {
        quint64 number = 0;
        for (quint64 i = 0; i < size; ++i)
            number = number << 8 | byteAt(place + i);
        return number;
    }

    bool readTrailer()
    {
        const auto size = static_cast<quint64>(content_.size());
        if (size < headSize + trailerSize)
            return false;
        const quint64 trailer = size - trailerSize;
        offsetSize_ = byteAt(trailer + 6);
        referenceSize_ = byteAt(trailer + 7);
        objects_ = numberAt(trailer + 8, 8);
        root_ = numberAt(trailer + 16, 8);
        table_ = numberAt(trailer + 24, 8);
        return offsetSize_ >= 1 && offsetSize_ <= 8 && referenceSize_ >= 1 && referenceSize_ <= 8
               && table_ > headSize && table_ < trailer && objects_ <= (trailer - table_) / offsetSize_;
    }

    bool visit(const Visit &next)
    {
        if (next.object >= objects_)
            return false;
        const quint64 offset = numberAt(table_ + next.object * offsetSize_, offsetSize_);
        if (offset < headSize || offset >= table_)
            return false;
        const quint64 kind = byteAt(offset) >> 4;
        if (kind <= 3 || kind == 8) // numbers, dates and the like: a few bytes
            return true;
        quint64 place = offset + 1;
        quint64 count = byteAt(offset) & 0xf;
        if (count == 0xf && !readLongCount(place, count))
            return false;
        switch (kind) {
        case 4: // data
        case 5: // text of single bytes
            return takeBytes(place, count, 1);
        case 6: // text of pairs of bytes
            return takeBytes(place, count, 2);
        case 0xa: // array
        case 0xc: // set
            return takeReferences(place, count, next.depth);
        case 0xd: // dictionary: its keys, then its values
            return count <= table_ && takeReferences(place, 2 * count, next.depth);
        default:
            return false;
        }
    }

    /// A count from 15 on, an integer object of its own.
    bool readLongCount(quint64 &place, quint64 &count) const
    {
        if (place >= table_ || byteAt(place) >> 4 != 1 || (byteAt(place) & 0xf) > 3)
            return false;
        const quint64 size = quint64(1) << (byteAt(place) & 0xf);
        if (size > table_ - place - 1)
            return false;
        count = numberAt(place + 1, size);
        place += 1 + size;
        return true;
    }

    bool takeBytes(quint64 place, quint64 count, quint64 size)
    {
        if (place > table_ || count > (table_ - place) / size)
            return false;
        bytes_ += static_cast<qint64>(count * size);
        return bytes_ <= mostBytes;
    }

    bool takeReferences(quint64 place, quint64 count, int depth)
    {
        if (place > table_ || count > (table_ - place) / referenceSize_
            || count + waiting_.size() > static_cast<quint64>(mostObjects))
            return false;
        for (quint64 i = 0; i < count; ++i)
            waiting_.push_back({numberAt(place + i * referenceSize_, referenceSize_), depth + 1});
        return true;
    }

    const QByteArrayView content_;
    quint64 offsetSize_ = 0;
    quint64 referenceSize_ = 0;
    quint64 objects_ = 0;
    quint64 root_ = 0;
    quint64 table_ = 0;
    qint64 bytes_ = 0;
    std::vector<Visit> waiting_;
};

/// The elements of an XML list, as far as their nesting goes.
class Xml
{
public:
    explicit Xml(QByteArrayView content)
        : content_(content)
    {
    }

    bool isModest()
    {
        qsizetype tags = 0;
        while ((place_ = content_.indexOf('<', place_)) >= 0) {
            const bool isPassed = passOver("<!--", "-->", true) || passOver("<![CDATA[", "]]>", false);
            if (!isPassed && !takeTag())
                return false;
            if (depth_ > deepest || ++tags > mostObjects)
                return false;
        }
        return true;
    }

private:
    bool isAt(QByteArrayView text) const { return content_.sliced(place_).startsWith(text); }

    /// Passes over what is no element. One that may hold no element's beginning, and does, is taken for a tag, which it
    /// isn't.
    bool passOver(QByteArrayView begin, QByteArrayView end, bool mayHoldTags)
    {
        if (!isAt(begin))
            return false;
        const qsizetype inside = place_ + begin.size();
        const qsizetype found = content_.indexOf(end, inside);
        if (found < 0 || (!mayHoldTags && content_.sliced(inside, found - inside).contains('<')))
            return false;
        place_ = found + end.size();
        return true;
    }

    bool takeTag()
    {
        const qsizetype end = content_.indexOf('>', place_);
        if (end < 0)
            return false;
        const QByteArrayView tag = content_.sliced(place_ + 1, end - place_ - 1);
        place_ = end + 1;
        const bool isPlain =
            !tag.startsWith('!') && !tag.startsWith('?') && !tag.contains('"') && !tag.contains('\'');
        if (!isPlain)
            return depth_ == 0 && !tag.contains('['); // the list's own head
        if (tag.startsWith('/')) {
            if (isContainer(tag.sliced(1)))
                depth_ = std::max(depth_ - 1, 0);
        } else if (!tag.endsWith('/') && isContainer(tag)) {
            ++depth_;
        }
        return true;
    }

    static bool isContainer(QByteArrayView tag)
    {
        const QByteArrayView name = tag.trimmed();
        return name.startsWith("dict") || name.startsWith("array");
    }

    const QByteArrayView content_;
    qsizetype place_ = 0;
    int depth_ = 0;
};

} // namespace

namespace propertylistbounds {

bool areKeptByBinary(QByteArrayView content)
{
    return Binary(content).isModest();
}

bool areKeptByXml(QByteArrayView content)
{
    return Xml(content).isModest();
}

} // namespace propertylistbounds
