#include "cleanup/EmptyFolders.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "filesystem/WalkBounds.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_view_literals;

/// Besides those whose name begins with a dot.
constexpr std::array neverEntered = {"node_modules"sv, "__pycache__"sv, "DerivedData"sv};

/// What the desktop puts into a folder for itself: its view, its name in the user's language, its picture.
constexpr std::array noContent = {".DS_Store"sv, ".localized"sv, "Icon\r"sv, "Icon\r\r"sv};

std::string_view viewOf(QByteArrayView name)
{
    return {name.data(), static_cast<size_t>(name.size())};
}

template<typename Names>
bool holds(const Names &names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isContent(QByteArrayView name)
{
    return !holds(noContent, viewOf(name));
}

bool isEntered(std::string_view name)
{
    return !name.starts_with('.') && !holds(neverEntered, name);
}

/// The walk below one root.
class Search
{
public:
    /// `roots` are all roots; each is walked for itself alone.
    Search(const QString &root, const QSet<QString> &roots, QStringList &found)
        : bounds_(root)
        , roots_(roots)
        , found_(found)
    {
    }

    /// `isThroughLink`: a link led here.
    void visit(const QString &folder, int depth, bool isThroughLink)
    {
        Listing listing;
        if (!read(folder, depth < emptyfolders::depthLimit, isThroughLink, listing))
            return;
        if (depth > 0 && !listing.hasContent) {
            found_.append(folder);
            return;
        }
        for (const Inner &inner : listing.inner) {
            const QString path = paths::join(folder, paths::fromBytes(inner.name));
            if (roots_.contains(path) || (inner.isLink && !bounds_.mayEnter(path)))
                continue;
            visit(path, depth + 1, isThroughLink || inner.isLink);
        }
    }

private:
    /// A folder in the one at hand, or a link that may lead to one.
    struct Inner
    {
        QByteArray name;
        bool isLink = false;
    };

    struct Listing
    {
        bool hasContent = false;
        std::vector<Inner> inner; // that are to be entered
    };

    /// False for a folder that can't be listed to its end.
    static bool read(const QString &folder, bool isGoingOn, bool isThroughLink, Listing &listing)
    {
        files::DirectoryReader entry(folder);
        while (entry.next()) {
            listing.hasContent = listing.hasContent || isContent(entry.name());
            if (!isGoingOn || !isEntered(viewOf(entry.name())))
                continue;
            const auto kind = kindOf(entry);
            if (kind == files::Kind::directory || (kind == files::Kind::link && !isThroughLink))
                listing.inner.push_back({entry.name().toByteArray(), kind == files::Kind::link});
        }
        return entry.isOpen() && !entry.hasFailed();
    }

    static std::optional<files::Kind> kindOf(const files::DirectoryReader &entry)
    {
        if (const auto listed = entry.listedKind())
            return listed;
        const auto extent = entry.extent();
        return extent ? std::optional(extent->kind) : std::nullopt;
    }

    const WalkBounds bounds_;
    const QSet<QString> &roots_;
    QStringList &found_;
};

} // namespace

namespace emptyfolders {

QStringList find(const QStringList &roots)
{
    const QSet<QString> all(roots.begin(), roots.end());
    QStringList found;
    for (const QString &root : roots)
        Search(root, all, found).visit(root, 0, false);
    found.removeDuplicates();
    return found;
}

bool isEmpty(const QString &folder)
{
    files::DirectoryReader entry(folder);
    while (entry.next()) {
        if (isContent(entry.name()))
            return false;
    }
    return entry.isOpen() && !entry.hasFailed();
}

} // namespace emptyfolders
