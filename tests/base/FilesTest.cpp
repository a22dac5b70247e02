#include "base/Files.h"

#include "FileChecks.h"
#include "support/TempHome.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace filechecks;
using files::Kind;

namespace {

QString fifo(const TempHome &temp, const QString &name)
{
    const QString path = temp.at(name);
    EXPECT_EQ(mkfifo(paths::toBytes(path).constData(), 0600), 0);
    return path;
}

QString socketFile(const TempHome &temp, const QString &name)
{
    const QString path = temp.at(name);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray bytes = paths::toBytes(path);
    EXPECT_LT(static_cast<size_t>(bytes.size()), sizeof address.sun_path);
    memcpy(address.sun_path, bytes.constData(), static_cast<size_t>(bytes.size()));
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    close(descriptor);
    return path;
}

} // namespace

TEST(Files, listHostileNamesAsTheyAre)
{
    const TempHome temp;
    std::set<QString> made;
    for (const QString &name : hostileNames()) {
        temp.file(name);
        made.insert(name);
    }
    EXPECT_EQ(names(temp.path()), made);
}

TEST(Files, reachEntriesWithHostileNames)
{
    const TempHome temp;
    for (const QString &name : hostileNames()) {
        const QString path = temp.file(name, "content");
        EXPECT_TRUE(files::exists(path)) << name.toStdString();
        EXPECT_FALSE(files::isDirectory(path));
        EXPECT_EQ(content(path), "content");
        const auto attributes = files::attributes(path);
        ASSERT_TRUE(attributes) << name.toStdString();
        EXPECT_EQ(attributes->kind, Kind::file);
        EXPECT_EQ(attributes->size, 7);
    }
}

TEST(Files, moveEntriesWithHostileNames)
{
    const TempHome temp;
    const QString target = temp.folder(paths::fromBytes("to\n\xFF"));
    for (const QString &name : hostileNames()) {
        const QString from = temp.file(name, "content");
        files::move(from, paths::join(target, name));
        EXPECT_FALSE(files::exists(from)) << name.toStdString();
        EXPECT_EQ(content(paths::join(target, name)), "content");
    }
    EXPECT_EQ(names(target).size(), hostileNames().size());
}

TEST(Files, makeFoldersWithHostileNames)
{
    const TempHome temp;
    for (const QString &name : hostileNames()) {
        files::makeDirectory(temp.at(name));
        EXPECT_TRUE(files::isDirectory(temp.at(name))) << name.toStdString();
    }
}

TEST(Files, refuseANameThatIsTooLong)
{
    const TempHome temp;
    const QString name = temp.at(QString(256, u'n'));
    EXPECT_FALSE(files::exists(name));
    EXPECT_FALSE(files::attributes(name));
    EXPECT_EQ(failureOf([&] { files::makeDirectory(name); }), ENAMETOOLONG);
}

TEST(Files, takeAPathWithANulForNothing)
{
    const TempHome temp;
    const QString folder = temp.folder(u"folder"_s);
    const QString file = temp.file(u"file"_s, "kept");
    const QString cutFile = file + QChar(u'\0') + u"x"_s;
    const QString cutFolder = folder + QChar(u'\0');
    EXPECT_FALSE(files::exists(cutFile));
    EXPECT_FALSE(files::attributes(cutFile));
    EXPECT_FALSE(files::isDirectory(cutFolder));
    EXPECT_FALSE(files::list(cutFolder));
    EXPECT_FALSE(files::DirectoryReader(cutFolder).isOpen());
    EXPECT_FALSE(files::readPrefix(cutFile, 10));
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.at(u"new"_s) + QChar(u'\0')); }), ENOENT);
    EXPECT_EQ(failureOf([&] { files::makeDirectories(temp.at(u"new"_s) + QChar(u'\0')); }), ENOENT);
    EXPECT_EQ(moveFailure(cutFile, temp.at(u"moved"_s)), ENOENT);
    EXPECT_EQ(moveFailure(file, temp.at(u"moved"_s) + QChar(u'\0')), ENOENT);
    EXPECT_EQ(names(temp.path()), std::set<QString>({u"file"_s, u"folder"_s}));
}

TEST(Files, takeAnEmptyPathForNothing)
{
    EXPECT_FALSE(files::exists(QString()));
    EXPECT_FALSE(files::list(QString()));
    EXPECT_FALSE(files::readPrefix(QString(), 1));
    EXPECT_EQ(failureOf([] { files::makeDirectories(QString()); }), ENOENT);
}

TEST(FileAttributes, tellKindsApart)
{
    const TempHome temp;
    EXPECT_EQ(files::attributes(temp.file(u"file"_s))->kind, Kind::file);
    EXPECT_EQ(files::attributes(temp.folder(u"folder"_s))->kind, Kind::directory);
    EXPECT_TRUE(files::attributes(temp.at(u"folder"_s))->isDirectory());
    EXPECT_EQ(files::attributes(temp.link(u"link"_s, u"folder"_s))->kind, Kind::link);
    EXPECT_FALSE(files::attributes(temp.at(u"link"_s))->isDirectory());
    EXPECT_EQ(files::attributes(fifo(temp, u"pipe"_s))->kind, Kind::other);
    EXPECT_EQ(files::attributes(socketFile(temp, u"socket"_s))->kind, Kind::other);
    EXPECT_EQ(files::attributes(u"/dev/null"_s)->kind, Kind::other);
    EXPECT_FALSE(files::attributes(temp.at(u"missing"_s)));
}

TEST(FileAttributes, giveALinksOwnSize)
{
    const TempHome temp;
    temp.file(u"target"_s, QByteArray(5000, 'x'));
    EXPECT_EQ(files::attributes(temp.link(u"link"_s, u"target"_s))->size, 6);
}

TEST(FileAttributes, giveSizesBeyond32Bits)
{
    const TempHome temp;
    const qint64 size = (qint64(5) << 30) + 1;
    EXPECT_EQ(files::attributes(temp.sparseFile(u"big"_s, size))->size, size);
}

TEST(FileAttributes, giveTheModificationToTheNanosecond)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s);
    const timespec times[] = {{1, 0}, {1700000000, 123456789}};
    ASSERT_EQ(utimensat(AT_FDCWD, paths::toBytes(path).constData(), times, 0), 0);
    EXPECT_EQ(files::attributes(path)->modified, dates::fromUnix(1700000000, 123456789));
}

TEST(FileAttributes, giveABirthThatAnOlderModificationDoesNotChange)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s);
    const Date born = files::attributes(path)->created;
    const timespec times[] = {{1, 0}, {1, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, paths::toBytes(path).constData(), times, 0), 0);
    EXPECT_EQ(files::attributes(path)->created, born);
    EXPECT_NE(born, files::attributes(path)->modified);
}

TEST(FileAttributes, takeALeadingDotForHidden)
{
    const TempHome temp;
    EXPECT_TRUE(files::attributes(temp.file(u".hidden"_s))->isHidden);
    EXPECT_TRUE(files::attributes(temp.folder(u".folder"_s))->isHidden);
    EXPECT_FALSE(files::attributes(temp.file(u"shown.txt"_s))->isHidden);
    EXPECT_FALSE(files::attributes(temp.file(u".folder/inside"_s))->isHidden);
}

TEST(FileLinks, countByWhatTheyLeadTo)
{
    const TempHome temp;
    temp.file(u"folder/file"_s, "content");
    const QString toFile = temp.link(u"to file"_s, u"folder/file"_s);
    const QString toFolder = temp.link(u"to folder"_s, temp.at(u"folder"_s));
    EXPECT_TRUE(files::exists(toFile));
    EXPECT_FALSE(files::isDirectory(toFile));
    EXPECT_EQ(content(toFile), "content");
    EXPECT_TRUE(files::isDirectory(toFolder));
    EXPECT_EQ(names(toFolder), std::set<QString>{u"file"_s});
}

TEST(FileLinks, areNotInARealPath)
{
    const TempHome temp;
    const QString folder = *files::realPath(temp.folder(u"folder"_s));
    const QString name = paths::fromBytes("two\nlines \xff");
    temp.file(u"folder/"_s + name);
    const QString toFolder = temp.link(u"to folder"_s, u"folder"_s);
    const QString toLink = temp.link(u"to link"_s, u"to folder"_s);
    EXPECT_EQ(files::realPath(paths::join(toLink, name)), paths::join(folder, name));
    EXPECT_EQ(files::realPath(toFolder + u"/../folder/"_s), folder);
    EXPECT_FALSE(files::realPath(temp.at(u"missing"_s)));
}

TEST(FileLinks, thatDangleLeadToNothing)
{
    const TempHome temp;
    const QString link = temp.link(u"link"_s, u"missing"_s);
    EXPECT_FALSE(files::exists(link));
    EXPECT_FALSE(files::isDirectory(link));
    EXPECT_FALSE(files::list(link));
    EXPECT_FALSE(files::readPrefix(link, 1));
    EXPECT_FALSE(files::realPath(link));
    EXPECT_EQ(files::attributes(link)->kind, Kind::link);
    EXPECT_EQ(names(temp.path()), std::set<QString>{u"link"_s});
}

TEST(FileLinks, thatRunInACycleLeadToNothing)
{
    const TempHome temp;
    const QString first = temp.link(u"first"_s, u"second"_s);
    temp.link(u"second"_s, u"first"_s);
    EXPECT_FALSE(files::exists(first));
    EXPECT_FALSE(files::isDirectory(first));
    EXPECT_FALSE(files::list(first));
    EXPECT_FALSE(files::readPrefix(first, 1));
    EXPECT_FALSE(files::realPath(first));
    EXPECT_EQ(files::attributes(first)->kind, Kind::link);
    EXPECT_EQ(failureOf([&] { files::makeDirectories(first); }), EEXIST);
    EXPECT_EQ(failureOf([&] { files::makeDirectories(paths::join(first, u"below"_s)); }), EEXIST);
}

TEST(FileLists, giveHiddenEntriesAndNotTheFolderItself)
{
    const TempHome temp;
    temp.file(u".hidden"_s);
    temp.folder(u"folder"_s);
    temp.file(u"..two"_s);
    EXPECT_EQ(names(temp.path()), std::set<QString>({u".hidden"_s, u"folder"_s, u"..two"_s}));
}

TEST(FileLists, tellAnEmptyFolderFromAnUnreadableOne)
{
    const TempHome temp;
    EXPECT_EQ(files::list(temp.folder(u"empty"_s)), std::vector<QString>());
    EXPECT_EQ(files::list(temp.at(u"missing"_s)), std::nullopt);
    EXPECT_EQ(files::list(temp.file(u"file"_s)), std::nullopt);
}

TEST(FileLists, giveEveryEntryOfALargeFolder)
{
    const TempHome temp;
    for (int number = 0; number < 1000; ++number)
        temp.file(QString::number(number));
    EXPECT_EQ(names(temp.path()).size(), 1000U);
}

TEST(ReadPrefix, givesAtMostWhatIsAskedFor)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s, QByteArray("a\0\xFF\ndef", 7));
    EXPECT_EQ(files::readPrefix(path, 3), QByteArray("a\0\xFF", 3));
    EXPECT_EQ(files::readPrefix(path, 7), QByteArray("a\0\xFF\ndef", 7));
    EXPECT_EQ(files::readPrefix(path, 1000), QByteArray("a\0\xFF\ndef", 7));
    EXPECT_EQ(files::readPrefix(path, 0), QByteArray());
}

TEST(ReadPrefix, givesEmptyContentOfAnEmptyFile)
{
    const TempHome temp;
    EXPECT_EQ(files::readPrefix(temp.file(u"empty"_s), 10), QByteArray());
}

TEST(ReadPrefix, givesALongPrefixWhole)
{
    const TempHome temp;
    QByteArray all;
    for (int number = 0; all.size() < 100000; ++number)
        all += QByteArray::number(number) + ' ';
    const QString path = temp.file(u"file"_s, all);
    EXPECT_EQ(files::readPrefix(path, 16385), all.first(16385));
    EXPECT_EQ(files::readPrefix(path, all.size() * 2), all);
}

TEST(ReadPrefix, doesNotWaitForTheWriterOfAPipe)
{
    const TempHome temp;
    EXPECT_FALSE(files::readPrefix(fifo(temp, u"pipe"_s), 10));
    EXPECT_FALSE(files::readPrefix(temp.link(u"link"_s, u"pipe"_s), 10));
}

TEST(ReadPrefix, givesNothingOfWhatIsNoRegularFile)
{
    const TempHome temp;
    EXPECT_FALSE(files::readPrefix(temp.path(), 10));
    EXPECT_FALSE(files::readPrefix(socketFile(temp, u"socket"_s), 10));
    EXPECT_FALSE(files::readPrefix(u"/dev/zero"_s, 10));
    EXPECT_FALSE(files::readPrefix(temp.at(u"missing"_s), 10));
}
