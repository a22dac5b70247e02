// Verbs of the sizes of the user's main folders, and of the map.

#include "Arguments.h"
#include "disk/Treemap.h"
#include "DriverPlatform.h"
#include "Json.h"
#include "UsageError.h"
#include "Verbs.h"

#include <cmath>

namespace {

/// The category of one object of the input. Throws UsageError.
StorageCategory readCategory(const QJsonObject &object)
{
    const QJsonValue name = object[QStringLiteral("name")];
    const QJsonValue size = object[QStringLiteral("size")];
    const QJsonValue color = object[QStringLiteral("color")];
    if (!name.isString() || !color.isString())
        throw UsageError{QStringLiteral("bad JSON: \"name\" and \"color\" are texts")};
    // What is not held exactly (a fraction, a text, a count beyond 64 bits) gives the two defaults.
    if (size.toInteger(0) != size.toInteger(1) || size.toInteger() < 0)
        throw UsageError{QStringLiteral("bad JSON: \"size\" is a whole number from 0")};
    return {QUuid::createUuid(), name.toString(), size.toInteger(), color.toString(), {}, {}};
}

void treemap(const Arguments &arguments)
{
    const double width = arguments.number(0);
    const double height = arguments.number(1);
    std::vector<StorageCategory> categories;
    const QJsonArray objects = json::readObjects();
    for (const auto &value : objects)
        categories.push_back(readCategory(value.toObject()));
    QJsonArray array;
    for (const TreemapItem &item : layoutTreemap(categories, width, height)) {
        const QRectF &rect = item.rect;
        array.append(QJsonObject{
            {QStringLiteral("name"), json::text(item.name)},
            {QStringLiteral("size"), item.size},
            {QStringLiteral("color"), item.color},
            {QStringLiteral("rect"), QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()}},
        });
    }
    json::print(array);
}

QJsonArray categoryArray(const std::vector<StorageCategory> &categories)
{
    QJsonArray array;
    for (const StorageCategory &category : categories) {
        array.append(QJsonObject{
            {QStringLiteral("name"), json::text(category.name)},
            {QStringLiteral("size"), category.size},
            {QStringLiteral("color"), category.color},
            {QStringLiteral("icon"), category.icon},
            {QStringLiteral("children"), categoryArray(category.children)},
        });
    }
    return array;
}

void breakdown(const Arguments &arguments)
{
    DriverPlatform platform(arguments);
    json::print(categoryArray(platform.disk().computeStorageCategories()));
}

void largest(const Arguments &arguments)
{
    DriverPlatform platform(arguments);
    QJsonArray array;
    for (const LargeDirectory &directory : platform.disk().computeLargestDirectories()) {
        array.append(QJsonObject{
            {QStringLiteral("name"), json::text(directory.name)},
            {QStringLiteral("path"), json::text(directory.path)},
            {QStringLiteral("size"), directory.size},
        });
    }
    json::print(array);
}

} // namespace

std::vector<Verb> verbs::ofDisk()
{
    const QString homeUsage = QStringLiteral("HOME [--applications DIR | --layout linux]");
    return {
        {QStringLiteral("treemap"),
         QStringLiteral("WIDTH HEIGHT"),
         QStringLiteral(
             "reads [{\"name\", \"size\", \"color\"}]; the same with \"rect\": [x, y, w, h], largest first"),
         2,
         2,
         {},
         treemap},
        {QStringLiteral("breakdown"), homeUsage, QStringLiteral("the sizes of the main folders as JSON"), 1,
         1, DriverPlatform::homeOptions(), breakdown},
        {QStringLiteral("largest"), homeUsage,
         QStringLiteral("the largest entries of the main folders as JSON"), 1, 1,
         DriverPlatform::homeOptions(), largest},
    };
}
