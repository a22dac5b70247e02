#include "filesystem/FileItem.h"

#include "filesystem/FileSystemService.h"
#include "support/TestPlatform.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

FileItem fileNamed(const QString &name)
{
    TestPlatform test;
    const QString path = test.temp.file(name);
    const FileSystemService service(test.platform, test.probes);
    return service.makeFileItem(path).value();
}

FileItem fileOfKind(const QString &ext)
{
    FileItem item;
    item.ext = ext;
    return item;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

} // namespace

TEST(FileItem, recreatedForTheSamePathIsEqualWithAnotherId)
{
    TestPlatform test;
    const QString path = test.temp.file("a.txt", "first");
    const FileSystemService service(test.platform, test.probes);
    const FileItem before = service.makeFileItem(path).value();
    test.temp.file("a.txt", "second content");
    const FileItem after = service.makeFileItem(path).value();

    EXPECT_NE(before.size, after.size);
    EXPECT_TRUE(before == after);
    EXPECT_EQ(qHash(before), qHash(after));
    EXPECT_NE(before.id, after.id);
    EXPECT_TRUE(QSet<FileItem>{before}.contains(after));
}

TEST(FileItem, differsFromOneOfAnotherPathWhateverElseIsEqual)
{
    FileItem one = fileOfKind("txt");
    one.path = "/a/x.txt";
    FileItem other = one;
    other.path = "/b/x.txt";
    EXPECT_FALSE(one == other);
}

TEST(FileItem, capitalsInTheExtensionDoNotMatter)
{
    const FileItem photo = fileNamed("PHOTO.JPG");
    EXPECT_EQ(photo.ext, "jpg");
    EXPECT_EQ(iconName(photo), "photo.fill");
    EXPECT_EQ(colorHex(photo), "3fb950");
}

TEST(FileItem, dotFileHasNoExtensionAndTheDefaultLook)
{
    const FileItem item = fileNamed(".zip");
    EXPECT_EQ(item.ext, "");
    EXPECT_EQ(iconName(item), "doc.fill");
    EXPECT_EQ(colorHex(item), "8b949e");
}

TEST(FileItem, folderNamedLikeAnArchiveLooksLikeAFolder)
{
    TestPlatform test;
    const QString path = test.temp.folder("backup.zip");
    const FileItem item = FileSystemService(test.platform, test.probes).makeFileItem(path).value();
    EXPECT_EQ(item.ext, "zip");
    EXPECT_EQ(iconName(item), "folder.fill");
    EXPECT_EQ(colorHex(item), "58a6ff");
}

TEST(FileItem, rtfHasATextsIconAndTheDefaultColor)
{
    EXPECT_EQ(iconName(fileOfKind("rtf")), "doc.text.fill");
    EXPECT_EQ(colorHex(fileOfKind("rtf")), "8b949e");
}

TEST(FileItem, wmvHasAFilmsIconAndTheDefaultColor)
{
    EXPECT_EQ(iconName(fileOfKind("wmv")), "film.fill");
    EXPECT_EQ(colorHex(fileOfKind("wmv")), "8b949e");
}

TEST(FileItem, iconFollowsTheKind)
{
    const std::pair<const char *, const char *> rows[] = {
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
        {"exe bin jp jpgg JPG", "doc.fill"},
    };
    for (const auto &[extensions, icon] : rows) {
        for (const QString &ext : words(extensions))
            EXPECT_EQ(iconName(fileOfKind(ext)), icon) << qPrintable(ext);
    }
    EXPECT_EQ(iconName(fileOfKind("")), "doc.fill");
}

TEST(FileItem, colorGroupsAreNarrowerThanIconGroups)
{
    const std::pair<const char *, const char *> rows[] = {
        {"jpg jpeg png gif svg webp heic", "3fb950"},
        {"mp4 mov avi mkv", "a371f7"},
        {"mp3 wav flac aac pdf doc docx txt md", "d29922"},
        {"zip tar gz rar dmg", "da3633"},
        {"js ts py swift html css", "39d2c0"},
        {"tiff wmv m4a rtf pages 7z xls xlsx csv numbers ppt pptx key", "8b949e"},
        {"rb go rs java c cpp h json xml yaml yml app other", "8b949e"},
    };
    for (const auto &[extensions, color] : rows) {
        for (const QString &ext : words(extensions))
            EXPECT_EQ(colorHex(fileOfKind(ext)), color) << qPrintable(ext);
    }
    EXPECT_EQ(colorHex(fileOfKind("")), "8b949e");
}
