#include "apps/ghosts/WordParts.h"

namespace {

constexpr qsizetype tripleSize = 3;

quint64 tripleAt(QStringView text, qsizetype place)
{
    quint64 triple = 0;
    for (const QChar unit : text.sliced(place, tripleSize))
        triple = triple << 16 | unit.unicode();
    return triple;
}

} // namespace

void WordParts::add(const QString &word)
{
    words_ += word + QChar::Null;
    for (qsizetype place = 0; place + tripleSize <= word.size(); ++place)
        triples_.insert(tripleAt(word, place));
}

bool WordParts::contains(QStringView text) const
{
    for (qsizetype place = 0; place + tripleSize <= text.size(); ++place) {
        if (!triples_.contains(tripleAt(text, place)))
            return false;
    }
    return !text.isEmpty() && words_.contains(text);
}
