#pragma once

#include <QByteArray>
#include <QJsonValue>

#include <vector>

/// Property lists as tests and the demo write them, without the library that reads them: texts, numbers, yes and no,
/// arrays and dictionaries.
namespace propertylists {

QByteArray xml(const QJsonValue &value);
QByteArray binary(const QJsonValue &value);

/// For lists that no writer makes. One object of the binary form each, as its bytes.
QByteArray binaryText(const QByteArray &ascii);
QByteArray binaryArray(const std::vector<quint32> &items);
/// The references of the keys, then those of the values.
QByteArray binaryDictionary(const std::vector<quint32> &keys, const std::vector<quint32> &values);

/// The list that these objects make up, the first one at its top.
QByteArray binaryOf(const std::vector<QByteArray> &objects);

} // namespace propertylists
