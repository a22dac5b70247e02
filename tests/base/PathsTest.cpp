#include "base/Paths.h"

#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What the system gives, as text and as bytes again.
QByteArray roundTrip(const QByteArray &bytes)
{
    return paths::toBytes(paths::fromBytes(bytes));
}

/// True when every byte has become a lone low surrogate of its own.
bool isEscapedWhole(const QByteArray &bytes)
{
    const QString text = paths::fromBytes(bytes);
    if (text.size() != bytes.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].unicode() != 0xDC00 + static_cast<uchar>(bytes[i]))
            return false;
    }
    return true;
}

} // namespace

TEST(PathBytes, keepEveryByteValueAlone)
{
    for (int value = 1; value < 256; ++value) {
        const QByteArray byte(1, static_cast<char>(value));
        EXPECT_EQ(roundTrip(byte), byte) << value;
        EXPECT_EQ(paths::fromBytes(byte).size(), 1) << value;
    }
}

TEST(PathBytes, keepEveryPairOfByteValuesWithinAName)
{
    for (int first = 1; first < 256; ++first) {
        for (int second = 1; second < 256; ++second) {
            const char name[] = {'a', static_cast<char>(first), static_cast<char>(second), 'z'};
            const QByteArray bytes(name, sizeof name);
            ASSERT_EQ(roundTrip(bytes), bytes) << first << ' ' << second;
        }
    }
}

TEST(PathBytes, keepRandomBytesOfAllKindsOfUtf8)
{
    // Pieces that decoders trip over: leads, continuations, whole, cut, overlong and surrogate sequences.
    const std::vector<std::string> pieces = {"a",
                                             "/",
                                             "\x80",
                                             "\xBF",
                                             "\xC0\xAF",
                                             "\xC2",
                                             "\xC3\xA9",
                                             "\xE0",
                                             "\xE0\x80",
                                             "\xE2\x82",
                                             "\xE2\x82\xAC",
                                             "\xED\xA0\xBD",
                                             "\xED\xB8\x80",
                                             "\xED\xB2\x80",
                                             "\xEF",
                                             "\xEF\xBB",
                                             "\xEF\xBB\xBF",
                                             "\xEF\xBF\xBE",
                                             "\xEF\xBF\xBD",
                                             "\xF0\x9F\x98",
                                             "\xF0\x9F\x98\x80",
                                             "\xF0\x80\x80\xAF",
                                             "\xF4\x8F\xBF\xBF",
                                             "\xF4\x90\x80\x80",
                                             "\xF8",
                                             "\xFE",
                                             "\xFF"};
    std::mt19937 random(20240301); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same names in each run
    std::set<QString> texts;
    std::set<QByteArray> names;
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes;
        for (auto left = random() % 6; left > 0; --left) {
            const std::string &piece = pieces[random() % pieces.size()];
            bytes.append(piece.data(), static_cast<qsizetype>(piece.size()));
            if (random() % 4 == 0)
                bytes.append(static_cast<char>(1 + random() % 255));
        }
        ASSERT_EQ(roundTrip(bytes), bytes) << bytes.toHex(' ').toStdString();
        names.insert(bytes);
        texts.insert(paths::fromBytes(bytes));
    }
    EXPECT_EQ(texts.size(), names.size()) << "two names became one text";
}

TEST(PathBytes, decodeWellFormedNamesAsTheyRead)
{
    EXPECT_EQ(paths::fromBytes("/home/ada/na\xC3\xAFve \xF0\x9F\x98\x80"), u"/home/ada/naïve 😀"_s);
    EXPECT_EQ(paths::toBytes(u"/home/ada/naïve 😀"), "/home/ada/na\xC3\xAFve \xF0\x9F\x98\x80");
}

TEST(PathBytes, decodeTheRestOfANameWithABadByteAsItReads)
{
    const QString text = paths::fromBytes("\xF0\x9F\x98\x80\xFF\xC3\xA9");
    EXPECT_EQ(text, u"😀"_s + QChar(u'\xDCFF') + u"é"_s);
}

TEST(PathBytes, keepAByteOrderMarkThatBeginsAName)
{
    EXPECT_EQ(roundTrip("\xEF\xBB\xBFnotes.txt"), "\xEF\xBB\xBFnotes.txt");
    EXPECT_EQ(roundTrip("\xEF\xBB\xBF\xEF\xBB\xBFtwo"), "\xEF\xBB\xBF\xEF\xBB\xBFtwo");
    EXPECT_EQ(roundTrip("\xFF\xEF\xBB\xBF"), "\xFF\xEF\xBB\xBF");
    EXPECT_EQ(roundTrip("a\xEF\xBB\xBF"), "a\xEF\xBB\xBF");
}

TEST(PathBytes, keepNormalisationFormsApart)
{
    EXPECT_EQ(roundTrip("e\xCC\x81"), "e\xCC\x81");
    EXPECT_NE(paths::fromBytes("e\xCC\x81"), paths::fromBytes("\xC3\xA9"));
}

TEST(PathBytes, takeSurrogatesInUtf8AsBytesThatAreNotUtf8)
{
    EXPECT_TRUE(isEscapedWhole("\xED\xA0\xBD\xED\xB8\x80")); // a pair, each half encoded on its own
    EXPECT_TRUE(isEscapedWhole("\xED\xB2\x80"));             // what stands for the byte 0x80, encoded
    EXPECT_TRUE(isEscapedWhole("\xED\xBF\xBF"));
}

TEST(PathBytes, takeOverlongFormsAsBytesThatAreNotUtf8)
{
    EXPECT_TRUE(isEscapedWhole("\xC0\xAF"));
    EXPECT_TRUE(isEscapedWhole("\xC1\xBF"));
    EXPECT_TRUE(isEscapedWhole("\xE0\x80\xAF"));
    EXPECT_TRUE(isEscapedWhole("\xE0\x9F\xBF"));
    EXPECT_TRUE(isEscapedWhole("\xF0\x80\x80\xAF"));
    EXPECT_TRUE(isEscapedWhole("\xF0\x8F\xBF\xBF"));
}

TEST(PathBytes, takeTruncatedSequencesAsBytesThatAreNotUtf8)
{
    EXPECT_TRUE(isEscapedWhole("\xC3"));
    EXPECT_TRUE(isEscapedWhole("\xE2\x82"));
    EXPECT_TRUE(isEscapedWhole("\xF0\x9F\x98"));
    EXPECT_EQ(paths::fromBytes("\xE2\x82/"), QString(QChar(u'\xDCE2')) + QChar(u'\xDC82') + u'/');
}

TEST(PathBytes, takeValuesBeyondUnicodeAsBytesThatAreNotUtf8)
{
    EXPECT_TRUE(isEscapedWhole("\xF4\x90\x80\x80"));
    EXPECT_TRUE(isEscapedWhole("\xF5\x80\x80\x80"));
    EXPECT_EQ(paths::fromBytes("\xF4\x8F\xBF\xBF").size(), 2);
}

TEST(PathDisplay, showsABadByteAsAReplacementCharacter)
{
    EXPECT_EQ(paths::display(paths::fromBytes("a\xFF\xFE.txt")), u"a\uFFFD\uFFFD.txt"_s);
}

TEST(PathDisplay, leavesWholeSurrogatePairsAlone)
{
    // The second half of U+1F480 lies where the escapes do.
    EXPECT_EQ(paths::display(u"\U0001F480 é /"_s), u"\U0001F480 é /"_s);
    EXPECT_EQ(paths::display(QString()), QString());
}

TEST(PathDisplay, showsALoneHalfAsAReplacementCharacter)
{
    EXPECT_EQ(paths::display(QString(QChar(u'\xD83D'))), u"\uFFFD"_s);
    EXPECT_EQ(paths::display(QChar(u'\xD83D') + u"a"_s), u"\uFFFDa"_s);
    EXPECT_EQ(paths::display(u"😀"_s + QChar(u'\xDC80')), u"😀\uFFFD"_s);
}

TEST(Paths, namesTheParent)
{
    EXPECT_EQ(paths::parent(u"/a/b/c"_s), u"/a/b"_s);
    EXPECT_EQ(paths::parent(u"/a/b/"_s), u"/a"_s);
    EXPECT_EQ(paths::parent(u"/c"_s), u"/"_s);
    EXPECT_EQ(paths::parent(u"/"_s), u"/"_s);
    EXPECT_EQ(paths::parent(u"//"_s), u"/"_s);
    EXPECT_EQ(paths::parent(u"name"_s), QString());
    EXPECT_EQ(paths::parent(QString()), QString());
}

TEST(Paths, doesNotNormaliseDotsInAParent)
{
    EXPECT_EQ(paths::parent(u"/a/.."_s), u"/a"_s);
    EXPECT_EQ(paths::parent(u"/a/../b"_s), u"/a/.."_s);
}

TEST(Paths, namesTheLastComponent)
{
    EXPECT_EQ(paths::lastComponent(u"/a/b/c.txt"_s), u"c.txt"_s);
    EXPECT_EQ(paths::lastComponent(u"/a/b/c/"_s), u"c"_s);
    EXPECT_EQ(paths::lastComponent(u"/a//"_s), u"a"_s);
    EXPECT_EQ(paths::lastComponent(u"/"_s), u"/"_s);
    EXPECT_EQ(paths::lastComponent(u"name"_s), u"name"_s);
    EXPECT_EQ(paths::lastComponent(u"/a/.."_s), u".."_s);
    EXPECT_EQ(paths::lastComponent(QString()), QString());
}

TEST(PathExtension, isTheTextBehindTheLastDot)
{
    EXPECT_EQ(paths::extension(u"/a/photo.JPG"_s), u"JPG"_s);
    EXPECT_EQ(paths::extension(u"archive.tar.gz"_s), u"gz"_s);
    EXPECT_EQ(paths::extension(u"/a/Mail.app/"_s), u"app"_s);
    EXPECT_EQ(paths::extension(u"name. x"_s), u" x"_s);
}

TEST(PathExtension, isEmptyForDotFiles)
{
    EXPECT_EQ(paths::extension(u"/a/.profile"_s), QString());
    EXPECT_EQ(paths::extension(u".profile.bak"_s), u"bak"_s);
}

TEST(PathExtension, isEmptyForTrailingDots)
{
    EXPECT_EQ(paths::extension(u"name."_s), QString());
    EXPECT_EQ(paths::extension(u"name.txt."_s), QString());
    EXPECT_EQ(paths::extension(u"name.."_s), QString());
}

TEST(PathExtension, isEmptyForNamesOfDotsAndTheRoot)
{
    EXPECT_EQ(paths::extension(u"."_s), QString());
    EXPECT_EQ(paths::extension(u".."_s), QString());
    EXPECT_EQ(paths::extension(u"/a/.."_s), QString());
    EXPECT_EQ(paths::extension(u"..."_s), QString());
    EXPECT_EQ(paths::extension(u"/"_s), QString());
    EXPECT_EQ(paths::extension(QString()), QString());
}

TEST(PathExtension, doesNotLookAtFoldersAbove)
{
    EXPECT_EQ(paths::extension(u"/a.d/name"_s), QString());
}

TEST(Paths, joinsWithOneSlash)
{
    EXPECT_EQ(paths::join(u"/a"_s, u"b"_s), u"/a/b"_s);
    EXPECT_EQ(paths::join(u"/a/"_s, u"b"_s), u"/a/b"_s);
    EXPECT_EQ(paths::join(u"/"_s, u"b"_s), u"/b"_s);
}

TEST(Paths, countsAFolderItselfAndWhatLiesBelowIt)
{
    EXPECT_TRUE(paths::isAtOrBelow(u"/a/b"_s, u"/a/b"_s));
    EXPECT_TRUE(paths::isAtOrBelow(u"/a/b/c"_s, u"/a/b"_s));
    EXPECT_TRUE(paths::isAtOrBelow(u"/a/b/c"_s, u"/a/b/"_s));
    EXPECT_TRUE(paths::isAtOrBelow(u"/a"_s, u"/"_s));
    EXPECT_TRUE(paths::isAtOrBelow(u"/"_s, u"/"_s));
}

TEST(Paths, doesNotCountANeighbourWhoseNameBeginsAlike)
{
    EXPECT_FALSE(paths::isAtOrBelow(u"/a/bc"_s, u"/a/b"_s));
    EXPECT_FALSE(paths::isAtOrBelow(u"/a"_s, u"/a/b"_s));
    EXPECT_FALSE(paths::isAtOrBelow(u"/A/b"_s, u"/a"_s));
    EXPECT_FALSE(paths::isAtOrBelow(u"/x/a/b"_s, u"/a"_s));
}

TEST(Paths, tellsWhatLeadsBelowAFolder)
{
    EXPECT_EQ(paths::below(u"/a/b/c"_s, u"/a"_s), u"b/c"_s);
    EXPECT_EQ(paths::below(u"/a/b"_s, u"/a/"_s), u"b"_s);
    EXPECT_EQ(paths::below(u"//a/./b/..."_s, u"//a/./b"_s), u"..."_s) << "whatever the folder's own path";
    EXPECT_EQ(paths::below(u"/a"_s, u"/"_s), u"a"_s);
    for (const QString &path : {u"/a"_s, u"/a/"_s, u"/a/."_s, u"/a/.."_s, u"/a//b"_s, u"/a/b/"_s,
                                u"/a/b/../c"_s, u"/ab"_s, u"/"_s, u"a/b"_s, QString()})
        EXPECT_FALSE(paths::below(path, u"/a"_s)) << path.toStdString();
}

TEST(Paths, expandsALeadingTildeOnly)
{
    EXPECT_EQ(paths::expandTilde(u"~"_s, u"/home/ada"_s), u"/home/ada"_s);
    EXPECT_EQ(paths::expandTilde(u"~/a b"_s, u"/home/ada"_s), u"/home/ada/a b"_s);
    EXPECT_EQ(paths::expandTilde(u"~/a"_s, u"/"_s), u"/a"_s);
    EXPECT_EQ(paths::expandTilde(u"~bob/a"_s, u"/home/ada"_s), u"~bob/a"_s);
    EXPECT_EQ(paths::expandTilde(u"/a/~"_s, u"/home/ada"_s), u"/a/~"_s);
}

TEST(PathTilde, standsForTheHomeFolder)
{
    EXPECT_EQ(paths::withTilde(u"/home/ada"_s, u"/home/ada"_s), u"~"_s);
    EXPECT_EQ(paths::withTilde(u"/home/ada/a b/c"_s, u"/home/ada"_s), u"~/a b/c"_s);
    EXPECT_EQ(paths::withTilde(u"/home/ada/"_s, u"/home/ada"_s), u"~/"_s);
}

TEST(PathTilde, standsForNothingButTheHomeFolder)
{
    EXPECT_EQ(paths::withTilde(u"/home/adam/a"_s, u"/home/ada"_s), u"/home/adam/a"_s);
    EXPECT_EQ(paths::withTilde(u"/home/Ada/a"_s, u"/home/ada"_s), u"/home/Ada/a"_s);
    EXPECT_EQ(paths::withTilde(u"/home"_s, u"/home/ada"_s), u"/home"_s);
    EXPECT_EQ(paths::withTilde(u"/mnt/home/ada/a"_s, u"/home/ada"_s), u"/mnt/home/ada/a"_s);
    EXPECT_EQ(paths::withTilde(u"node_modules"_s, u"/home/ada"_s), u"node_modules"_s);
    EXPECT_EQ(paths::withTilde(QString(), u"/home/ada"_s), QString());
}

TEST(PathTilde, isNotWrittenWithoutAHomeFolder)
{
    EXPECT_EQ(paths::withTilde(u"/a"_s, QString()), u"/a"_s);
    EXPECT_EQ(paths::withTilde(QString(), QString()), QString());
}

TEST(PathTilde, keepsTheSlashBehindAHomeFolderThatEndsInOne)
{
    EXPECT_EQ(paths::withTilde(u"/"_s, u"/"_s), u"~"_s);
    EXPECT_EQ(paths::withTilde(u"/a/b"_s, u"/"_s), u"~/a/b"_s);
    EXPECT_EQ(paths::withTilde(u"/home/ada/a"_s, u"/home/ada/"_s), u"~/a"_s);
}

TEST(PathTilde, expandsToThePathThatItStandsFor)
{
    const QString bad = paths::fromBytes("/home/ada/a\xFF");
    for (const QString &path : {u"/home/ada"_s, u"/home/ada/a b"_s, u"/srv/a"_s, bad})
        EXPECT_EQ(paths::expandTilde(paths::withTilde(path, u"/home/ada"_s), u"/home/ada"_s), path);
    EXPECT_EQ(paths::expandTilde(paths::withTilde(u"/a"_s, u"/"_s), u"/"_s), u"/a"_s);
}

TEST(FileUrls, encodeEveryByteOutsideTheUnreservedSet)
{
    EXPECT_EQ(paths::fileUrl(u"/a/b-c_d.e~f"_s), "file:///a/b-c_d.e~f");
    EXPECT_EQ(paths::fileUrl(u"/a b%#?&\n\"é"_s), "file:///a%20b%25%23%3F%26%0A%22%C3%A9");
    EXPECT_EQ(paths::fileUrl(paths::fromBytes("/\xFF")), "file:///%FF");
}

TEST(FileUrls, leadBackToEveryPath)
{
    for (int value = 1; value < 256; ++value) {
        const QString path = paths::fromBytes("/a/" + QByteArray(1, static_cast<char>(value)) + "z");
        EXPECT_EQ(paths::fromFileUrl(paths::fileUrl(path)), path) << value;
    }
}

TEST(FileUrls, areReadWithAHostName)
{
    EXPECT_EQ(paths::fromFileUrl("file://localhost/a%20b"), u"/a b"_s);
}

TEST(FileUrls, areReadWithSmallHexDigits)
{
    EXPECT_EQ(paths::fromFileUrl("file:///%c3%a9"), u"/é"_s);
}

TEST(FileUrls, giveNoPathForOtherAddresses)
{
    EXPECT_EQ(paths::fromFileUrl("https://example.org/a"), QString());
    EXPECT_EQ(paths::fromFileUrl("/a/b"), QString());
    EXPECT_EQ(paths::fromFileUrl("file://host"), QString());
    EXPECT_EQ(paths::fromFileUrl(""), QString());
}

TEST(Paths, showWhatWouldBreakALineAsSignsOfItsOwn)
{
    EXPECT_EQ(paths::inOneLine(u"a\nb\tc\x1B[31m\x7F"_s), u"a\u21B5b\u21E5c\u2327[31m\u2327"_s);
    EXPECT_EQ(paths::inOneLine(u"a\rb\r\nc\n\rd"_s), u"a\u21B5b\u21B5c\u21B5\u21B5d"_s); // a pair is one turn
    EXPECT_EQ(paths::inOneLine(u"a\u2028b\u2029c\u0085d"_s), u"a\uFFFDb\uFFFDc\uFFFDd"_s);
    EXPECT_EQ(paths::inOneLine(paths::fromBytes("bytes \xff")), u"bytes \uFFFD"_s);
    EXPECT_EQ(paths::inOneLine(u"plain \u05E9\u05DC\u05D5\u05DD \U0001F980"_s),
              u"plain \u05E9\u05DC\u05D5\u05DD \U0001F980"_s);
}

TEST(Paths, showNoNameInAnotherOrderThanItIsWritten)
{
    // An override would let "gpj.exe" read as "exe.jpg".
    EXPECT_EQ(paths::inOneLine(u"photo\u202Egpj.exe"_s), u"photo\uFFFDgpj.exe"_s);
    EXPECT_EQ(paths::inOneLine(u"\u2066a\u2069"_s), u"\uFFFDa\uFFFD"_s);
}

TEST(Paths, tellTheStemOfAName)
{
    EXPECT_EQ(paths::stem(u"/a/b/Tide Tables.app"_s), u"Tide Tables");
    EXPECT_EQ(paths::stem(u"/a/b/Tides 2.1.app/"_s), u"Tides 2.1");
    EXPECT_EQ(paths::stem(u"Tides"_s), u"Tides");
    EXPECT_EQ(paths::stem(u"/a.b/.app"_s), u".app");
    EXPECT_EQ(paths::stem(u"name."_s), u"name.");
    EXPECT_EQ(paths::stem(u".."_s), u"..");
    EXPECT_EQ(paths::stem(u"/"_s), u"/");
}

TEST(Paths, knowWhatNamesOneEntryOfAFolder)
{
    for (const QString &name :
         {u"a"_s, u"..."_s, u".hidden"_s, u" "_s, u"a\\b"_s, u"a\nb"_s, paths::fromBytes("\xff")})
        EXPECT_TRUE(paths::isEntryName(name)) << name.toStdString();
    for (const QString &name :
         {u""_s, u"."_s, u".."_s, u"/"_s, u"a/b"_s, u"a/"_s, u"/a"_s, u"../a"_s, QString(QChar(0))})
        EXPECT_FALSE(paths::isEntryName(name)) << name.toStdString();
}
