#include "common/ExtensionTable.h"

ExtensionTable::ExtensionTable(std::initializer_list<Row> rows)
{
    for (const Row &row : rows) {
        const QString value = QString::fromLatin1(row.value);
        for (const QString &extension : QString::fromLatin1(row.extensions).split(u' ')) {
            if (values_.contains(extension))
                continue;
            values_.insert(extension, value);
            extensions_[value] << extension;
        }
    }
}

std::optional<QString> ExtensionTable::value(const QString &extension) const
{
    const auto found = values_.find(extension);
    return found == values_.end() ? std::nullopt : std::optional(found.value());
}
