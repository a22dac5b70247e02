#include "disk/AnalyzerContents.h"

#include "base/Paths.h"
#include "base/Sums.h"
#include "common/ExtensionTable.h"

#include <array>
#include <charconv>
#include <optional>

namespace {

constexpr double leastShare = 0.02;
constexpr size_t mostCategories = 12;
constexpr std::array palette = {"58a6ff", "a371f7", "3fb950", "da3633",
                                "d29922", "39d2c0", "f778ba", "8b949e"};

const ExtensionTable &fileSymbols()
{
    static const ExtensionTable table = {
        {"jpg jpeg png gif heic webp", "photo.fill"},
        {"mp4 mov avi mkv", "film.fill"},
        {"mp3 aac wav flac m4a", "music.note"},
        {"pdf", "doc.richtext.fill"},
        {"zip gz tar rar 7z", "doc.zipper"},
        {"swift py js ts java c cpp h", "chevron.left.forwardslash.chevron.right"},
        {"iso dmg", "externaldrive.fill"},
    };
    return table;
}

qint64 sumOf(const std::vector<FileEntry> &entries)
{
    qint64 sum = 0;
    for (const FileEntry &entry : entries)
        sum = sums::saturated(sum, entry.size);
    return sum;
}

StorageCategory category(const FileEntry &entry, size_t index)
{
    return {QUuid::createUuid(),
            entry.name,
            entry.size,
            QString::fromLatin1(palette[index % palette.size()]),
            entry.isDirectory ? QStringLiteral("folder.fill") : QStringLiteral("doc.fill"),
            {}};
}

} // namespace

namespace analyzer {

std::vector<StorageCategory> mapCategories(const FileEntry &entry)
{
    if (!entry.children)
        return {};
    const std::vector<FileEntry> &children = *entry.children;
    const qint64 total = sumOf(children);
    if (total < 1)
        return {};
    const double threshold = static_cast<double>(total) * leastShare;
    std::vector<StorageCategory> categories;
    qint64 kept = 0;
    for (const FileEntry &child : children) {
        if (static_cast<double>(child.size) < threshold || categories.size() == mostCategories)
            continue;
        categories.push_back(category(child, categories.size()));
        kept = sums::saturated(kept, child.size);
    }
    const qint64 rest = total - kept;
    const size_t leftOut = children.size() - categories.size();
    if (rest > 0 && leftOut > 0) {
        categories.push_back({QUuid::createUuid(),
                              QStringLiteral("%1 others").arg(leftOut),
                              rest,
                              QStringLiteral("484f58"),
                              QStringLiteral("ellipsis"),
                              {}});
    }
    return categories;
}

QString rowSymbol(const FileEntry &entry)
{
    const QString name = entry.name.toLower();
    const std::optional<QString> symbol = fileSymbols().value(paths::extension(name));
    if (name.endsWith(u".app"))
        return QStringLiteral("app.fill");
    // A folder of such a name too, unlike the table's other rows.
    if (symbol == QStringLiteral("photo.fill") || name.endsWith(u".photoslibrary"))
        return QStringLiteral("photo.fill");
    if (name.endsWith(u".xcodeproj") || name.endsWith(u".xcworkspace"))
        return QStringLiteral("hammer.fill");
    if (entry.isDirectory)
        return QStringLiteral("folder.fill");
    return symbol.value_or(QStringLiteral("doc.fill"));
}

double share(qint64 part, qint64 whole)
{
    return whole > 0 ? static_cast<double>(part) / static_cast<double>(whole) : 0;
}

QString shareText(double share)
{
    // As C's "%.1f" in any locale: ties go to the even digit, where QString's own numbers round them up.
    std::array<char, 32> digits{}; // enough for any two counts of bytes
    const auto end =
        std::to_chars(digits.begin(), digits.end(), share * 100, std::chars_format::fixed, 1).ptr;
    return QString::fromLatin1(digits.data(), end - digits.data()) + u'%';
}

} // namespace analyzer
