#include "base/PropertyList.h"

#include "base/Error.h"
#include "base/Files.h"
#include "base/PropertyListBounds.h"

#include <memory>

#include <plist/plist.h>

namespace {

struct Freed
{
    void operator()(void *node) const { plist_free(node); }
};

using Node = std::unique_ptr<void, Freed>;

/// None for content that is beyond the bounds, or no property list.
Node parsed(const QByteArray &content)
{
    plist_t node = nullptr;
    if (content.size() > propertylist::largestFile)
        return nullptr;
    if (content.startsWith("bplist0")) {
        if (propertylistbounds::areKeptByBinary(content))
            plist_from_bin(content.constData(), static_cast<uint32_t>(content.size()), &node);
        return Node(node);
    }
    // Whatever stands ahead of the first element, such as a mark of the byte order, is nothing to the library.
    const qsizetype start = content.indexOf('<');
    if (start >= 0 && propertylistbounds::areKeptByXml(content))
        plist_from_xml(content.constData() + start, static_cast<uint32_t>(content.size() - start), &node);
    return Node(node);
}

} // namespace

namespace propertylist {

QMap<QString, QString> texts(const QByteArray &content, const QStringList &keys)
{
    QMap<QString, QString> found;
    const Node top = parsed(content);
    if (!top || plist_get_node_type(top.get()) != PLIST_DICT)
        return found;
    for (const QString &key : keys) {
        plist_t value = plist_dict_get_item(top.get(), key.toUtf8().constData());
        if (value && plist_get_node_type(value) == PLIST_STRING)
            found.insert(key, QString::fromUtf8(plist_get_string_ptr(value, nullptr)));
    }
    return found;
}

QMap<QString, QString> textsOfFile(const QString &path, const QStringList &keys)
{
    try {
        return texts(files::readAll(path, largestFile), keys);
    } catch (const Error &) {
        return {};
    }
}

} // namespace propertylist
