#include "duplicates/scan/DuplicateScan.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "duplicates/Contents.h"
#include "filesystem/InjectedFaults.h"
#include "OrderedFiles.h"
#include "ScanRun.h"
#include "support/TempHome.h"

#include <cerrno>
#include <set>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace contents;

namespace {

using Groups = std::vector<QStringList>;

void setModified(const QString &path, time_t seconds)
{
    const timespec times[] = {{seconds, 7}, {seconds, 7}};
    ASSERT_EQ(utimensat(AT_FDCWD, paths::toBytes(path).constData(), times, AT_SYMLINK_NOFOLLOW), 0);
}

/// Whether each entry of a group stays.
std::vector<bool> keeps(const DuplicateFileGroup &group)
{
    std::vector<bool> all;
    for (const DuplicateFileEntry &file : group.files)
        all.push_back(file.keep);
    return all;
}

} // namespace

TEST(DuplicateScan, groupsFilesOfEqualContent)
{
    const QByteArray content = filled(5000);
    const OrderedFiles home({content, filled(5000, 2), content});
    ScanRun run(home.scanPaths);
    const auto result = run.run();
    ASSERT_EQ(result.groups.size(), 1U);
    const DuplicateFileGroup &group = result.groups.front();
    EXPECT_EQ(group.hash, contents::sha256(content));
    EXPECT_EQ(group.size, 5000);
    EXPECT_EQ(group.wastedBytes(), 5000);
    EXPECT_EQ(ScanRun::paths(group), QStringList({home.files[0], home.files[2]}));
    EXPECT_EQ(group.files[1].name, u"file"_s);
    EXPECT_EQ(keeps(group), (std::vector<bool>{true, false}));
    EXPECT_EQ(result.hashFailureCount, 0);
    EXPECT_FALSE(result.wasCancelled);
    EXPECT_FALSE(result.wasCancelledInWalk);
}

TEST(DuplicateScan, groupsByContentAndNotByNameOrDate)
{
    const TempHome temp;
    temp.file(u"a/same"_s, "one");
    temp.file(u"b/same"_s, "two");
    setModified(temp.at(u"a/same"_s), 1000);
    setModified(temp.at(u"b/same"_s), 1000);
    EXPECT_TRUE(ScanRun({temp.path()}).run().groups.empty());
}

TEST(DuplicateScan, findsNothingWithoutScanPaths)
{
    ScanRun run;
    const auto result = run.run();
    EXPECT_TRUE(result.groups.empty());
    EXPECT_FALSE(result.wasCancelled);
    EXPECT_EQ(run.comparisons, 1);
    EXPECT_EQ(run.entered, QStringList());
    EXPECT_TRUE(run.done.empty());
}

TEST(DuplicateScan, tellsOneMebibyteApartInTheMiddleAndOneByteMoreNot)
{
    const TempHome temp;
    for (const qsizetype size : {1048576, 1048577}) {
        const QByteArray content = filled(size);
        temp.file(u"%1/a"_s.arg(size), content);
        temp.file(u"%1/b"_s.arg(size), changedAt(content, size / 2));
    }
    EXPECT_TRUE(ScanRun({temp.at(u"1048576"_s)}).run().groups.empty());
    const auto result = ScanRun({temp.at(u"1048577"_s)}).run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().hash, sampleSha256(filled(1048577)));
    EXPECT_EQ(result.groups.front().files.size(), 2U);
}

TEST(DuplicateScan, considersFilesOfTheSmallestSizeAndNoneBelow)
{
    const TempHome temp;
    for (const qsizetype size : {99, 100, 101}) {
        temp.file(u"a/%1"_s.arg(size), filled(size));
        temp.file(u"b/%1"_s.arg(size), filled(size));
    }
    std::set<qint64> sizes;
    for (const DuplicateFileGroup &group : ScanRun({temp.path()}, 100).run().groups)
        sizes.insert(group.size);
    EXPECT_EQ(sizes, std::set<qint64>({100, 101}));
}

TEST(DuplicateScan, groupsEmptyFilesThatWasteNothing)
{
    const OrderedFiles home({{}, {}, {}});
    const auto result = ScanRun(home.scanPaths, 0).run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(ScanRun::paths(result.groups.front()), home.files);
    EXPECT_EQ(result.groups.front().wastedBytes(), 0);
    EXPECT_EQ(result.groups.front().hash, contents::sha256({}));
    EXPECT_TRUE(ScanRun(home.scanPaths, 1).run().groups.empty());
}

TEST(DuplicateScan, sortsGroupsByTheirWasteTheLargestFirst)
{
    const TempHome temp;
    const auto copies = [&temp](qsizetype size, int count) {
        for (int number = 0; number < count; ++number)
            temp.file(u"%1/%2"_s.arg(size).arg(number), filled(size));
    };
    copies(10, 6);  // 50
    copies(30, 2);  // 30
    copies(100, 2); // 100
    copies(20, 5);  // 80
    copies(0, 9);   // 0
    std::vector<qint64> wastes;
    for (const DuplicateFileGroup &group : ScanRun({temp.path()}).run().groups)
        wastes.push_back(group.wastedBytes());
    EXPECT_EQ(wastes, (std::vector<qint64>{100, 80, 50, 30, 0}));
}

TEST(DuplicateScan, givesTheFilesOfAGroupInTheOrderOfTheWalk)
{
    const TempHome temp;
    for (int number = 0; number < 40; ++number) {
        temp.file(u"%1"_s.arg(number), "same");
        temp.file(u"folder%1/inner"_s.arg(number), "same");
    }
    ScanRun run({temp.path()});
    const auto result = run.run();
    ASSERT_EQ(result.groups.size(), 1U);
    const QStringList found = ScanRun::paths(result.groups.front());
    EXPECT_EQ(found.size(), 80);
    QStringList expected;
    const auto names = files::list(temp.path()).value_or(std::vector<QString>());
    for (const QString &name : names)
        expected << temp.at(name.startsWith(u"folder") ? name + u"/inner"_s : name);
    EXPECT_EQ(found, expected);
}

TEST(DuplicateScan, findsFilesAtDepthSevenAndNoneAtDepthEight)
{
    const TempHome temp;
    const QString outer = temp.file(u"a"_s, "same");
    const QString seven = temp.file(u"1/2/3/4/5/6/7/b"_s, "same");
    temp.file(u"1/2/3/4/5/6/7/8/c"_s, "same");
    const auto result = ScanRun({temp.path()}).run();
    ASSERT_EQ(result.groups.size(), 1U);
    const QStringList found = ScanRun::paths(result.groups.front());
    EXPECT_EQ(std::set<QString>(found.begin(), found.end()), std::set<QString>({outer, seven}));
}

TEST(DuplicateScan, listsTheInnerFilesOfNestedScanPathsTwice)
{
    const TempHome temp;
    const QString only = temp.file(u"inner/only"_s, "content");
    const auto result = ScanRun({temp.path(), temp.at(u"inner"_s)}).run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(ScanRun::paths(result.groups.front()), QStringList({only, only}));
    EXPECT_EQ(keeps(result.groups.front()), (std::vector<bool>{true, false}));
    EXPECT_EQ(result.groups.front().wastedBytes(), 7);
}

TEST(DuplicateScan, liftsAnIgnoredFolderForTheScanPathInsideItOnly)
{
    const TempHome temp;
    const QString mail = temp.file(u"Library/Mail/file"_s, "same");
    temp.file(u"Library/other"_s, "same");
    const QString outer = temp.file(u"file"_s, "same");
    ScanRun run({temp.path(), temp.at(u"Library/Mail"_s)});
    run.request.ignorePaths = {temp.at(u"Library"_s)};
    EXPECT_EQ(ScanRun::paths(run.run()), Groups{QStringList({outer, mail})});
    run.request.scanPaths = {temp.path(), temp.at(u"Lib"_s)};
    EXPECT_EQ(ScanRun::paths(run.run()), Groups());
}

TEST(DuplicateScan, readsALinkAsFarAsItsOwnSize)
{
    const TempHome temp;
    temp.file(u"targets/a"_s, filled(5000, 1));
    temp.file(u"targets/b"_s, filled(7000, 1)); // begins like a
    temp.file(u"targets/c"_s, filled(5000, 2));
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        temp.link(u"links/"_s + name, u"../targets/"_s + name); // 12 bytes
    const QString plain = temp.file(u"links/plain"_s, filled(12, 1));
    const auto result = ScanRun({temp.at(u"links"_s)}).run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(result.groups.front().size, 12);
    EXPECT_EQ(result.groups.front().hash, contents::sha256(filled(12, 1)));
    const QStringList found = ScanRun::paths(result.groups.front());
    EXPECT_EQ(std::set<QString>(found.begin(), found.end()),
              std::set<QString>({temp.at(u"links/a"_s), temp.at(u"links/b"_s), plain}));
}

TEST(DuplicateScan, givesTheModificationOfALinkItself)
{
    const TempHome temp;
    const QString target = temp.sparseFile(u"target"_s, 1000);
    const QString link = temp.link(u"a/link"_s, target);
    const QString plain = temp.sparseFile(u"b/plain"_s, files::attributes(link).value().size);
    setModified(target, 1000);
    setModified(link, 2000);
    setModified(plain, 3000);
    const auto result = ScanRun({temp.at(u"a"_s), temp.at(u"b"_s)}).run();
    ASSERT_EQ(ScanRun::paths(result), Groups{QStringList({link, plain})});
    EXPECT_EQ(result.groups.front().files[0].modified, dates::fromUnix(2000, 7));
    EXPECT_EQ(result.groups.front().files[1].modified, dates::fromUnix(3000, 7));
}

TEST(DuplicateScan, givesTheDistantPastForALinkWhoseDateCannotBeRead)
{
    const TempHome temp;
    temp.file(u"target"_s, "content");
    const QString link = temp.link(u"a/link"_s, u"../target"_s);
    const QString other = temp.link(u"b/link"_s, u"../target"_s);
    ScanRun run({temp.at(u"a"_s), temp.at(u"b"_s)});
    bool isComparing = false;
    run.whenComparing = [&isComparing] { isComparing = true; };
    const InjectedFaults fault([&](files::Operation operation, const QString &path) {
        return isComparing && operation == files::Operation::attributes && path == link ? EACCES : 0;
    });
    const auto result = run.run();
    ASSERT_EQ(ScanRun::paths(result), Groups{QStringList({link, other})});
    EXPECT_EQ(result.groups.front().files[0].modified, dates::distantPast);
    EXPECT_NE(result.groups.front().files[1].modified, dates::distantPast);
}

TEST(DuplicateScan, keepsTheFirstCopyWhereNoneIsMarked)
{
    const OrderedFiles home({"same", "same", "same"});
    ScanRun run(home.scanPaths);
    run.request.markedForDeletion = {u"/somewhere/else"_s};
    const auto result = run.run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(keeps(result.groups.front()), (std::vector<bool>{true, false, false}));
}

TEST(DuplicateScan, keepsAllButTheMarkedCopiesWhereOneIsMarked)
{
    const OrderedFiles home({"same", "same", "same", "other", "other"});
    ScanRun run(home.scanPaths);
    run.request.markedForDeletion = {home.files[1], u"/somewhere/else"_s};
    auto result = run.run();
    ASSERT_EQ(result.groups.size(), 2U);
    EXPECT_EQ(keeps(result.groups[0]), (std::vector<bool>{true, false, true}));
    EXPECT_EQ(keeps(result.groups[1]), (std::vector<bool>{true, false})) << "each group for itself";
    run.request.markedForDeletion = {home.files[0]};
    result = run.run();
    EXPECT_EQ(keeps(result.groups[0]), (std::vector<bool>{false, true, true}));
}

TEST(DuplicateScan, keepsNoCopyWhereAllAreMarked)
{
    const OrderedFiles home({"same", "same"});
    ScanRun run(home.scanPaths);
    run.request.markedForDeletion = {home.files.begin(), home.files.end()};
    const auto result = run.run();
    ASSERT_EQ(result.groups.size(), 1U);
    EXPECT_EQ(keeps(result.groups.front()), (std::vector<bool>{false, false}));
}

TEST(DuplicateScan, givesFreshIdentifiersInEachRun)
{
    const OrderedFiles home({"same", "same", "other", "other"});
    std::set<QUuid> ids;
    ScanRun run(home.scanPaths);
    for (int scan = 0; scan < 2; ++scan) {
        for (const DuplicateFileGroup &group : run.run().groups) {
            ids.insert(group.id);
            for (const DuplicateFileEntry &file : group.files)
                ids.insert(file.id);
        }
    }
    EXPECT_EQ(ids.size(), 12U);
    EXPECT_FALSE(ids.contains(QUuid()));
    for (const QUuid &id : ids)
        EXPECT_EQ(id.version(), QUuid::Random) << id.toString().toStdString();
}

TEST(DuplicateScan, groupsFilesWithHostileNames)
{
    const TempHome temp;
    QStringList made;
    QStringList roots;
    for (const QByteArray name : {"\xFF\xFE", "new\nline", "-rf", "$HOME *?[a]", "e\xCC\x81", "\xC3\xA9"}) {
        const QString folder = QString::number(roots.size());
        made << temp.file(folder + u'/' + paths::fromBytes(name), "same");
        roots << temp.at(folder);
    }
    const auto result = ScanRun(roots).run();
    ASSERT_EQ(ScanRun::paths(result), Groups{made});
    EXPECT_EQ(result.groups.front().files[0].name, paths::fromBytes("\xFF\xFE"));
}
