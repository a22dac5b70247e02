#include "base/Files.h"
#include "FileChecks.h"
#include "support/TempHome.h"

#include <cerrno>

#include <gtest/gtest.h>
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
