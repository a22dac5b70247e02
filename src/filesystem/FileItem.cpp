#include "filesystem/FileItem.h"

#include <QStringList>

#include <array>

namespace {

struct KindRow
{
    const char *extensions; // separated by blanks
    const char *value;
};

constexpr std::array iconRows = {
    KindRow{"jpg jpeg png gif svg webp heic tiff", "photo.fill"},
    KindRow{"mp4 mov avi mkv wmv", "film.fill"},
    KindRow{"mp3 wav flac aac m4a", "music.note"},
    KindRow{"pdf", "doc.richtext.fill"},
    KindRow{"doc docx txt md rtf pages", "doc.text.fill"},
    KindRow{"xls xlsx csv numbers", "tablecells.fill"},
    KindRow{"ppt pptx key", "rectangle.split.3x3.fill"},
    KindRow{"zip tar gz rar 7z dmg", "doc.zipper"},
    KindRow{"js ts py rb go rs java swift c cpp h", "chevron.left.forwardslash.chevron.right"},
    KindRow{"html css json xml yaml yml", "curlybraces"},
    KindRow{"app", "app.fill"},
};

constexpr std::array colorRows = {
    KindRow{"jpg jpeg png gif svg webp heic", "3fb950"},
    KindRow{"mp4 mov avi mkv", "a371f7"},
    KindRow{"mp3 wav flac aac pdf doc docx txt md", "d29922"},
    KindRow{"zip tar gz rar dmg", "da3633"},
    KindRow{"js ts py swift html css", "39d2c0"},
};

template<size_t count>
QString lookUp(const std::array<KindRow, count> &rows, const QString &ext, const char *otherwise)
{
    for (const KindRow &row : rows) {
        if (QString::fromLatin1(row.extensions).split(u' ').contains(ext))
            return QString::fromLatin1(row.value);
    }
    return QString::fromLatin1(otherwise);
}

} // namespace

QString iconName(const FileItem &item)
{
    return item.isDirectory ? QStringLiteral("folder.fill") : lookUp(iconRows, item.ext, "doc.fill");
}

QString colorHex(const FileItem &item)
{
    return item.isDirectory ? QStringLiteral("58a6ff") : lookUp(colorRows, item.ext, "8b949e");
}
