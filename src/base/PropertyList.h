#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// What a program says of itself in a property list, in its XML or its binary form. Content is never trusted: a list that
/// is damaged, or beyond what the bounds allow, tells nothing.
namespace propertylist {

inline constexpr qint64 largestFile = 4 << 20; ///< bytes; a rich program's has some hundred thousand

/// The texts that the dictionary at the top has under these keys. A value that is no text is left out.
QMap<QString, QString> texts(const QByteArray &content, const QStringList &keys);

/// The same of a file. Nothing where it can't be read, or is larger than `largestFile`. Blocks for as long as the disk
/// does; any thread.
QMap<QString, QString> textsOfFile(const QString &path, const QStringList &keys);

} // namespace propertylist
