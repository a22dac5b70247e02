#include "base/Paths.h"
#include "CallCounts.h"
#include "duplicates/Contents.h"
#include "duplicates/scan/DuplicateScan.h"
#include "ScanRun.h"
#include "support/TempHome.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <set>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace contents;

namespace {

using Groups = std::vector<QStringList>;

constexpr qint64 tebibyte = qint64(1) << 40;

QByteArray native(const QString &path)
{
    return paths::toBytes(path);
}

void makePipe(const QString &path)
{
    ASSERT_EQ(mkfifo(native(path).constData(), 0600), 0);
}

void makeSocket(const QString &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray bytes = native(path);
    ASSERT_LT(static_cast<size_t>(bytes.size()), sizeof address.sun_path);
    memcpy(address.sun_path, bytes.constData(), static_cast<size_t>(bytes.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(descriptor);
}

/// Writes into a file of which most takes no room.
void writeAt(const QString &path, qint64 offset, const QByteArray &bytes)
{
    const int descriptor = open(native(path).constData(), O_WRONLY | O_CLOEXEC);
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(pwrite(descriptor, bytes.constData(), static_cast<size_t>(bytes.size()), offset), bytes.size());
    close(descriptor);
}

/// Four equal files, the third of which meets with something between the walk and the comparison. Scanned folder by
/// folder, so that their order is known.
class DuplicateBadInputTest : public testing::TestWithParam<int>
{
protected:
    TempHome temp;
    QByteArray content = filled(GetParam());
    QStringList scanPaths;
    QStringList files;

    void SetUp() override
    {
        for (int number = 0; number < 4; ++number) {
            files << temp.file(u"%1/file"_s.arg(number), content);
            scanPaths << temp.at(QString::number(number));
        }
    }

    QString hash() const
    {
        return content.size() > 1048576 ? sampleSha256(content) : contents::sha256(content);
    }

    QStringList others() const { return {files[0], files[1], files[3]}; }

    const QString &victim() const { return files[2]; }

    void removeVictim() const { ASSERT_EQ(unlink(native(victim()).constData()), 0); }

    /// The groups when `change` happens after the walk; the first one has to be that of the others.
    duplicatescan::Result scan(std::function<void()> change)
    {
        ScanRun run(scanPaths);
        run.whenComparing = std::move(change);
        auto result = run.run();
        EXPECT_EQ(ScanRun::paths(result), Groups{others()});
        EXPECT_TRUE(result.groups.empty() || result.groups.front().hash == hash());
        EXPECT_FALSE(result.wasCancelled);
        return result;
    }
};

} // namespace

TEST_P(DuplicateBadInputTest, leavesAFileOutThatHasShrunk)
{
    const auto result =
        scan([this] { ASSERT_EQ(truncate(native(victim()).constData(), content.size() - 1), 0); });
    EXPECT_EQ(result.hashFailureCount, 0) << "it could be read";
}

TEST_P(DuplicateBadInputTest, leavesAFileOutThatHasBecomeEmpty)
{
    EXPECT_EQ(scan([this] { temp.file(u"2/file"_s); }).hashFailureCount, 0);
}

TEST_P(DuplicateBadInputTest, leavesAFileOutThatHasBeenRewritten)
{
    const auto result = scan([this] { temp.file(u"2/file"_s, changedAt(content, content.size() - 1)); });
    EXPECT_EQ(result.hashFailureCount, 0);
}

TEST_P(DuplicateBadInputTest, comparesAFileThatHasGrownByItsFormerSize)
{
    ScanRun run(scanPaths);
    run.whenComparing = [this] { temp.file(u"2/file"_s, content + filled(20000)); };
    const auto result = run.run();
    EXPECT_EQ(ScanRun::paths(result), Groups{files});
    EXPECT_EQ(result.hashFailureCount, 0);
}

TEST_P(DuplicateBadInputTest, countsAFileThatHasVanished)
{
    EXPECT_EQ(scan([this] { removeVictim(); }).hashFailureCount, 1);
}

TEST_P(DuplicateBadInputTest, countsAFileThatMayNoLongerBeRead)
{
    const InjectedFaults fault(files::Operation::open, victim());
    EXPECT_EQ(scan([] {}).hashFailureCount, 1);
}

TEST_P(DuplicateBadInputTest, countsAFileThatHasBecomeAFolder)
{
    const auto result = scan([this] {
        removeVictim();
        temp.folder(u"2/file"_s);
    });
    EXPECT_EQ(result.hashFailureCount, 1);
}

TEST_P(DuplicateBadInputTest, countsAFileThatHasBecomeAPipeWithoutWaitingForItsWriter)
{
    const auto result = scan([this] {
        removeVictim();
        makePipe(victim());
    });
    EXPECT_EQ(result.hashFailureCount, 1);
}

TEST_P(DuplicateBadInputTest, countsAFileThatHasBecomeASocket)
{
    const auto result = scan([this] {
        removeVictim();
        makeSocket(victim());
    });
    EXPECT_EQ(result.hashFailureCount, 1);
}

TEST_P(DuplicateBadInputTest, countsAFileThatHasBecomeALinkToAnEndlessDevice)
{
    const auto result = scan([this] {
        removeVictim();
        temp.link(u"2/file"_s, u"/dev/zero"_s);
    });
    EXPECT_EQ(result.hashFailureCount, 1);
}

TEST_P(DuplicateBadInputTest, countsAFileWhoseFolderHasVanished)
{
    const auto result = scan([this] {
        removeVictim();
        ASSERT_EQ(rmdir(native(scanPaths[2]).constData()), 0);
    });
    EXPECT_EQ(result.hashFailureCount, 1);
}

TEST_P(DuplicateBadInputTest, countsAllFilesThatHaveVanished)
{
    ScanRun run(scanPaths);
    run.whenComparing = [this] {
        for (const QString &file : files)
            ASSERT_EQ(unlink(native(file).constData()), 0);
    };
    const auto result = run.run();
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(result.hashFailureCount, 4);
}

/// Of those that are read in one go, in two, and at both ends.
INSTANTIATE_TEST_SUITE_P(Sizes, DuplicateBadInputTest,
                         testing::Values(100, 4096, 10000, 1048576, 1048577, 2000000));

TEST(DuplicateBadFiles, groupsWhatIsLeftOfFilesThatHaveShrunkAlike)
{
    const TempHome temp;
    const QString one = temp.file(u"1/file"_s, filled(10000, 1));
    const QString two = temp.file(u"2/file"_s, filled(10000, 1));
    ScanRun run({temp.at(u"1"_s), temp.at(u"2"_s)});
    run.whenComparing = [&] {
        for (const QString &file : {one, two})
            ASSERT_EQ(truncate(native(file).constData(), 50), 0);
    };
    const auto result = run.run();
    ASSERT_EQ(ScanRun::paths(result), Groups{QStringList({one, two})});
    EXPECT_EQ(result.groups.front().hash, contents::sha256(filled(10000, 1).first(50)));
    EXPECT_EQ(result.groups.front().size, 10000) << "the size that the walk has seen";
}

TEST(DuplicateBadFiles, groupsNoFileWithOneThatItNeverEqualled)
{
    const TempHome temp;
    const QByteArray old = filled(10000, 1);
    const QByteArray fresh = filled(6000, 2) + filled(4000, 3);
    const QString rewritten = temp.file(u"1/file"_s, old);
    temp.file(u"2/file"_s, old.first(6000) + fresh.last(4000));
    int openings = 0;
    const InjectedFaults rewriting([&](files::Operation operation, const QString &path) {
        if (operation == files::Operation::open && path == rewritten && ++openings == 2)
            temp.file(u"1/file"_s, fresh);
        return 0;
    });
    const auto result = ScanRun({temp.at(u"1"_s), temp.at(u"2"_s)}).run();
    EXPECT_EQ(openings, 2);
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(result.hashFailureCount, 1) << "it is left out";
}

TEST(DuplicateBadFiles, countsPipesSocketsAndDevicesWithoutWaitingForThem)
{
    const TempHome temp;
    makePipe(temp.at(u"pipe"_s));
    makePipe(temp.at(u"pipe2"_s));
    makeSocket(temp.at(u"socket"_s));
    temp.link(u"link"_s, u"pipe"_s);
    temp.link(u"knil"_s, u"pipe"_s);
    temp.link(u"zero1"_s, u"/dev/zero"_s);
    temp.link(u"zero2"_s, u"/dev/zero"_s);
    temp.link(u"socketLink1"_s, u"socket"_s);
    temp.link(u"socketLink2"_s, u"socket"_s);
    const auto result = ScanRun({temp.path()}, 0).run();
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(result.hashFailureCount, 9);
    EXPECT_EQ(ScanRun({temp.path()}, 5).run().hashFailureCount, 4) << "by the size of the links";
}

TEST(DuplicateBadFiles, comparesFilesOfATebibyteByTheirEnds)
{
    const TempHome temp;
    const QString one = temp.sparseFile(u"1/file"_s, tebibyte);
    const QString two = temp.sparseFile(u"2/file"_s, tebibyte);
    const QString other = temp.sparseFile(u"3/file"_s, tebibyte);
    const QString middle = temp.sparseFile(u"4/file"_s, tebibyte);
    writeAt(other, tebibyte - 1, "x");
    writeAt(middle, tebibyte / 2, "x");
    const CallCounts calls;
    const auto result = ScanRun({temp.at(u"1"_s), temp.at(u"2"_s), temp.at(u"3"_s), temp.at(u"4"_s)}).run();
    ASSERT_EQ(ScanRun::paths(result), Groups{QStringList({one, two, middle})});
    EXPECT_EQ(result.groups.front().size, tebibyte);
    EXPECT_EQ(result.groups.front().wastedBytes(), 2 * tebibyte);
    EXPECT_EQ(result.groups.front().hash,
              contents::sha256(QByteArray(16384, '\0') + QByteArray("\0\0\0\0\0\1\0\0", 8)));
    EXPECT_LE(calls.readFiles.size(), 9);
}

TEST(DuplicateBadFiles, groupsTwentyThousandEmptyFiles)
{
    constexpr int count = 20000;
    const TempHome temp;
    temp.folder(u"many"_s);
    for (int number = 0; number < count; ++number) {
        const int descriptor =
            open(native(temp.at(u"many/%1"_s.arg(number))).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        ASSERT_NE(descriptor, -1);
        close(descriptor);
    }
    const CallCounts calls;
    const auto result = ScanRun({temp.path()}, 0).run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().files.size(), static_cast<size_t>(count));
    EXPECT_EQ(result.groups.front().wastedBytes(), 0);
    EXPECT_EQ(calls.opened.size(), count) << "each once";
    EXPECT_EQ(calls.readFiles.size(), count);
}

TEST(DuplicateBadFiles, findsAFileOfNestedScanPathsAsACopyOfItself)
{
    const TempHome temp;
    const QString one = temp.file(u"a/b/one"_s, "same");
    const QStringList roots = {temp.path(), temp.at(u"a"_s), temp.at(u"a/b"_s), temp.at(u"a/b"_s) + u'/'};
    const auto result = ScanRun(roots).run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(ScanRun::paths(result.groups.front()),
              QStringList({one, one, one, temp.at(u"a/b"_s) + u"//one"_s}));
    EXPECT_EQ(result.hashFailureCount, 0);
}

TEST(DuplicateBadFiles, countsAFileOfNestedScanPathsTwiceThatCannotBeOpened)
{
    const TempHome temp;
    const QString only = temp.file(u"a/only"_s, "content");
    const InjectedFaults fault(files::Operation::open, only);
    const auto result = ScanRun({temp.path(), temp.at(u"a"_s)}).run();
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(result.hashFailureCount, 2);
}

TEST(DuplicateBadFiles, keepTheirNamesWhateverTheseAre)
{
    const TempHome temp;
    std::set<QString> made;
    std::vector<QByteArray> names = {
        " lead and trail ", "new\nline",        "quote\"'`",   "$HOME *?[a]", "-rf",
        "back\\slash",      "per%20cent%",      "tab\tbell\a", "a...",        "\xFF\xFE",
        "\xED\xA0\xBD",     "\xF0\x9F\x98\x80", "e\xCC\x81",   "\xC3\xA9"};
    names.emplace_back(255, 'n');
    names.emplace_back(255, '\x80');
    for (const QByteArray &name : names)
        made.insert(temp.file(paths::fromBytes(name) + u'/' + paths::fromBytes(name), "same"));
    const auto result = ScanRun({temp.path()}).run();
    ASSERT_EQ(result.groups.size(), 1U);
    const QStringList found = ScanRun::paths(result.groups.front());
    EXPECT_EQ(std::set<QString>(found.begin(), found.end()), made);
    EXPECT_EQ(found.size(), static_cast<qsizetype>(names.size()));
    EXPECT_EQ(result.hashFailureCount, 0);
}

TEST(DuplicateBadFiles, areNoneInScanPathsThatNameNothing)
{
    const TempHome temp;
    const QString file = temp.file(u"file"_s, "content");
    const QString withNul = temp.path() + QChar(u'\0') + u"x"_s;
    const auto result = ScanRun({u""_s, u"relative"_s, temp.at(u"missing"_s), file, withNul}).run();
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(result.hashFailureCount, 0);
}

TEST(DuplicateBadFiles, areFoundAsFarAsTheSystemTakesTheLengthOfTheirPaths)
{
    const TempHome temp;
    temp.file(u"1/a"_s, "same");
    temp.file(u"1/b"_s, "same");
    const QString name(255, u'n');
    temp.link(u"1/"_s + name, u"."_s); // lets a path grow without end
    QString root = temp.at(u"1"_s);
    while (root.size() + 256 < PATH_MAX)
        root += u'/' + name;
    ASSERT_LE(root.size() + 2, PATH_MAX - 1) << "else the files themselves are out of reach";
    ScanRun run({root});
    const auto result = run.run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().files.size(), 2U);
    EXPECT_EQ(result.hashFailureCount, 0);
    EXPECT_EQ(run.entered, QStringList({root, root + u'/' + name})) << "the second one can't be listed";
}
