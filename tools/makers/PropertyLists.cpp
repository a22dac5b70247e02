#include "makers/PropertyLists.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int offsetSize = 4;
constexpr int referenceSize = 4;

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// The head of an object: its kind, and its count, which is an integer object from 15 on.
QByteArray head(int kind, qsizetype count)
{
    if (count < 15)
        return QByteArray(1, static_cast<char>(kind << 4 | static_cast<int>(count)));
    return QByteArray(1, static_cast<char>(kind << 4 | 0xf)) + '\x12'
           + bigEndian(static_cast<quint32>(count));
}

QByteArray references(const std::vector<quint32> &all)
{
    QByteArray bytes;
    for (const quint32 reference : all)
        bytes += bigEndian(reference);
    return bytes;
}

QByteArray textObject(const QString &text)
{
    const bool isAscii =
        std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x80; });
    if (isAscii)
        return propertylists::binaryText(text.toLatin1());
    QByteArray units;
    for (const QChar unit : text) {
        units += static_cast<char>(unit.unicode() >> 8);
        units += static_cast<char>(unit.unicode() & 0xff);
    }
    return head(6, text.size()) + units;
}

QByteArray numberObject(double number)
{
    QByteArray bytes(8, '\0');
    qToBigEndian(static_cast<qint64>(number), bytes.data());
    return '\x13' + bytes;
}

/// Appends a value and what it holds. Gives its place.
quint32 append(std::vector<QByteArray> &objects, const QJsonValue &value)
{
    const auto place = static_cast<quint32>(objects.size());
    objects.emplace_back();
    if (value.isString()) {
        objects[place] = textObject(value.toString());
    } else if (value.isDouble()) {
        objects[place] = numberObject(value.toDouble());
    } else if (value.isArray()) {
        std::vector<quint32> items;
        for (const QJsonValue item : value.toArray())
            items.push_back(append(objects, item));
        objects[place] = propertylists::binaryArray(items);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        std::vector<quint32> keys;
        std::vector<quint32> values;
        for (auto entry = object.begin(); entry != object.end(); ++entry) {
            keys.push_back(append(objects, entry.key()));
            values.push_back(append(objects, entry.value()));
        }
        objects[place] = propertylists::binaryDictionary(keys, values);
    } else {
        objects[place] = value.toBool() ? "\x09" : "\x08";
    }
    return place;
}

QByteArray element(const QJsonValue &value)
{
    if (value.isString())
        return "<string>" + value.toString().toHtmlEscaped().toUtf8() + "</string>\n";
    if (value.isDouble())
        return "<integer>" + QByteArray::number(value.toInteger()) + "</integer>\n";
    if (value.isBool())
        return value.toBool() ? "<true/>\n" : "<false/>\n";
    QByteArray inner;
    if (value.isArray()) {
        for (const QJsonValue item : value.toArray())
            inner += element(item);
        return "<array>\n" + inner + "</array>\n";
    }
    const QJsonObject object = value.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        inner += "<key>" + entry.key().toHtmlEscaped().toUtf8() + "</key>\n" + element(entry.value());
    return "<dict>\n" + inner + "</dict>\n";
}

} // namespace

namespace propertylists {

QByteArray xml(const QJsonValue &value)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n"
           + element(value) + "</plist>\n";
}

QByteArray binary(const QJsonValue &value)
{
    std::vector<QByteArray> objects;
    append(objects, value);
    return binaryOf(objects);
}

QByteArray binaryText(const QByteArray &ascii)
{
    return head(5, ascii.size()) + ascii;
}

QByteArray binaryArray(const std::vector<quint32> &items)
{
    return head(0xa, static_cast<qsizetype>(items.size())) + references(items);
}

QByteArray binaryDictionary(const std::vector<quint32> &keys, const std::vector<quint32> &values)
{
    return head(0xd, static_cast<qsizetype>(keys.size())) + references(keys) + references(values);
}

QByteArray binaryOf(const std::vector<QByteArray> &objects)
{
    QByteArray list = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
        table += bigEndian(static_cast<quint32>(list.size()));
        list += object;
    }
    const auto tablePlace = static_cast<quint32>(list.size());
    const QByteArray high(4, '\0'); // of each number of eight bytes
    return list + table + QByteArray(6, '\0') + static_cast<char>(offsetSize)
           + static_cast<char>(referenceSize) + high + bigEndian(static_cast<quint32>(objects.size())) + high
           + bigEndian(0) + high + bigEndian(tablePlace);
}

} // namespace propertylists
