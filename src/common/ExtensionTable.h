#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <map>
#include <optional>

/// A table that tells for some extensions of file names what they stand for: a symbol, a colour, a filter.
class ExtensionTable
{
public:
    struct Row
    {
        const char *extensions; ///< in lower case, separated by blanks
        const char *value;
    };

    /// An extension that stands in several rows is that of the first.
    ExtensionTable(std::initializer_list<Row> rows);

    /// What an extension in lower case stands for; none where the table does not have it.
    std::optional<QString> value(const QString &extension) const;

    /// The other way round: the extensions of each value, in their order.
    const std::map<QString, QStringList> &extensionsByValue() const { return extensions_; }

private:
    QHash<QString, QString> values_;
    std::map<QString, QStringList> extensions_;
};
