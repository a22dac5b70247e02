#include "base/Files.h"
#include "FileChecks.h"
#include "support/TempHome.h"

#include <cerrno>
#include <map>
#include <optional>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace filechecks;
using files::Kind;

namespace {

/// Makes each call of `operation` on `path` fail for as long as it lives.
class FaultGuard
{
public:
    FaultGuard(files::Operation operation, const QString &path, int code)
    {
        files::injectFaults([operation, path, code](files::Operation asked, const QString &at) {
            return asked == operation && at == path ? code : 0;
        });
    }
    ~FaultGuard() { files::injectFaults({}); }
    FaultGuard(const FaultGuard &) = delete;
    FaultGuard &operator=(const FaultGuard &) = delete;
};

} // namespace

TEST(DirectoryReader, givesNamesWithTheirOwnAttributes)
{
    const TempHome temp;
    temp.file(u"file"_s, "12345");
    temp.folder(u".folder"_s);
    temp.link(u"link"_s, u".folder"_s);
    temp.file(paths::fromBytes("\xFF\n"), "1");
    std::map<QByteArray, files::Attributes> seen;
    files::DirectoryReader reader(temp.path());
    ASSERT_TRUE(reader.isOpen());
    while (reader.next())
        seen[reader.name().toByteArray()] = reader.attributes().value();
    ASSERT_EQ(seen.size(), 4U);
    EXPECT_EQ(seen["file"].kind, Kind::file);
    EXPECT_EQ(seen["file"].size, 5);
    EXPECT_FALSE(seen["file"].isHidden);
    EXPECT_EQ(seen[".folder"].kind, Kind::directory);
    EXPECT_TRUE(seen[".folder"].isHidden);
    EXPECT_EQ(seen["link"].kind, Kind::link);
    EXPECT_EQ(seen["\xFF\n"].size, 1);
}

TEST(DirectoryReader, findsNothingInAnEmptyFolder)
{
    const TempHome temp;
    files::DirectoryReader reader(temp.path());
    EXPECT_TRUE(reader.isOpen());
    EXPECT_FALSE(reader.next());
    EXPECT_FALSE(reader.next());
}

TEST(DirectoryReader, isNotOpenOnWhatIsNoFolder)
{
    const TempHome temp;
    EXPECT_FALSE(files::DirectoryReader(temp.at(u"missing"_s)).isOpen());
    EXPECT_FALSE(files::DirectoryReader(temp.file(u"file"_s)).isOpen());
}

TEST(DirectoryReader, givesNoAttributesOfAnEntryThatHasVanished)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s);
    files::DirectoryReader reader(temp.path());
    ASSERT_TRUE(reader.next());
    ASSERT_EQ(unlink(paths::toBytes(path).constData()), 0);
    EXPECT_FALSE(reader.attributes());
    EXPECT_EQ(reader.name(), "file");
}

TEST(DirectoryReader, givesTheExtentOfALinksTarget)
{
    const TempHome temp;
    temp.file(u"outside/file"_s, "12345");
    temp.file(u"in/file"_s, "123");
    temp.link(u"in/toFile"_s, u"../outside/file"_s);
    temp.link(u"in/toFolder"_s, u"../outside"_s);
    temp.link(u"in/toLink"_s, u"toFile"_s);
    temp.link(u"in/dangling"_s, u"missing"_s);
    temp.link(u"in/itself"_s, u"itself"_s);
    std::map<QByteArray, std::optional<files::Extent>> seen;
    files::DirectoryReader reader(temp.at(u"in"_s));
    while (reader.next())
        seen[reader.name().toByteArray()] = reader.followedExtent();
    ASSERT_EQ(seen.size(), 6U);
    EXPECT_EQ(seen["file"].value().size, 3);
    EXPECT_EQ(seen["toFile"].value().kind, Kind::file);
    EXPECT_EQ(seen["toFile"].value().size, 5);
    EXPECT_EQ(seen["toFolder"].value().kind, Kind::directory);
    EXPECT_EQ(seen["toLink"].value().size, 5);
    EXPECT_FALSE(seen["dangling"]);
    EXPECT_FALSE(seen["itself"]);
}

TEST(DirectoryReader, givesTheExtentOfALinkItself)
{
    const TempHome temp;
    temp.link(u"link"_s, u"missing"_s);
    files::DirectoryReader reader(temp.path());
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.extent().value().kind, Kind::link);
    EXPECT_EQ(reader.extent().value().size, 7);
}

TEST(DirectoryReader, givesTheKindThatTheListTells)
{
    const TempHome temp;
    temp.file(u"file"_s);
    temp.folder(u"folder"_s);
    temp.link(u"link"_s, u"folder"_s);
    ASSERT_EQ(mkfifo(paths::toBytes(temp.at(u"pipe"_s)).constData(), 0600), 0);
    const std::map<QByteArray, Kind> expected = {
        {"file", Kind::file}, {"folder", Kind::directory}, {"link", Kind::link}, {"pipe", Kind::other}};
    int count = 0;
    files::DirectoryReader reader(temp.path());
    for (; reader.next(); ++count) {
        // A file system need not tell; it may not tell anything else.
        EXPECT_EQ(reader.listedKind().value_or(reader.extent().value().kind),
                  expected.at(reader.name().toByteArray()));
    }
    EXPECT_EQ(count, 4);
}

TEST(DirectoryReader, asksNothingForTheKindThatTheListTells)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s);
    const FaultGuard fault(files::Operation::attributes, path, EIO);
    files::DirectoryReader reader(temp.path());
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.listedKind().value_or(Kind::file), Kind::file);
    EXPECT_FALSE(reader.extent());
    EXPECT_FALSE(reader.followedExtent());
}

TEST(DirectoryReader, hasNotFailedAtTheEndOfAFolder)
{
    const TempHome temp;
    temp.file(u"file"_s);
    files::DirectoryReader reader(temp.path());
    EXPECT_TRUE(reader.next());
    EXPECT_FALSE(reader.hasFailed());
    EXPECT_FALSE(reader.next());
    EXPECT_FALSE(reader.hasFailed());
}

TEST(InjectedFaults, makeTheStepToTheNextEntryFail)
{
    const TempHome temp;
    temp.file(u"folder/file"_s);
    const QString folder = temp.at(u"folder"_s);
    const FaultGuard fault(files::Operation::next, folder, EIO);
    files::DirectoryReader reader(folder);
    EXPECT_TRUE(reader.isOpen());
    EXPECT_FALSE(reader.next());
    EXPECT_TRUE(reader.hasFailed());
    EXPECT_FALSE(files::list(folder)) << "a list that broke off is none";
    EXPECT_TRUE(files::list(temp.path()));
}

TEST(InjectedFaults, makeAListFail)
{
    const TempHome temp;
    const QString folder = temp.folder(u"folder"_s);
    const FaultGuard fault(files::Operation::list, folder, EACCES);
    EXPECT_FALSE(files::list(folder));
    EXPECT_FALSE(files::DirectoryReader(folder).isOpen());
    EXPECT_TRUE(files::list(temp.path()));
    EXPECT_TRUE(files::attributes(folder));
}

TEST(InjectedFaults, makeAttributesFail)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s, "content");
    const FaultGuard fault(files::Operation::attributes, path, EIO);
    EXPECT_FALSE(files::attributes(path));
    EXPECT_FALSE(files::exists(path));
    EXPECT_EQ(content(path), "content");
    files::DirectoryReader reader(temp.path());
    ASSERT_TRUE(reader.next());
    EXPECT_FALSE(reader.attributes());
}

TEST(InjectedFaults, makeOpeningFail)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s, "content");
    const FaultGuard fault(files::Operation::open, path, EACCES);
    EXPECT_FALSE(files::readPrefix(path, 10));
    EXPECT_TRUE(files::exists(path));
}

TEST(InjectedFaults, areTakenAwayAgain)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s, "content");
    {
        const FaultGuard fault(files::Operation::open, path, EACCES);
        EXPECT_FALSE(files::readPrefix(path, 10));
    }
    EXPECT_EQ(content(path), "content");
}
