#include "cleanup/PreviewList.h"

#include "base/Paths.h"
#include "filesystem/InjectedFaults.h"
#include "ManyFiles.h"
#include "support/TempHome.h"

#include <cerrno>
#include <filesystem>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const Date now = Date(std::chrono::days(20000));

class PreviewListTest : public testing::Test
{
protected:
    /// A file that was last changed so many seconds ahead of `now`.
    QString oldFile(const QString &relative, qint64 seconds, qsizetype size = 1) const
    {
        const QString path = temp_.file(relative, QByteArray(size, 'x'));
        const auto moment = std::chrono::file_clock::from_sys(now - std::chrono::seconds(seconds));
        std::filesystem::last_write_time(paths::toBytes(path).toStdString(), moment);
        return path;
    }

    static CleanupCategory category(const QString &id, const QStringList &paths)
    {
        CleanupCategory made;
        made.id = id;
        made.paths = paths;
        return made;
    }

    /// The names of a list.
    static QStringList names(const std::vector<PreviewFile> &files)
    {
        QStringList all;
        for (const PreviewFile &file : files)
            all << file.name;
        return all;
    }

    const TempHome temp_;
};

} // namespace

TEST_F(PreviewListTest, tellsNameSizeAndPathLargestFirst)
{
    const QString deep = temp_.file(u"one/a/b/c/deep"_s, "12345");
    const QString hidden = temp_.file(u"two/.hidden"_s, "123456789");
    const QString empty = temp_.file(u"one/empty"_s);
    const auto files = previewlist::load(category(u"logs"_s, {temp_.at(u"one"_s), temp_.at(u"two"_s)}), now);
    EXPECT_EQ(files, (std::vector<PreviewFile>{
                         {u".hidden"_s, 9, hidden}, {u"deep"_s, 5, deep}, {u"empty"_s, 0, empty}}));
}

TEST_F(PreviewListTest, keepsFilesOfOneSizeInTheOrderOfThePlaces)
{
    QStringList places;
    for (const QString &name : {u"z"_s, u"a"_s, u"m"_s}) {
        temp_.file(name + u"/in "_s + name, "same");
        places << temp_.at(name);
    }
    EXPECT_EQ(names(previewlist::load(category(u"logs"_s, places), now)),
              (QStringList{u"in z"_s, u"in a"_s, u"in m"_s}));
}

TEST_F(PreviewListTest, listsRegularFilesAloneAndLooksThroughNoLink)
{
    temp_.file(u"elsewhere/file"_s);
    temp_.link(u"place/link"_s, temp_.at(u"elsewhere"_s));
    temp_.link(u"place/to file"_s, temp_.at(u"elsewhere/file"_s));
    temp_.file(u"place/Thing.app/Contents/file"_s);
    temp_.file(u"place/real"_s);
    EXPECT_EQ(names(previewlist::load(category(u"logs"_s, {temp_.at(u"place"_s)}), now)),
              QStringList(u"real"_s));
}

TEST_F(PreviewListTest, listsDownloadsThatAreMoreThanThirtyDaysOld)
{
    constexpr qint64 month = qint64(30) * 24 * 60 * 60;
    oldFile(u"Downloads/older"_s, month + 1);
    oldFile(u"Downloads/exactly"_s, month);
    oldFile(u"Downloads/younger"_s, month - 1);
    oldFile(u"Downloads/to come"_s, -month);
    EXPECT_EQ(names(previewlist::load(category(u"old-downloads"_s, {temp_.at(u"Downloads"_s)}), now)),
              QStringList(u"older"_s));
    EXPECT_EQ(previewlist::load(category(u"logs"_s, {temp_.at(u"Downloads"_s)}), now).size(), 4U)
        << "all other categories list files of any age";
}

TEST_F(PreviewListTest, listsEmptyFoldersThemselvesInTheirOrder)
{
    const QStringList folders{temp_.folder(u"z/last"_s), temp_.folder(u"a"_s), temp_.at(u"gone"_s)};
    EXPECT_EQ(previewlist::load(category(u"empty-folders"_s, folders), now),
              (std::vector<PreviewFile>{
                  {u"last"_s, 0, folders[0]}, {u"a"_s, 0, folders[1]}, {u"gone"_s, 0, folders[2]}}));
}

TEST_F(PreviewListTest, isEmptyWherePlacesAreGone)
{
    EXPECT_TRUE(previewlist::load(category(u"logs"_s, {temp_.at(u"gone"_s)}), now).empty());
    EXPECT_TRUE(previewlist::load(category(u"logs"_s, {}), now).empty());
}

TEST_F(PreviewListTest, passesOverFilesThatCannotBeAsked)
{
    const QString bad = temp_.file(u"place/bad"_s);
    temp_.file(u"place/good"_s);
    const InjectedFaults faults(files::Operation::attributes, bad);
    EXPECT_EQ(names(previewlist::load(category(u"logs"_s, {temp_.at(u"place"_s)}), now)),
              QStringList(u"good"_s));
}

TEST_F(PreviewListTest, endsAtItsCapButForOneFileOfEachFurtherPlace)
{
    makeManyFiles(temp_, u"first/one"_s, 6000);
    makeManyFiles(temp_, u"first/two"_s, 4005);
    for (const QString &place : {u"second"_s, u"third"_s}) {
        for (int number = 0; number < 3; ++number)
            temp_.file(place + u'/' + place + QString::number(number), "x");
    }
    const QStringList places{temp_.at(u"first"_s), temp_.at(u"second"_s), temp_.folder(u"empty"_s),
                             temp_.at(u"third"_s)};
    EXPECT_EQ(previewlist::load(category(u"logs"_s, places.first(1)), now).size(), 10000U);
    const auto files = previewlist::load(category(u"logs"_s, places), now);
    ASSERT_EQ(files.size(), 10002U);
    EXPECT_TRUE(files[0].name.startsWith(u"second"));
    EXPECT_TRUE(files[1].name.startsWith(u"third"));
    EXPECT_EQ(files[2].size, 0);
}

TEST_F(PreviewListTest, readsNoFurtherThanItsCap)
{
    makeManyFiles(temp_, u"place"_s, 10005);
    int asked = 0;
    const InjectedFaults faults([&asked](files::Operation operation, const QString &) {
        asked += operation == files::Operation::attributes ? 1 : 0;
        return 0;
    });
    EXPECT_EQ(previewlist::load(category(u"logs"_s, {temp_.at(u"place"_s)}), now).size(), 10000U);
    EXPECT_EQ(asked, 10001) << "the place and the files that are listed";
}
