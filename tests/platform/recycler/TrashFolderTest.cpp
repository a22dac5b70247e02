#include "platform/linux/TrashFolder.h"

#include "RecyclerTest.h"

#include <cerrno>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

class TrashFolderTest : public RecyclerTest
{
protected:
    /// Puts an item and its note into the home Trash under a name, as the library does.
    static files::Identity put(const QString &name)
    {
        makeFile(u".local/share/Trash/info/"_s + name + u".trashinfo"_s, "[Trash Info]\n");
        return *files::identity(makeFile(u".local/share/Trash/files/"_s + name));
    }

    const TrashFolder trash_ = TrashFolder::ofHome(at(u".local/share"_s));
};

} // namespace

TEST_F(TrashFolderTest, findsAnItemUnderItsNameOrANumberedOne)
{
    const files::Identity first = put(u"report.pdf"_s);
    const files::Identity second = put(u"report.2.pdf"_s);
    EXPECT_EQ(trash_.find(u"report.pdf"_s, first)->file, TrashHome::trash() + u"/files/report.pdf"_s);
    const auto found = trash_.find(u"report.pdf"_s, second);
    EXPECT_EQ(found->file, TrashHome::trash() + u"/files/report.2.pdf"_s);
    EXPECT_EQ(found->info, TrashHome::trash() + u"/info/report.2.pdf.trashinfo"_s);
}

TEST_F(TrashFolderTest, findsAnItemWhoseNameWasShortened)
{
    put(QString(231, u'a'));
    const files::Identity item = put(QString(232, u'a'));
    const auto found = trash_.find(QString(239, u'a'), item);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->file, TrashHome::trash() + u"/files/"_s + QString(232, u'a'));
    EXPECT_EQ(found->info, TrashHome::trash() + u"/info/"_s + QString(232, u'a') + u".trashinfo"_s);
}

TEST_F(TrashFolderTest, findsNothingThatIsNotInIt)
{
    put(u"file"_s);
    EXPECT_FALSE(trash_.find(u"file"_s, *files::identity(makeFile(u"elsewhere/file"_s))));
}

TEST_F(TrashFolderTest, leavesToTheLibraryOnlyANameThatItKeeps)
{
    EXPECT_FALSE(trash_.mightReplace(QString(238, u'a')));
    EXPECT_TRUE(trash_.mightReplace(QString(239, u'a')));
    put(QString(238, u'a'));
    EXPECT_TRUE(trash_.mightReplace(QString(238, u'a'))) << "with its number it is too long";
    put(QString(236, u'b'));
    EXPECT_FALSE(trash_.mightReplace(QString(236, u'b')));
    makeFile(u".local/share/Trash/files/"_s + QString(236, u'b') + u".2"_s, "orphan");
    EXPECT_TRUE(trash_.mightReplace(QString(236, u'b')));
}

TEST_F(TrashFolderTest, leavesANoteThatItHasNotWritten)
{
    const QString note = makeFile(u".local/share/Trash/info/file.trashinfo"_s, "another's");
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const rlimit none = {0, usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    int failure = 0;
    try {
        trash_.reserve(at(u"file"_s));
    } catch (const Error &error) {
        failure = error.code;
    }
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);
    EXPECT_EQ(failure, EMFILE);
    EXPECT_TRUE(isThere(note));
}
