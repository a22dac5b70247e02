#include "base/AtomicWrite.h"

#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "support/AnotherProcess.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"

#include <cerrno>
#include <csignal>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using files::Operation;

namespace {

class AtomicWriteTest : public ::testing::Test
{
protected:
    void TearDown() override { files::injectFaults({}); }

    int failureOfWrite(const QByteArray &bytes = "new") const
    {
        return failureOf([&] { files::writeAtomically(path, bytes); });
    }
    int failureOfRead(qint64 most) const
    {
        return failureOf([&] { files::readAll(path, most); });
    }
    template<typename Call>
    static int failureOf(const Call &call)
    {
        try {
            call();
            return 0;
        } catch (const Error &error) {
            EXPECT_EQ(error.domain, errors::systemDomain);
            return error.code;
        }
    }
    QByteArray content() const { return files::readAll(path, 1 << 30); }
    unsigned mode() const
    {
        struct stat status = {};
        EXPECT_EQ(lstat(paths::toBytes(path).constData(), &status), 0);
        return status.st_mode & 07777;
    }
    /// Nothing but the file itself is in its folder.
    void expectAlone() const { EXPECT_EQ(files::list(temp.path()), std::vector{u"file"_s}); }

    /// The name of the file that is written beside `path`, found while one is.
    QString temporaryName() const
    {
        QString name;
        files::injectFaults([&](Operation asked, const QString &) {
            if (asked != Operation::sync)
                return 0;
            const auto names = files::list(temp.path()).value();
            for (const QString &each : names)
                name = each.startsWith(u".quillmere-") ? each : name;
            return EIO;
        });
        EXPECT_EQ(failureOfWrite(), EIO);
        files::injectFaults({});
        EXPECT_NE(name, QString());
        return name;
    }
    /// Dies half way through a write of `path`.
    void dieWhileWriting() const
    {
        const int code = inAnotherProcess([this] {
            files::injectFaults([](Operation asked, const QString &) {
                return asked == Operation::sync ? raise(SIGKILL) : 0;
            });
            files::writeAtomically(path, "half");
        });
        EXPECT_EQ(code, -1);
    }

    const TempHome temp;
    const QString path = temp.at(u"file"_s);
};

} // namespace

TEST_F(AtomicWriteTest, makesAFileForItsUserAlone)
{
    files::writeAtomically(path, "content");
    EXPECT_EQ(content(), "content");
    EXPECT_EQ(mode(), 0600U);
    expectAlone();
}

TEST_F(AtomicWriteTest, replacesAFileAndHandsItsPermissionsOn)
{
    temp.file(u"file"_s, "a longer old content");
    temp.setMode(u"file"_s, 0644);
    files::writeAtomically(path, "new");
    EXPECT_EQ(content(), "new");
    EXPECT_EQ(mode(), 0644U);
    expectAlone();
}

TEST_F(AtomicWriteTest, makesAFileReadableAndWritableToItsUser)
{
    const std::pair<unsigned, unsigned> rows[] = {{0, 0600}, {0444, 0644}, {0200, 0600}, {0640, 0640}};
    for (const auto &[before, after] : rows) {
        temp.file(u"file"_s, "old");
        temp.setMode(u"file"_s, before);
        files::writeAtomically(path, "new");
        EXPECT_EQ(mode(), after);
    }
}

TEST_F(AtomicWriteTest, leavesOneFileHoweverManyWritersAreKilled)
{
    temp.file(u"file"_s, "old");
    for (int i = 0; i < 5; ++i)
        dieWhileWriting();
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(files::list(temp.path())->size(), 2U);
    files::writeAtomically(path, "new");
    EXPECT_EQ(content(), "new");
    expectAlone();
}

TEST_F(AtomicWriteTest, keepsTheTemporaryFilesOfAFoldersFilesApart)
{
    dieWhileWriting();
    const auto left = files::list(temp.path()).value();
    ASSERT_EQ(left.size(), 1U);
    files::writeAtomically(temp.at(u"other"_s), "content");
    EXPECT_TRUE(files::exists(temp.at(left[0])));
}

TEST_F(AtomicWriteTest, writesNothingThroughALinkAtItsTemporaryName)
{
    const QString target = temp.file(u"target"_s, "untouched");
    const QString name = temporaryName();
    for (const bool isHard : {false, true}) {
        if (isHard) {
            ASSERT_EQ(link(paths::toBytes(target).constData(), paths::toBytes(temp.at(name)).constData()), 0);
        } else {
            temp.link(name, target);
        }
        files::writeAtomically(path, "new");
        EXPECT_EQ(content(), "new");
        EXPECT_EQ(files::readAll(target, 100), "untouched");
        EXPECT_EQ(files::list(temp.path())->size(), 2U);
    }
}

TEST_F(AtomicWriteTest, passesOverAFolderAtItsTemporaryName)
{
    const QString inside = temp.file(temporaryName() + u"/inside"_s, "untouched");
    files::writeAtomically(path, "new");
    EXPECT_EQ(content(), "new");
    EXPECT_EQ(files::readAll(inside, 100), "untouched");
    EXPECT_EQ(files::list(temp.path())->size(), 2U);
}

TEST_F(AtomicWriteTest, takesALeftOverWithoutPermissionsAway)
{
    temp.setMode(u""_s, 0777);
    const bool holds = holdsForOrdinaryUser([this] {
        const QString name = temporaryName();
        temp.file(name, "left");
        temp.setMode(name, 0);
        files::writeAtomically(path, "new");
        EXPECT_EQ(content(), "new");
        expectAlone();
    });
    EXPECT_TRUE(holds);
}

TEST_F(AtomicWriteTest, letsAnotherWriterFinishWhatItHasBegun)
{
    bool isFirst = true;
    files::injectFaults([&](Operation asked, const QString &) {
        if (asked == Operation::sync && std::exchange(isFirst, false))
            files::writeAtomically(path, "the other's");
        return 0;
    });
    files::writeAtomically(path, QByteArray(100'000, 'x'));
    EXPECT_FALSE(isFirst);
    EXPECT_EQ(content(), QByteArray(100'000, 'x'));
    expectAlone();
}

TEST_F(AtomicWriteTest, putsNothingInPlaceThatAnotherWriterHasBegunUnderItsName)
{
    temp.file(u"file"_s, "old");
    const QString name = temporaryName();
    for (const Operation lost : {Operation::write, Operation::sync, Operation::rename}) {
        files::injectFaults([&](Operation asked, const QString &) {
            if (asked == lost) { // a writer on a file system without locks took it for a left-over
                EXPECT_EQ(unlink(paths::toBytes(temp.at(name)).constData()), 0);
                temp.file(name, "half");
            }
            return 0;
        });
        EXPECT_EQ(failureOfWrite(), EBUSY);
        EXPECT_EQ(content(), "old");
        EXPECT_EQ(files::readAll(temp.at(name), 100), "half"); // it is the other's
        files::injectFaults({});
    }
}

TEST_F(AtomicWriteTest, leavesWhoReadsTheOldFileItsOldContent)
{
    temp.file(u"file"_s, "old");
    ASSERT_EQ(link(paths::toBytes(path).constData(), paths::toBytes(temp.at(u"second name"_s)).constData()),
              0);
    files::writeAtomically(path, "new");
    EXPECT_EQ(files::readAll(temp.at(u"second name"_s), 100), "old");
    EXPECT_EQ(content(), "new");
}

TEST_F(AtomicWriteTest, replacesALinkAndNotWhatItLeadsTo)
{
    const QString target = temp.file(u"target"_s, "untouched");
    temp.link(u"file"_s, target);
    files::writeAtomically(path, "new");
    EXPECT_EQ(files::attributes(path)->kind, files::Kind::file);
    EXPECT_EQ(content(), "new");
    EXPECT_EQ(files::readAll(target, 100), "untouched");
    EXPECT_EQ(mode(), 0600U);
}

TEST_F(AtomicWriteTest, writesNothingAndMuch)
{
    files::writeAtomically(path, {});
    EXPECT_EQ(content(), QByteArray());
    const QByteArray much(3'000'001, 'x');
    files::writeAtomically(path, much);
    EXPECT_EQ(content(), much);
}

TEST_F(AtomicWriteTest, writesUnderNamesInAnyBytesOfAnyLength)
{
    for (const QString &name : {paths::fromBytes("\xFF\n"), QString(255, u'n'), u" "_s}) {
        const QString odd = paths::join(temp.folder(paths::fromBytes("in \xFE")), name);
        files::writeAtomically(odd, "content");
        EXPECT_EQ(files::readAll(odd, 100), "content");
    }
    EXPECT_EQ(failureOf([this] { files::writeAtomically(path + QChar::Null + u"x"_s, "content"); }), ENOENT);
    EXPECT_FALSE(files::exists(path));
}

TEST_F(AtomicWriteTest, leavesTheOldFileAndNothingElseWhereAnyStepFails)
{
    temp.file(u"file"_s, "old");
    for (const Operation operation :
         {Operation::open, Operation::write, Operation::sync, Operation::rename}) {
        files::injectFaults(
            [&](Operation asked, const QString &at) { return asked == operation && at == path ? EIO : 0; });
        EXPECT_EQ(failureOfWrite(), EIO);
        files::injectFaults({});
        EXPECT_EQ(content(), "old");
        expectAlone();
    }
}

TEST_F(AtomicWriteTest, leavesNoFileWhereTheDiskIsFullHalfWay)
{
    int writes = 0;
    files::injectFaults([&writes](Operation asked, const QString &) {
        return asked == Operation::write && ++writes == 3 ? ENOSPC : 0;
    });
    EXPECT_EQ(failureOfWrite(QByteArray(1'000'000, 'x')), ENOSPC);
    EXPECT_EQ(writes, 3);
    EXPECT_TRUE(files::list(temp.path())->empty());
}

TEST_F(AtomicWriteTest, failsWithoutAFolderAndOverOne)
{
    EXPECT_EQ(failureOf([this] { files::writeAtomically(temp.at(u"none/file"_s), "x"); }), ENOENT);
    temp.file(u"file/inside"_s, "x");
    EXPECT_EQ(failureOfWrite(), EISDIR);
    expectAlone();
    EXPECT_TRUE(files::exists(temp.at(u"file/inside"_s)));
}

TEST_F(AtomicWriteTest, readsAFileUpToItsBound)
{
    temp.file(u"file"_s, "12345");
    EXPECT_EQ(files::readAll(path, 5), "12345");
    EXPECT_EQ(failureOfRead(4), EFBIG);
    EXPECT_EQ(failureOfRead(0), EFBIG);
    temp.file(u"file"_s);
    EXPECT_EQ(files::readAll(path, 0), QByteArray());
}

TEST_F(AtomicWriteTest, readsNoMoreThanItsBoundOfAFileThatTellsNoSize)
{
    const QString growing = u"/proc/self/maps"_s; // a regular file of size 0 with content
    EXPECT_EQ(failureOf([&] { files::readAll(growing, 10); }), EFBIG);
    EXPECT_FALSE(files::readAll(growing, 1 << 24).isEmpty());
}

TEST_F(AtomicWriteTest, readsNothingButRegularFiles)
{
    EXPECT_EQ(failureOfRead(10), ENOENT);
    ASSERT_EQ(mkfifo(paths::toBytes(path).constData(), 0600), 0);
    EXPECT_EQ(failureOfRead(10), EINVAL);
    EXPECT_EQ(failureOf([this] { files::readAll(temp.path(), 10); }), EINVAL);
    EXPECT_EQ(failureOf([] { files::readAll(u"/dev/zero"_s, 10); }), EINVAL);
}

TEST_F(AtomicWriteTest, readsThroughALink)
{
    temp.link(u"file"_s, temp.file(u"target"_s, "content"));
    EXPECT_EQ(content(), "content");
}
