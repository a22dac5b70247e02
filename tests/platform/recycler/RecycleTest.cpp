#include "base/Files.h"
#include "base/Paths.h"
#include "DesktopTrash.h"
#include "NamedBytes.h"
#include "RecyclerTest.h"

#include <atomic>
#include <cerrno>
#include <future>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class RecycleNameTest : public RecyclerTest, public ::testing::WithParamInterface<NamedBytes>
{
};

class RecycleTest : public RecyclerTest
{
};

} // namespace

TEST_P(RecycleNameTest, comesBackWithContentTimesAndPermissions)
{
    const QString path =
        makeFile(u"folder/"_s + paths::fromBytes(GetParam().bytes), GetParam().bytes + " content");
    age(path, 0640);
    const Traits before = traits(path);
    expectRecycled(path);
    EXPECT_TRUE(desktoptrash::restoreOnlyOne());
    ASSERT_EQ(names(at(u"folder"_s)), QStringList(paths::fromBytes(GetParam().bytes)));
    EXPECT_EQ(traits(path), before);
    EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList());
}

INSTANTIATE_TEST_SUITE_P(RecycleTest, RecycleNameTest,
                         ::testing::Values(NamedBytes{"plain", "plain.txt"}, NamedBytes{"hidden", ".hidden"},
                                           NamedBytes{"percentSigns", "100% %41 %"},
                                           NamedBytes{"umlauts", "\xC3\x9C"
                                                                 "berfl\xC3\xBCssig \xE2\x82\xAC.txt"},
                                           NamedBytes{"newlines", "two\nlines\n"},
                                           NamedBytes{"notUtf8", "bytes \xFF\xFE.\xC3"},
                                           NamedBytes{"spaces", " space "}, NamedBytes{"anOption", "-rf"},
                                           NamedBytes{"shellSigns", "a\"b'c$(id)`id`\\*?#&;"},
                                           NamedBytes{"aNote", "name.trashinfo"},
                                           NamedBytes{"controlSigns", "tab\tand\rreturn\x01"}));

INSTANTIATE_TEST_SUITE_P(Long, RecycleNameTest,
                         ::testing::Values(NamedBytes{"longestOfTheLibrary", QByteArray(238, 'a')},
                                           NamedBytes{"shortestWithoutANote", QByteArray(239, 'b')},
                                           NamedBytes{"longestWithoutANote", QByteArray(245, 'c')},
                                           NamedBytes{"tooLong", QByteArray(246, 'd')},
                                           NamedBytes{"longest", QByteArray(255, 'e')},
                                           NamedBytes{"longestUmlauts", QByteArray("x\xC3\xBC").repeated(85)},
                                           NamedBytes{"longestNotUtf8", QByteArray(255, '\xFF')},
                                           NamedBytes{"longestOfDots", QByteArray(250, '.') + ".txt"},
                                           NamedBytes{"longestExtension", "f." + QByteArray(253, 'g')}));

TEST_F(RecycleTest, makesTheDataFolderThatIsMissing)
{
    expectRecycled(makeFile(u"file"_s));
    for (const QString &folder : {u".local"_s, u".local/share"_s, u".local/share/Trash"_s})
        EXPECT_EQ(traits(at(folder)).mode, S_IFDIR | 0700U) << folder.toStdString();
}

TEST_F(RecycleTest, tellsWhereAnItemWent)
{
    const QString path = makeFile(u"file"_s);
    const Recycler::Result result = recycle({path});
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.moved, (std::map<QString, QString>{{path, TrashHome::trash() + u"/files/file"_s}}));
}

TEST_F(RecycleTest, namesAnItemAsItWasGiven)
{
    makeFile(u"folder/file"_s);
    const QStringList given{at(u"folder/../folder/./file"_s), at(u"folder//"_s)};
    const Recycler::Result result = recycle(given);
    EXPECT_FALSE(result.error);
    ASSERT_EQ(result.moved.size(), 2U);
    EXPECT_TRUE(result.moved.contains(given[0]));
    EXPECT_TRUE(result.moved.contains(given[1]));
    EXPECT_TRUE(desktoptrash::restorePath(at(u"folder"_s)));
    EXPECT_TRUE(desktoptrash::restorePath(at(u"folder/file"_s)));
}

TEST_F(RecycleTest, keepsItemsOfOneNameApart)
{
    QStringList all;
    for (int number = 0; number < 4; ++number)
        all << makeFile(QString::number(number) + u"/report.tar.gz"_s, QByteArray::number(number));
    const Recycler::Result result = recycle(all);
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.moved.size(), 4U);
    for (const QString &path : all)
        EXPECT_TRUE(desktoptrash::restorePath(path));
    for (int number = 0; number < 4; ++number)
        EXPECT_EQ(traits(all[number]).content, QByteArray::number(number));
}

TEST_F(RecycleTest, keepsLongItemsOfOneNameApart)
{
    const QString name(255, u'l');
    const QString one = makeFile(u"1/"_s + name, "1");
    const QString two = makeFile(u"2/"_s + name, "2");
    EXPECT_FALSE(recycle({one, two}).error);
    EXPECT_TRUE(desktoptrash::restorePath(two));
    EXPECT_TRUE(desktoptrash::restorePath(one));
    EXPECT_EQ(traits(one).content, "1");
    EXPECT_EQ(traits(two).content, "2");
}

TEST_F(RecycleTest, bringsAFolderBackWithAllInIt)
{
    const QString inner = makeFile(u"tree/a/b/c.txt"_s);
    const QString link = makeLink(u"tree/a/link"_s, u"../../outside"_s);
    const QString locked = makeFile(u"tree/locked/file"_s);
    age(inner, 0604);
    age(locked, 0400);
    age(at(u"tree/locked"_s), 0500);
    age(at(u"tree"_s), 0751);
    const QStringList all{at(u"tree"_s), at(u"tree/locked"_s), inner, link, locked};
    std::vector<Traits> before;
    for (const QString &path : all)
        before.push_back(traits(path));
    expectRecycled(at(u"tree"_s));
    EXPECT_TRUE(desktoptrash::restoreOnlyOne());
    for (int i = 0; i < all.size(); ++i)
        EXPECT_EQ(traits(all[i]), before[static_cast<size_t>(i)]) << all[i].toStdString();
}

TEST_F(RecycleTest, takesAFileThatIsReadOnly)
{
    const QString path = makeFile(u"read-only"_s);
    age(path, 0400);
    const Traits before = traits(path);
    expectRecycled(path);
    EXPECT_TRUE(desktoptrash::restoreOnlyOne());
    EXPECT_EQ(traits(path), before);
}

TEST_F(RecycleTest, takesALinkAndNeverWhatItLeadsTo)
{
    const QString file = makeFile(u"kept/file"_s);
    const QString toFile = makeLink(u"to file"_s, file);
    const QString toFolder = makeLink(u"to folder"_s, at(u"kept"_s));
    const QString toNothing = makeLink(u"to nothing"_s, u"/nothing/here"_s);
    const Recycler::Result result = recycle({toFile, toFolder + u'/', toNothing});
    EXPECT_FALSE(result.error);
    EXPECT_EQ(result.moved.size(), 3U);
    EXPECT_EQ(names(TrashHome::path()), (QStringList{u".local"_s, u"kept"_s}));
    EXPECT_EQ(names(at(u"kept"_s)), QStringList(u"file"_s));
    for (const QString &link : {toFile, toFolder, toNothing})
        EXPECT_TRUE(desktoptrash::restorePath(link));
    EXPECT_EQ(traits(toFile).content, paths::toBytes(file));
    EXPECT_EQ(traits(toFolder).content, paths::toBytes(at(u"kept"_s)));
    EXPECT_EQ(traits(toNothing).content, "/nothing/here");
}

TEST_F(RecycleTest, findsAnItemThroughALinkAboveIt)
{
    const QString file = makeFile(u"real/file"_s);
    makeLink(u"link"_s, at(u"real"_s));
    expectRecycled(at(u"link/file"_s));
    EXPECT_TRUE(desktoptrash::restoreOnlyOne());
    EXPECT_TRUE(isThere(file));
}

TEST_F(RecycleTest, saysWhenNothingIsThere)
{
    const Recycler::Result result = recycle({at(u"gone"_s)});
    EXPECT_TRUE(result.moved.empty());
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->domain, errors::systemDomain);
    EXPECT_EQ(result.error->code, ENOENT);
    EXPECT_EQ(result.error->description, u"“gone” can't be moved to the Trash: No such file or directory"_s);
}

TEST_F(RecycleTest, goesOnAfterAnItemThatCannotBeMoved)
{
    const QString one = makeFile(u"one"_s);
    const QString two = makeFile(u"two"_s);
    const Recycler::Result result = recycle({one, at(u"gone"_s), two, at(u"gone too"_s)});
    EXPECT_EQ(result.moved.size(), 2U);
    EXPECT_FALSE(isThere(one));
    EXPECT_FALSE(isThere(two));
    ASSERT_TRUE(result.error);
    EXPECT_TRUE(result.error->description.contains(u"“gone”"_s)) << "the first error counts";
}

TEST_F(RecycleTest, takesNoPathThatIsNotAbsolute)
{
    const QString file = makeFile(u"file"_s);
    ASSERT_EQ(chdir(paths::toBytes(TrashHome::path()).constData()), 0);
    const QStringList wrong{QString(), u"."_s, u"file"_s, u"./file"_s, file + QChar::Null + u"x"_s};
    for (const QString &path : wrong) {
        const Recycler::Result result = recycle({path});
        EXPECT_TRUE(result.moved.empty());
        EXPECT_TRUE(result.error);
    }
    ASSERT_EQ(chdir("/"), 0);
    EXPECT_TRUE(isThere(file));
}

TEST_F(RecycleTest, replacesNothingThatHasLostItsNote)
{
    makeFile(u".local/share/Trash/files/file.txt"_s, "orphan");
    makeFile(u".local/share/Trash/files/file.2.txt"_s, "second orphan");
    makeFolder(u".local/share/Trash/files/folder"_s);
    const QString file = makeFile(u"file.txt"_s, "mine");
    const QString folder = makeFolder(u"folder"_s);
    const Recycler::Result result = recycle({file, folder});
    EXPECT_FALSE(result.error);
    EXPECT_EQ(names(TrashHome::trash() + u"/files"_s),
              (QStringList{u"file.2.txt"_s, u"file.3.txt"_s, u"file.txt"_s, u"folder"_s, u"folder.2"_s}));
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/file.txt"_s).content, "orphan");
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/file.2.txt"_s).content, "second orphan");
    EXPECT_TRUE(desktoptrash::restorePath(file));
    EXPECT_TRUE(desktoptrash::restorePath(folder));
    EXPECT_EQ(traits(file).content, "mine");
}

TEST_F(RecycleTest, replacesNothingWithoutANoteThatAShortenedNameMightMeet)
{
    const QString kept(238, u'a');
    expectRecycled(makeFile(kept));
    QStringList orphans;
    for (int length = 220; length <= 245; ++length) {
        if (length != kept.size())
            orphans << makeFile(u".local/share/Trash/files/"_s + QString(length, u'a'), "orphan");
    }
    for (const int length : {238, 239, 245, 246, 255}) {
        const QString file = makeFile(QString(length, u'a'), "mine");
        expectRecycled(file);
        EXPECT_FALSE(isThere(file));
    }
    for (const QString &orphan : orphans)
        EXPECT_EQ(traits(orphan).content, "orphan") << paths::lastComponent(orphan).size();
}

TEST_F(RecycleTest, reportsOnceOnAThreadOfItsOwnAndOutlivesTheRecycler)
{
    const QString file = makeFile(u"file"_s);
    auto calls = std::make_shared<std::atomic<int>>(0);
    auto thread = std::make_shared<std::promise<std::thread::id>>();
    auto future = thread->get_future();
    {
        LinuxRecycler shortLived(u"/nothing"_s, u"/nothing"_s, log_);
        shortLived.recycle({file}, [calls, thread](const Recycler::Result &) {
            if (calls->fetch_add(1) == 0)
                thread->set_value(std::this_thread::get_id());
        });
    }
    EXPECT_NE(future.get(), std::this_thread::get_id());
    EXPECT_EQ(*calls, 1);
    EXPECT_FALSE(isThere(file));
}

TEST_F(RecycleTest, reportsForNoItemsToo)
{
    const Recycler::Result result = recycle({});
    EXPECT_TRUE(result.moved.empty());
    EXPECT_FALSE(result.error);
}

TEST_F(RecycleTest, movesManyAtOnceFromSeveralCalls)
{
    constexpr int count = 40;
    std::vector<std::future<Recycler::Result>> results;
    for (int number = 0; number < count; ++number) {
        auto promise = std::make_shared<std::promise<Recycler::Result>>();
        results.push_back(promise->get_future());
        recycler_.recycle({makeFile(QString::number(number) + u"/same"_s)},
                          [promise](Recycler::Result result) { promise->set_value(std::move(result)); });
    }
    QStringList places;
    for (auto &future : results) {
        const Recycler::Result result = future.get();
        EXPECT_FALSE(result.error);
        for (const auto &[path, place] : result.moved)
            places << place;
    }
    EXPECT_EQ(places.size(), count);
    EXPECT_EQ(places.removeDuplicates(), 0);
    EXPECT_EQ(names(TrashHome::trash() + u"/files"_s).size(), count);
    EXPECT_EQ(desktoptrash::list().size(), count);
}
