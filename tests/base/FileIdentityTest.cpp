#include "base/FileIdentity.h"

#include "base/Paths.h"
#include "support/TempHome.h"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(FileIdentity, isTheSameForEveryWayToAFile)
{
    const TempHome temp;
    const QString file = temp.file(u"folder/\xDC80 name"_s);
    const QString other = temp.file(u"folder/other"_s);
    temp.link(u"way"_s, temp.at(u"folder"_s));
    std::filesystem::create_hard_link(paths::toBytes(file).toStdString(),
                                      paths::toBytes(temp.at(u"linked"_s)).toStdString());
    ASSERT_TRUE(files::identity(file));
    EXPECT_EQ(files::identity(file), files::identity(temp.at(u"way/\xDC80 name"_s)));
    EXPECT_EQ(files::identity(file), files::identity(temp.at(u"linked"_s)));
    EXPECT_NE(files::identity(file), files::identity(other));
}

TEST(FileIdentity, isALinksOwnUnlessItIsFollowed)
{
    const TempHome temp;
    const QString folder = temp.folder(u"folder"_s);
    const QString link = temp.link(u"link"_s, folder);
    ASSERT_TRUE(files::identity(link));
    EXPECT_NE(files::identity(link), files::identity(folder));
    EXPECT_EQ(files::followedIdentity(link), files::identity(folder));
}

TEST(FileIdentity, isNoneWhereNothingIs)
{
    const TempHome temp;
    const QString file = temp.file(u"file"_s);
    const QString dangling = temp.link(u"dangling"_s, temp.at(u"nowhere"_s));
    EXPECT_FALSE(files::identity(temp.at(u"nowhere"_s)));
    EXPECT_FALSE(files::identity(file + u'/'));
    errno = 0;
    EXPECT_FALSE(files::identity(file + QChar(u'\0') + u"more"_s));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_FALSE(files::identity(QString()));
    EXPECT_TRUE(files::identity(dangling));
    EXPECT_FALSE(files::followedIdentity(dangling));
}

TEST(FileIdentity, staysWithAnOpenFileThatHasLeftItsName)
{
    const TempHome temp;
    const QByteArray file = paths::toBytes(temp.file(u"file"_s));
    const QByteArray moved = paths::toBytes(temp.at(u"moved"_s));
    const int descriptor = open(file.constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_NE(descriptor, -1);
    EXPECT_EQ(files::openIdentity(descriptor), files::identity(paths::fromBytes(file)));
    ASSERT_EQ(rename(file.constData(), moved.constData()), 0);
    temp.file(u"file"_s);
    EXPECT_NE(files::openIdentity(descriptor), files::identity(paths::fromBytes(file)));
    EXPECT_EQ(files::openIdentity(descriptor), files::identity(paths::fromBytes(moved)));
    close(descriptor);
    EXPECT_FALSE(files::openIdentity(-1));
}
