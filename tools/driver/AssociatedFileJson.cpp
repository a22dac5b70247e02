#include "AssociatedFileJson.h"

#include "Json.h"

namespace json {

QJsonArray associatedFiles(const std::vector<AssociatedFile> &files)
{
    QJsonArray array;
    for (const AssociatedFile &file : files) {
        array.append(QJsonObject{
            {QStringLiteral("id"), id(file.id)},
            {QStringLiteral("path"), text(file.path)},
            {QStringLiteral("category"), file.category},
            {QStringLiteral("size"), file.size},
            {QStringLiteral("selected"), file.selected},
        });
    }
    return array;
}

} // namespace json
