#include "controls/Symbols.h"

#include "controls/symbols/SymbolTable.h"
#include "disk/AnalyzerContents.h"
#include "filesystem/FileItem.h"
#include "shell/SidebarItem.h"
#include "support/TestPlatform.h"

#include <set>

#include <gtest/gtest.h>

namespace {

void expectGlyph(const QString &name)
{
    const QString glyph = Symbols::glyph(name);
    ASSERT_EQ(glyph.size(), 1) << name.toStdString();
    EXPECT_EQ(glyph[0].category(), QChar::Other_PrivateUse) << name.toStdString();
}

} // namespace

TEST(Symbols, hasAGlyphForEachNameOfItsTableAndNoTwoShareOne)
{
    std::set<QString> glyphs;
    for (const SymbolEntry &entry : symbolTable) {
        const QString name = QString::fromUtf8(entry.name.data(), static_cast<qsizetype>(entry.name.size()));
        expectGlyph(name);
        EXPECT_TRUE(glyphs.insert(Symbols::glyph(name)).second) << name.toStdString();
    }
    EXPECT_FALSE(glyphs.empty());
}

TEST(Symbols, hasAGlyphForEachScreen)
{
    for (const SidebarSection section : sidebar::sections) {
        for (const SidebarItem item : sidebar::items(section))
            expectGlyph(sidebar::symbol(item));
    }
}

TEST(Symbols, hasAGlyphForEachKindOfFile)
{
    const QString extensions =
        QStringLiteral("jpg mp4 mp3 pdf txt csv key zip swift json app photoslibrary xcodeproj dmg none");
    for (const QString &ext : extensions.split(u' ')) {
        FileItem item;
        item.ext = ext;
        expectGlyph(iconName(item));
        FileEntry entry;
        entry.name = QStringLiteral("name.") + ext;
        expectGlyph(analyzer::rowSymbol(entry));
    }
    FileItem folder;
    folder.isDirectory = true;
    expectGlyph(iconName(folder));
    FileEntry folderEntry;
    folderEntry.isDirectory = true;
    expectGlyph(analyzer::rowSymbol(folderEntry));
}

TEST(Symbols, hasAGlyphForEachPlaceOfTheStorageTables)
{
    const TestPlatform test;
    ASSERT_FALSE(test.locations->storageRows.empty());
    for (const Locations::StorageRow &row : test.locations->storageRows)
        expectGlyph(row.icon);
}

TEST(Symbols, hasAGlyphForEachBuiltInPlace)
{
    const TestPlatform test;
    ASSERT_FALSE(test.locations->sidebarPlaces.empty());
    for (const Locations::SidebarPlace &place : test.locations->sidebarPlaces)
        expectGlyph(place.icon);
}

TEST(Symbols, givesNothingForAnUnknownName)
{
    for (const char *name : {"", "no.such.symbol", "folde", "folders", "FOLDER"})
        EXPECT_EQ(Symbols::glyph(QString::fromLatin1(name)), QString()) << name;
}
