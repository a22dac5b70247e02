#include "base/Files.h"
#include "base/Paths.h"
#include "DesktopTrash.h"
#include "filesystem/InjectedFaults.h"
#include "LoopVolume.h"
#include "RecyclerTest.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"

#include <cerrno>
#include <csignal>
#include <optional>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class BadTrashTest : public RecyclerTest
{
protected:
    void expectRefused(const QString &path, const char *why)
    {
        const Recycler::Result result = recycle({path});
        EXPECT_TRUE(isThere(path)) << why;
        EXPECT_TRUE(result.moved.empty()) << why;
        ASSERT_TRUE(result.error) << why;
        EXPECT_FALSE(result.error->description.isEmpty()) << why;
        EXPECT_NE(result.error->domain, LinuxRecycler::errorDomain)
            << "a refusal of the Trash, not of the volume";
    }
};

/// Lets every user into the home folder for as long as it lives.
class OpenHome
{
public:
    OpenHome() { setModes(0755, 0777); }
    ~OpenHome() { setModes(0700, 0700); }
    OpenHome(const OpenHome &) = delete;
    OpenHome &operator=(const OpenHome &) = delete;

private:
    static void setModes(mode_t above, mode_t home)
    {
        EXPECT_EQ(chmod(paths::toBytes(paths::parent(TrashHome::path())).constData(), above), 0);
        EXPECT_EQ(chmod(paths::toBytes(TrashHome::path()).constData(), home), 0);
    }
};

/// While it lives no file takes a byte more, whoever writes, as on a full disk.
class NoMoreBytes
{
public:
    NoMoreBytes()
        : before_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &limit_);
        const rlimit none{0, limit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoMoreBytes()
    {
        setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, before_);
    }
    NoMoreBytes(const NoMoreBytes &) = delete;
    NoMoreBytes &operator=(const NoMoreBytes &) = delete;

private:
    void (*before_)(int);
    rlimit limit_ = {};
};

/// A folder on a file system in memory that is not the one of the home folder. Empty when the machine has
/// none.
class MemoryFolder
{
public:
    MemoryFolder()
    {
        char pattern[] = "/dev/shm/quillmere-XXXXXX";
        struct statfs status = {};
        if (statfs("/dev/shm", &status) == 0 && status.f_type == TMPFS_MAGIC && mkdtemp(pattern))
            path_ = paths::fromBytes(pattern);
    }
    ~MemoryFolder()
    {
        if (path_.isEmpty())
            return;
        unlink(paths::toBytes(file()).constData());
        rmdir(paths::toBytes(path_).constData());
    }
    MemoryFolder(const MemoryFolder &) = delete;
    MemoryFolder &operator=(const MemoryFolder &) = delete;

    const QString &path() const { return path_; }
    QString file() const { return path_ + u"/100% file"_s; }

private:
    QString path_;
};

} // namespace

TEST_F(BadTrashTest, isRefusedWhenItIsALinkBehindWhichTheDesktopShowsNothing)
{
    const QString file = makeFile(u"file"_s);
    makeFolder(u"elsewhere"_s);
    for (const QString &part : {u"Trash"_s, u"Trash/files"_s, u"Trash/info"_s}) {
        const QString link = makeLink(u".local/share/"_s + part, at(u"elsewhere"_s));
        const Recycler::Result result = recycle({file});
        EXPECT_TRUE(isThere(file));
        EXPECT_TRUE(result.moved.empty());
        ASSERT_TRUE(result.error);
        EXPECT_EQ(result.error->domain, LinuxRecycler::errorDomain);
        EXPECT_EQ(result.error->code, LinuxRecycler::trashIsLink);
        EXPECT_EQ(
            result.error->description,
            u"“file” can't be moved to the Trash because the Trash is a link, and the desktop shows nothing behind it."_s);
        EXPECT_EQ(names(at(u"elsewhere"_s)), QStringList());
        ASSERT_EQ(unlink(paths::toBytes(link).constData()), 0);
    }
}

TEST_F(BadTrashTest, isRefusedWhenItIsALinkThatLeadsNowhere)
{
    makeLink(u".local/share/Trash"_s, at(u"nowhere"_s));
    for (const QString &name : {u"file"_s, QString(255, u'l')}) {
        const QString file = makeFile(name);
        const Recycler::Result result = recycle({file});
        EXPECT_TRUE(isThere(file));
        ASSERT_TRUE(result.error);
        EXPECT_EQ(result.error->code, LinuxRecycler::trashIsLink);
    }
    EXPECT_FALSE(isThere(at(u"nowhere"_s)));
}

TEST_F(BadTrashTest, isUsedBelowADataFolderThatIsALink)
{
    makeFolder(u"elsewhere"_s);
    makeLink(u".local/share"_s, at(u"elsewhere"_s));
    const QString file = makeFile(u"file"_s);
    expectRecycled(file);
    EXPECT_EQ(names(at(u"elsewhere/Trash/files"_s)), QStringList(u"file"_s));
    EXPECT_TRUE(desktoptrash::restorePath(file));
    EXPECT_EQ(traits(file).content, "content");
}

TEST_F(BadTrashTest, isRefusedWhenItIsAFile)
{
    makeFile(u".local/share/Trash"_s);
    expectRefused(makeFile(u"file"_s), "Trash");
    EXPECT_EQ(traits(TrashHome::trash()).content, "content");
}

TEST_F(BadTrashTest, isRefusedWhenTheDataFolderIsAFile)
{
    makeFile(u".local"_s);
    expectRefused(makeFile(u"file"_s), "data folder");
}

TEST_F(BadTrashTest, isRefusedWhenItIsNotWritable)
{
    const OpenHome home;
    const auto checks = [this] {
        makeFolder(u".local/share/Trash/files"_s);
        makeFolder(u".local/share/Trash/info"_s);
        for (const char *part : {"/files", "/info"}) {
            const QByteArray folder = paths::toBytes(TrashHome::trash()) + part;
            EXPECT_EQ(chmod(folder.constData(), 0500), 0);
            expectRefused(makeFile(u"file"_s), "short name");
            expectRefused(makeFile(QString(255, u'l')), "long name");
            EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList()) << "no note stays behind";
            EXPECT_EQ(names(TrashHome::trash() + u"/files"_s), QStringList());
            EXPECT_EQ(chmod(folder.constData(), 0700), 0);
        }
        expectRecycled(at(u"file"_s)); // nothing else stood in its way
    };
    EXPECT_TRUE(holdsForOrdinaryUser(checks));
}

TEST_F(BadTrashTest, keepsTheNoteOfAnAdministratorsItemThatItNoLongerTellsOf)
{
    const OpenHome home;
    EXPECT_TRUE(holdsForOrdinaryUser([this] {
        const TempHome temp;
        for (const QByteArray &exitCode : {QByteArray("0"), QByteArray("1")}) {
            const QString name = u"file"_s + QString::fromLatin1(exitCode);
            const QString tool =
                temp.script(u"pkexec"_s, "\"$@\"\nchmod 0 \"$(dirname \"$6\")\"\nexit " + exitCode + '\n');
            LinuxRecycler recycler(tool, u"/bin/mv"_s, log_);
            EXPECT_EQ(recycler.moveToTrashAsAdministrator(makeFile(name)).has_value(), exitCode == "1");
            const QString items = TrashHome::trash() + u"/files"_s;
            EXPECT_EQ(chmod(paths::toBytes(items).constData(), 0700), 0);
            EXPECT_TRUE(isThere(paths::join(items, name)));
            EXPECT_TRUE(isThere(TrashHome::trash() + u"/info/%1.trashinfo"_s.arg(name)));
        }
    }));
}

TEST_F(BadTrashTest, saysThatItIsOnAnotherVolume)
{
    const MemoryFolder memory;
    if (memory.path().isEmpty())
        GTEST_SKIP() << "There is no file system in memory at /dev/shm.";
    makeLink(u".local/share"_s, memory.path());
    for (const QString &name : {u"file"_s, QString(255, u'l')}) {
        const QString file = makeFile(name);
        const Recycler::Result result = recycle({file});
        EXPECT_TRUE(isThere(file));
        EXPECT_TRUE(result.moved.empty());
        ASSERT_TRUE(result.error);
        EXPECT_EQ(result.error->domain, LinuxRecycler::errorDomain);
        EXPECT_EQ(result.error->code, LinuxRecycler::trashIsOnOtherVolume);
        EXPECT_EQ(result.error->description,
                  u"“%1” can't be moved to the Trash because the Trash is on another volume."_s.arg(name));
        EXPECT_EQ(names(memory.path() + u"/Trash/info"_s), QStringList()) << "no note stays behind";
    }
    for (const char *part : {"/Trash/files", "/Trash/info", "/Trash"})
        rmdir((paths::toBytes(memory.path()) + part).constData());
}

TEST_F(BadTrashTest, isMissingOnAVolumeInMemory)
{
    const MemoryFolder memory;
    if (memory.path().isEmpty())
        GTEST_SKIP() << "There is no file system in memory at /dev/shm.";
    close(open(paths::toBytes(memory.file()).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    const Recycler::Result result = recycle({memory.file()});
    EXPECT_TRUE(isThere(memory.file()));
    EXPECT_TRUE(result.moved.empty());
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->domain, LinuxRecycler::errorDomain);
    EXPECT_EQ(result.error->code, LinuxRecycler::volumeHasNoTrash);
    EXPECT_EQ(result.error->description,
              u"“100% file” can't be moved to the Trash because its volume has no Trash."_s);
}

TEST_F(BadTrashTest, losesNoNoteOnAFullDisk)
{
    const LoopVolume volume(TrashHome::path(), 2);
    if (!volume.whyNot().isEmpty())
        GTEST_SKIP() << volume.whyNot().constData();
    const QString file = makeFile(u"file"_s, QByteArray(5000, 'f'));
    const QString other = makeFile(u"other"_s);
    expectRecycled(other); // makes the Trash
    EXPECT_TRUE(desktoptrash::restorePath(other));
    volume.fill(u"filler"_s);
    age(file, 0640);
    const Traits before = traits(file);
    const Recycler::Result result = recycle({file});
    EXPECT_TRUE(result.moved.empty());
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->code, ENOSPC);
    EXPECT_EQ(result.error->description, u"“file” can't be moved to the Trash: No space left on device"_s);
    ASSERT_TRUE(isThere(file)) << "it has come back";
    EXPECT_EQ(traits(file), before);
    EXPECT_EQ(names(TrashHome::trash() + u"/files"_s), QStringList());
    EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList());
}

TEST_F(BadTrashTest, losesNoNoteOfALongNameOnAFullDisk)
{
    const LoopVolume volume(TrashHome::path(), 2);
    if (!volume.whyNot().isEmpty())
        GTEST_SKIP() << volume.whyNot().constData();
    QStringList all;
    for (const int length : {239, 245, 246, 255})
        all << makeFile(QString(length, u'l'));
    expectRecycled(makeFile(u"other"_s)); // makes the Trash
    volume.fill(u"filler"_s);
    for (const QString &file : all)
        expectRefused(file, "no room for the note");
    EXPECT_EQ(names(TrashHome::trash() + u"/files"_s), QStringList(u"other"_s));
    EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList(u"other.trashinfo"_s));
}

TEST_F(BadTrashTest, saysWhereAnItemLiesThatCanNeitherHaveANoteNorGoBack)
{
    const QString file = makeFile(u"file"_s);
    std::optional<NoMoreBytes> fullDisk;
    // As soon as the item has gone its note is lost, the disk full and its old place taken.
    const InjectedFaults mishaps([&](files::Operation, const QString &path) {
        const QString note = TrashHome::trash() + u"/info/file.trashinfo"_s;
        if (path == note && !fullDisk && !isThere(file)) {
            fullDisk.emplace();
            unlink(paths::toBytes(note).constData());
            makeLink(u"file"_s, u"newcomer"_s);
        }
        return 0;
    });
    const Recycler::Result result = recycle({file});
    ASSERT_TRUE(fullDisk);
    fullDisk.reset();
    EXPECT_TRUE(result.moved.empty());
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->domain, LinuxRecycler::errorDomain);
    EXPECT_EQ(result.error->code, LinuxRecycler::strandedInTrash);
    const QString place = TrashHome::trash() + u"/files/file"_s;
    EXPECT_EQ(
        result.error->description,
        u"“file” can't be moved back from the Trash: File exists. It lies at “%1” without a note that it came from “%2”."_s
            .arg(place, file));
    EXPECT_EQ(log_.lines, QStringList(u"error General: "_s + result.error->description));
    EXPECT_EQ(traits(place).content, "content");
    EXPECT_EQ(traits(file).content, "newcomer");
}

TEST_F(BadTrashTest, isRefusedOnAFullDiskThatHasNone)
{
    const LoopVolume volume(TrashHome::path(), 2);
    if (!volume.whyNot().isEmpty())
        GTEST_SKIP() << volume.whyNot().constData();
    const QString file = makeFile(u"file"_s);
    volume.fill(u"filler"_s);
    expectRefused(file, "no room for the folders");
    EXPECT_EQ(traits(file).content, "content");
}
