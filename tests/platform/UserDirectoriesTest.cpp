#include "platform/UserDirectories.h"

#include "base/Paths.h"

#include <QByteArrayList>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString home = u"/home/ada"_s;

UserDirectories englishNames()
{
    return {.desktop = u"/home/ada/Desktop"_s,
            .documents = u"/home/ada/Documents"_s,
            .downloads = u"/home/ada/Downloads"_s,
            .music = u"/home/ada/Music"_s,
            .pictures = u"/home/ada/Pictures"_s,
            .videos = u"/home/ada/Videos"_s};
}

/// What the one line `XDG_MUSIC_DIR={value}` makes of the music folder.
QString musicFolder(const QByteArray &value)
{
    return parseUserDirectories("XDG_MUSIC_DIR=" + value + "\n", home).music;
}

const QString englishMusic = u"/home/ada/Music"_s;

} // namespace

TEST(UserDirectories, givesEnglishNamesForAnEmptyFile)
{
    EXPECT_EQ(parseUserDirectories({}, home), englishNames());
}

TEST(UserDirectories, readsEachFolderOfATypicalFile)
{
    const QByteArray file = "# This file is written by xdg-user-dirs-update\n"
                            "#\n"
                            "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"
                            "XDG_DOWNLOAD_DIR=\"$HOME/Heruntergeladen\"\n"
                            "XDG_TEMPLATES_DIR=\"$HOME/Vorlagen\"\n"
                            "XDG_PUBLICSHARE_DIR=\"$HOME/\xC3\x96"
                            "ffentlich\"\n"
                            "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
                            "XDG_MUSIC_DIR=\"/data/Musik\"\n"
                            "XDG_PICTURES_DIR=\"$HOME/Bilder/K\xC3\xBCste\"\n"
                            "XDG_VIDEOS_DIR=\"$HOME/Videos\"";
    const UserDirectories expected = {.desktop = u"/home/ada/Schreibtisch"_s,
                                      .documents = u"/home/ada/Dokumente"_s,
                                      .downloads = u"/home/ada/Heruntergeladen"_s,
                                      .music = u"/data/Musik"_s,
                                      .pictures = u"/home/ada/Bilder/Küste"_s,
                                      .videos = u"/home/ada/Videos"_s};
    EXPECT_EQ(parseUserDirectories(file, home), expected);
}

TEST(UserDirectories, toleratesSpacesCommentsAndCarriageReturns)
{
    EXPECT_EQ(parseUserDirectories("  XDG_MUSIC_DIR = \"$HOME/a b\"   # mine\r\n", home).music,
              u"/home/ada/a b"_s);
    EXPECT_EQ(parseUserDirectories("XDG_MUSIC_DIR=\"$HOME/x\"#y", home).music, u"/home/ada/x"_s);
    EXPECT_EQ(parseUserDirectories("#XDG_MUSIC_DIR=\"$HOME/x\"\n", home).music, englishMusic);
}

TEST(UserDirectories, resolvesBackslashEscapes)
{
    EXPECT_EQ(musicFolder(R"("$HOME/a\"b")"), u"/home/ada/a\"b"_s);
    EXPECT_EQ(musicFolder(R"("$HOME/a\\b")"), u"/home/ada/a\\b"_s);
    EXPECT_EQ(musicFolder(R"("$HOME/\$HOME \`x\`")"), u"/home/ada/$HOME `x`"_s);
    EXPECT_EQ(musicFolder(R"("/data/\"")"), u"/data/\""_s);
}

TEST(UserDirectories, takesFolderEqualToHomeAsSwitchedOff)
{
    for (const QByteArray value : {R"("$HOME")", R"("$HOME/")", R"("$HOME//.//")", R"("/home/ada")",
                                   R"("/home/ada/")", R"("//home/./ada//")"})
        EXPECT_EQ(musicFolder(value), QString()) << value.constData();
    EXPECT_EQ(parseUserDirectories("XDG_MUSIC_DIR=\"/home/ada\"", u"/home/ada/"_s).music, QString());
}

TEST(UserDirectories, takesFolderThatContainsHomeAsSwitchedOff)
{
    for (const QByteArray value : {R"("/")", R"("//")", R"("/home")", R"("/home/")"})
        EXPECT_EQ(musicFolder(value), QString()) << value.constData();
    EXPECT_EQ(musicFolder(R"("/home/ad")"), u"/home/ad"_s);
    EXPECT_EQ(musicFolder(R"("/home/ada2")"), u"/home/ada2"_s);
}

TEST(UserDirectories, dropsNeedlessSlashesAndDots)
{
    EXPECT_EQ(musicFolder(R"("$HOME//a/./b//")"), u"/home/ada/a/b"_s);
    EXPECT_EQ(musicFolder(R"("//data///music/")"), u"/data/music"_s);
    EXPECT_EQ(musicFolder(R"("$HOME/..a/.b")"), u"/home/ada/..a/.b"_s);
}

TEST(UserDirectories, ignoresLinesThatSayNothingUsable)
{
    const QByteArrayList values = {
        "",
        "\"",
        "\"\"",
        "$HOME/x",
        "/data/x",
        "'$HOME/x'",
        "\"x\"",
        "\"~/x\"",
        "\"$HOMEx\"",
        "\"$HOME x\"",
        "\"\\$HOME/x\"",
        "\"${HOME}/x\"",
        "\"$HOME/x",
        "\"$HOME/x\\\"",
        "\"$HOME/x\\",
        "\"$HOME/x\"y",
        "\"$HOME/x\" y",
        "\"$HOME/../x\"",
        "\"$HOME/x/..\"",
        "\"/data/../home\"",
        QByteArray("\"$HOME/a\0b\"", 12),
        "\"/" + QByteArray(5000, 'a') + "\"",
    };
    for (const QByteArray &value : values)
        EXPECT_EQ(musicFolder(value), englishMusic) << value.constData();
    for (const QByteArray line :
         {"XDG_MUSIC_DIR", "=\"/x\"", "XDG_MUSIC_DIRS=\"/x\"", "xdg_music_dir=\"/x\"", "MUSIC=\"/x\"",
          "export XDG_MUSIC_DIR=\"/x\"", "\xFF\xFE=\"/x\"", "\"", "[section]"})
        EXPECT_EQ(parseUserDirectories(line, home), englishNames()) << line.constData();
}

TEST(UserDirectories, letsTheLastUsableLineCount)
{
    const QByteArray file = "XDG_MUSIC_DIR=\"/first\"\nXDG_MUSIC_DIR=\"/second\"\nXDG_MUSIC_DIR=\"broken\n";
    EXPECT_EQ(parseUserDirectories(file, home).music, u"/second"_s);
}

TEST(UserDirectories, takesPathsUpToTheSystemsLimit)
{
    EXPECT_EQ(musicFolder("\"/" + QByteArray(4094, 'a') + "\"").size(), 4095);
    EXPECT_EQ(musicFolder("\"/" + QByteArray(4095, 'a') + "\""), englishMusic);
}

TEST(UserDirectories, keepsNamesThatAreNotUtf8)
{
    const QString folder = musicFolder("\"$HOME/M\xFCsik/\xC3\"");
    EXPECT_EQ(folder, u"/home/ada/M"_s + QChar(0xDCFC) + u"sik/"_s + QChar(0xDCC3));
    EXPECT_EQ(paths::toBytes(folder), QByteArray("/home/ada/M\xFCsik/\xC3"));
}

TEST(UserDirectories, comparesWithHomeInAnyBytes)
{
    const QString rawHome = paths::fromBytes(QByteArray("/home/j\xF6"));
    EXPECT_EQ(parseUserDirectories("XDG_MUSIC_DIR=\"/home/j\xF6/\"", rawHome).music, QString());
    EXPECT_EQ(paths::toBytes(parseUserDirectories("XDG_MUSIC_DIR=\"$HOME/x\"", rawHome).music),
              QByteArray("/home/j\xF6/x"));
}

TEST(UserDirectories, survivesRandomBytes)
{
    // A fixed generator over the format's own words reaches deep into the parser, the same way each time.
    static const QByteArrayList pieces = {
        "XDG_MUSIC_DIR",    "=", "\"", "$HOME", "/", "\\", "..", "\n", " ", "#", "a", "\xFF",
        QByteArray(1, '\0')};
    quint32 state = 1;
    int understood = 0;
    for (int round = 0; round < 20000; ++round) {
        QByteArray file;
        for (int i = 0; i < 12; ++i) {
            state = state * 1664525U + 1013904223U;
            file += pieces[static_cast<qsizetype>((state >> 16) % static_cast<quint32>(pieces.size()))];
        }
        const QString music = musicFolder('"' + file + '"');
        ASSERT_TRUE(music.isEmpty() || (music.startsWith(u'/') && !music.endsWith(u'/')));
        ASSERT_FALSE(music.contains(QChar(0)) || music.split(u'/').contains(u".."_s));
        ASSERT_FALSE(!music.isEmpty() && paths::isAtOrBelow(home, music));
        understood += music == englishMusic ? 0 : 1;
    }
    EXPECT_GT(understood, 100);
}
