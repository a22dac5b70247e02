#include "apps/catalogue/Bundles.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "base/PropertyList.h"
#include "filesystem/WalkBounds.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

const QString nameKey = u"CFBundleName"_s;
const QString displayNameKey = u"CFBundleDisplayName"_s;
const QString versionKey = u"CFBundleShortVersionString"_s;
const QString identifierKey = u"CFBundleIdentifier"_s;
const QString pictureKey = u"CFBundleIconFile"_s;

/// Where a bundle has its property list and its pictures.
struct Layout
{
    QString list;
    QString pictures;
};

/// The Mac's, then that of its older and of a telephone's applications, as they stand by themselves and as they are
/// wrapped to run on a Mac.
const std::array layouts = {
    Layout{u"Contents/Info.plist"_s, u"Contents/Resources"_s},
    Layout{u"Info.plist"_s, {}},
    Layout{u"WrappedBundle/Info.plist"_s, u"WrappedBundle"_s},
};

/// Without bounds, a link may lead to any folder.
bool mayWalk(const QString &path, const WalkBounds *bounds)
{
    if (!bounds)
        return files::isDirectory(path);
    const auto entry = files::attributes(path);
    return entry && (entry->isDirectory() || (entry->kind == files::Kind::link && bounds->mayEnter(path)));
}

void collect(const QString &folder, bool isRoot, const WalkBounds *bounds, QStringList &found)
{
    for (const QString &entry : files::list(folder).value_or(std::vector<QString>())) {
        const QString path = paths::join(folder, entry);
        if (entry.endsWith(u".app"))
            found.append(path);
        else if (isRoot && !entry.startsWith(u'.') && mayWalk(path, bounds))
            collect(path, false, bounds, found);
    }
}

std::optional<QString> textUnder(const QString &key, const QMap<QString, QString> &texts)
{
    const auto found = texts.find(key);
    return found == texts.end() ? std::nullopt : std::optional(*found);
}

/// The name is told by whoever made the bundle, so it counts only where it leads to an entry of the pictures' folder.
std::optional<QString> pictureNamed(const QString &name, const QString &folder)
{
    if (!paths::isEntryName(name))
        return std::nullopt;
    return paths::join(folder, paths::extension(name).isEmpty() ? name + u".icns"_s : name);
}

} // namespace

namespace bundles {

QStringList find(const QString &root, Links links)
{
    const WalkBounds bounds(root);
    QStringList found;
    collect(root, true, links == Links::insideRoot ? &bounds : nullptr, found);
    return found;
}

std::optional<Bundle> read(const QString &path)
{
    if (!files::isDirectory(path))
        return std::nullopt;
    Bundle bundle{.name = paths::stem(path), .version = {}, .identifier = {}, .picture = {}};
    const auto layout = std::ranges::find_if(
        layouts, [&path](const Layout &one) { return files::exists(paths::join(path, one.list)); });
    if (layout == layouts.end())
        return bundle;
    const auto texts = propertylist::textsOfFile(
        paths::join(path, layout->list), {nameKey, displayNameKey, versionKey, identifierKey, pictureKey});
    bundle.name = textUnder(nameKey, texts).value_or(texts.value(displayNameKey, bundle.name));
    bundle.version = textUnder(versionKey, texts);
    bundle.identifier = textUnder(identifierKey, texts);
    bundle.picture = pictureNamed(texts.value(pictureKey), paths::join(path, layout->pictures));
    return bundle;
}

} // namespace bundles
