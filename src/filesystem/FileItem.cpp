#include "filesystem/FileItem.h"

#include "common/ExtensionTable.h"

namespace {

const ExtensionTable &icons()
{
    static const ExtensionTable table = {
        {"jpg jpeg png gif svg webp heic tiff", "photo.fill"},
        {"mp4 mov avi mkv wmv", "film.fill"},
        {"mp3 wav flac aac m4a", "music.note"},
        {"pdf", "doc.richtext.fill"},
        {"doc docx txt md rtf pages", "doc.text.fill"},
        {"xls xlsx csv numbers", "tablecells.fill"},
        {"ppt pptx key", "rectangle.split.3x3.fill"},
        {"zip tar gz rar 7z dmg", "doc.zipper"},
        {"js ts py rb go rs java swift c cpp h", "chevron.left.forwardslash.chevron.right"},
        {"html css json xml yaml yml", "curlybraces"},
        {"app", "app.fill"},
    };
    return table;
}

const ExtensionTable &colors()
{
    static const ExtensionTable table = {
        {"jpg jpeg png gif svg webp heic", "3fb950"},
        {"mp4 mov avi mkv", "a371f7"},
        {"mp3 wav flac aac pdf doc docx txt md", "d29922"},
        {"zip tar gz rar dmg", "da3633"},
        {"js ts py swift html css", "39d2c0"},
    };
    return table;
}

} // namespace

QString iconName(const FileItem &item)
{
    return item.isDirectory ? QStringLiteral("folder.fill")
                            : icons().value(item.ext).value_or(QStringLiteral("doc.fill"));
}

QString colorHex(const FileItem &item)
{
    return item.isDirectory ? QStringLiteral("58a6ff")
                            : colors().value(item.ext).value_or(QStringLiteral("8b949e"));
}
