#include "base/Files.h"
#include "base/Paths.h"
#include "DesktopTrash.h"
#include "LoopVolume.h"
#include "platform/linux/TrashFolder.h"
#include "RecyclerTest.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Another volume, mounted in the home folder.
class VolumeTrashTest : public RecyclerTest
{
protected:
    void SetUp() override
    {
        volume_.emplace(makeFolder(u"volume"_s), 8);
        if (!volume_->whyNot().isEmpty())
            GTEST_SKIP() << volume_->whyNot().constData();
    }

    /// The user's own Trash on the volume.
    static QString own() { return at(u"volume/.Trash-"_s + QString::number(geteuid())); }

    void expectNoTrash(const QString &path)
    {
        const Recycler::Result result = recycle({path});
        EXPECT_TRUE(isThere(path));
        EXPECT_TRUE(result.moved.empty());
        ASSERT_TRUE(result.error);
        EXPECT_EQ(result.error->domain, LinuxRecycler::errorDomain);
        EXPECT_EQ(result.error->code, LinuxRecycler::volumeHasNoTrash);
    }

    std::optional<LoopVolume> volume_;
};

} // namespace

TEST_F(VolumeTrashTest, takesItemsOfItsVolumeAndGivesThemBack)
{
    const QString file = makeFile(u"volume/folder/\u00FC 100%.txt"_s);
    const QString folder = makeFolder(u"volume/tree"_s);
    age(file, 0604);
    const Traits before = traits(file);
    expectRecycled(file);
    expectRecycled(folder);
    EXPECT_EQ(names(own() + u"/files"_s), (QStringList{u"tree"_s, u"\u00FC 100%.txt"_s}));
    EXPECT_EQ(traits(own()).mode, S_IFDIR | 0700U);
    EXPECT_FALSE(isThere(TrashHome::trash() + u"/files"_s)) << "not in the home Trash";
    const QByteArray note = traits(own() + u"/info/\u00FC 100%.txt.trashinfo"_s).content;
    EXPECT_TRUE(note.contains("Path=folder/%C3%BC%20100%25.txt\n")) << note.constData();
    EXPECT_TRUE(desktoptrash::restorePath(file));
    EXPECT_TRUE(desktoptrash::restorePath(folder));
    EXPECT_EQ(traits(file), before);
    EXPECT_TRUE(isThere(folder));
}

TEST_F(VolumeTrashTest, tellsWhereAnItemWent)
{
    const QString file = makeFile(u"volume/file"_s);
    const Recycler::Result result = recycle({file});
    EXPECT_EQ(result.moved, (std::map<QString, QString>{{file, own() + u"/files/file"_s}}));
}

TEST_F(VolumeTrashTest, takesNamesThatAreTooLongForTheLibrary)
{
    for (const int length : {239, 245, 246, 255}) {
        const QString file =
            makeFile(u"volume/folder/"_s + QString(length, u'l'), QByteArray::number(length));
        expectRecycled(file);
        EXPECT_TRUE(desktoptrash::restorePath(file));
        EXPECT_EQ(traits(file).content, QByteArray::number(length));
    }
}

TEST_F(VolumeTrashTest, replacesNothingThatHasLostItsNote)
{
    expectRecycled(makeFile(u"volume/first"_s)); // makes the Trash
    files::move(makeFile(u"volume/orphan"_s, "orphan"), own() + u"/files/file"_s);
    const QString file = makeFile(u"volume/file"_s, "mine");
    expectRecycled(file);
    EXPECT_EQ(traits(own() + u"/files/file"_s).content, "orphan");
    EXPECT_TRUE(desktoptrash::restorePath(file));
    EXPECT_EQ(traits(file).content, "mine");
}

TEST_F(VolumeTrashTest, liesInTheCommonFolderThatAllUsersShare)
{
    const QString common = makeFolder(u"volume/.Trash"_s);
    ASSERT_EQ(chmod(paths::toBytes(common).constData(), 01777), 0);
    const QString user = common + u'/' + QString::number(geteuid());
    const QString file = makeFile(u"volume/file"_s);
    const Recycler::Result result = recycle({file});
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.moved, (std::map<QString, QString>{{file, user + u"/files/file"_s}}));
    EXPECT_TRUE(desktoptrash::restorePath(file));
}

TEST_F(VolumeTrashTest, isNotTheCommonFolderThatIsALinkOrNotSticky)
{
    const QString elsewhere = makeFolder(u"volume/elsewhere"_s);
    ASSERT_EQ(chmod(paths::toBytes(elsewhere).constData(), 01777), 0);
    makeLink(u"volume/.Trash"_s, elsewhere);
    expectRecycled(makeFile(u"volume/one"_s));
    ASSERT_EQ(unlink(paths::toBytes(at(u"volume/.Trash"_s)).constData()), 0);
    makeFolder(u"volume/.Trash"_s);
    expectRecycled(makeFile(u"volume/two"_s));
    EXPECT_EQ(names(elsewhere), QStringList());
    EXPECT_EQ(names(at(u"volume/.Trash"_s)), QStringList());
    EXPECT_EQ(names(own() + u"/files"_s), (QStringList{u"one"_s, u"two"_s}));
}

TEST_F(VolumeTrashTest, isMissingWhereTheUsersFolderIsALinkOrAFile)
{
    const QString elsewhere = makeFolder(u"volume/elsewhere"_s);
    makeLink(own().sliced(TrashHome::path().size() + 1), elsewhere);
    expectNoTrash(makeFile(u"volume/file"_s));
    expectNoTrash(makeFile(u"volume/"_s + QString(255, u'l')));
    EXPECT_EQ(names(elsewhere), QStringList());
    ASSERT_EQ(unlink(paths::toBytes(own()).constData()), 0);
    makeFile(own().sliced(TrashHome::path().size() + 1));
    expectNoTrash(at(u"volume/file"_s));
}

TEST_F(VolumeTrashTest, doesNotTakeTheVolumeItself)
{
    makeFile(u"volume/file"_s);
    const Recycler::Result result = recycle({at(u"volume"_s)});
    EXPECT_TRUE(result.moved.empty());
    EXPECT_TRUE(result.error);
    EXPECT_TRUE(isThere(at(u"volume/file"_s)));
}

TEST_F(VolumeTrashTest, isNotNeededForALinkToItFromHome)
{
    const QString file = makeFile(u"volume/file"_s);
    const QString link = makeLink(u"link"_s, at(u"volume"_s));
    expectRecycled(link);
    EXPECT_TRUE(isThere(file));
    EXPECT_TRUE(isThere(TrashHome::trash() + u"/files/link"_s));
    makeLink(u"again"_s, at(u"volume"_s));
    expectRecycled(at(u"again/file"_s));
    EXPECT_EQ(names(own() + u"/files"_s), QStringList(u"file"_s));
    EXPECT_TRUE(desktoptrash::restorePath(file)) << "the note names the file's place on its volume";
}

TEST_F(VolumeTrashTest, notesNoItemWhoseFolderHasGoneOrLeadsAway)
{
    expectRecycled(makeFile(u"volume/first"_s)); // makes the Trash
    const QString file = makeFile(u"volume/f/file"_s);
    const auto trash = TrashFolder::ofVolume(file, files::identity(file)->device);
    ASSERT_TRUE(trash);
    files::move(at(u"volume/f"_s), at(u"volume/moved"_s));
    EXPECT_THROW(trash->reserve(file), Error);
    makeFile(u"elsewhere/file"_s);
    makeLink(u"volume/f"_s, at(u"elsewhere"_s));
    EXPECT_THROW(trash->reserve(file), Error);
    EXPECT_EQ(names(own() + u"/info"_s), QStringList(u"first.trashinfo"_s));
}

TEST_F(VolumeTrashTest, losesNoNoteOnAFullDisk)
{
    const QString first = makeFile(u"volume/first"_s);
    const QString file = makeFile(u"volume/file"_s);
    expectRecycled(first);
    EXPECT_TRUE(desktoptrash::restorePath(first));
    volume_->fill(u"filler"_s);
    EXPECT_TRUE(recycle({file}).error);
    EXPECT_EQ(traits(file).content, "content");
    EXPECT_EQ(names(own() + u"/info"_s), QStringList());
}
