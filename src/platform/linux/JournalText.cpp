#include "platform/linux/JournalText.h"

#include "base/Paths.h"
#include "platform/SystemLog.h"

#include <QDateTime>
#include <QtEndian>

namespace {

constexpr qsizetype mostOfMessage = 32 << 10; // bytes; with room to spare below a socket's buffer

/// The form for a value of any bytes: name, line break, length in 64 bits, value, line break.
void append(QByteArray &entry, const char *name, const QByteArray &value)
{
    char length[sizeof(quint64)];
    qToLittleEndian(static_cast<quint64>(value.size()), length);
    entry += name;
    entry += '\n';
    entry.append(length, sizeof length);
    entry += value;
    entry += '\n';
}

QByteArray bytes(const QString &text)
{
    QByteArray utf8 = paths::display(text).toUtf8();
    if (utf8.size() <= mostOfMessage)
        return utf8;
    qsizetype end = mostOfMessage;
    while ((static_cast<uchar>(utf8[end]) & 0xC0) == 0x80) // never within a character
        --end;
    return utf8.first(end) + "…";
}

QString levelName(const QByteArray &priority)
{
    bool isNumber = false;
    const int number = priority.toInt(&isNumber);
    if (isNumber && number <= journaltext::priority(LogLevel::error))
        return QStringLiteral("error");
    if (isNumber && number >= journaltext::priority(LogLevel::debug))
        return QStringLiteral("debug");
    return QStringLiteral("info");
}

QString onOneLine(const QByteArray &value)
{
    QString text = paths::display(paths::fromBytes(value));
    text.replace(u'\n', QStringLiteral("\\n")).replace(u'\r', QStringLiteral("\\r"));
    text.replace(QChar(QChar::Null), QChar(QChar::ReplacementCharacter));
    text.replace(QChar(QChar::LineSeparator), QStringLiteral("\\n"));
    text.replace(QChar(QChar::ParagraphSeparator), QStringLiteral("\\n"));
    return text;
}

} // namespace

namespace journaltext {

QByteArray datagram(LogLevel level, const QString &category, const QString &message)
{
    static const QByteArray subsystem = QByteArray(SystemLog::subsystem.data(), SystemLog::subsystem.size());
    QByteArray entry;
    append(entry, "MESSAGE", bytes(message));
    append(entry, "PRIORITY", QByteArray::number(priority(level)));
    append(entry, "SYSLOG_IDENTIFIER", subsystem);
    append(entry, subsystemField, subsystem);
    append(entry, categoryField, bytes(category));
    return entry;
}

int priority(LogLevel level)
{
    switch (level) {
    case LogLevel::debug:
        return 7;
    case LogLevel::info:
        return 6;
    case LogLevel::error:
        return 3;
    }
    return 6;
}

QString line(qint64 microseconds, const QByteArray &priority, const QByteArray &category,
             const QByteArray &message)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(microseconds / 1000);
    return QStringLiteral("%1 %2 [%3] ")
               .arg(time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")), levelName(priority),
                    onOneLine(category))
           + onOneLine(message);
}

} // namespace journaltext
