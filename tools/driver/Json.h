#pragma once

#include "base/Date.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QUuid>

/// What the verbs print and read as JSON.
namespace json {

/// A name or path; each byte that is not UTF-8 is U+FFFD.
QJsonValue text(const QString &text);

/// A record's identifier, without braces.
QJsonValue id(const QUuid &id);

/// "2024-02-29T12:00:00.123456789Z", in UTC; null for the distant past, which stands for no date.
QJsonValue date(Date date);

/// One line on standard output, the keys in alphabetical order.
void print(const QJsonArray &array);
void print(const QJsonObject &object);

/// Prints an array of any length on one line, an object at a time, so that it never stands in memory whole.
class ArrayPrinter
{
public:
    ArrayPrinter();
    ~ArrayPrinter(); ///< ends the line
    ArrayPrinter(const ArrayPrinter &) = delete;
    ArrayPrinter &operator=(const ArrayPrinter &) = delete;

    void add(const QJsonObject &object);

private:
    bool isFirst_ = true;
};

/// All of standard input as an array of objects. Throws UsageError when it is anything else.
QJsonArray readObjects();

} // namespace json
