#pragma once

#include <QSet>
#include <QString>

/// Many words, for the question whether a text is part of one of them, which is asked again and again and mostly has the
/// answer no.
class WordParts
{
public:
    void add(const QString &word);

    /// The empty text is part of none.
    bool contains(QStringView text) const;

private:
    QString words_; // one behind the other, each ended by what stands in no file's name
    QSet<quint64>
        triples_; // of units that stand beside each other: a text with another one is part of nothing
};
