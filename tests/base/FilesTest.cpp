#include "base/Files.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "support/TempHome.h"

#include <cerrno>
#include <cstring>
#include <set>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using files::Kind;

namespace {

/// Names that a careless program loses, splits or misreads.
std::vector<QString> hostileNames()
{
    return {u"two words"_s,
            u" leading and trailing "_s,
            u"new\nline"_s,
            u"quote\"'`"_s,
            u"$HOME *?[a]"_s,
            u"-rf"_s,
            u"back\\slash"_s,
            u"per%20cent%"_s,
            u"tab\tbell\a"_s,
            u"emoji 😀"_s,
            u"..."_s,
            u"e\u0301"_s,
            u"\u00E9"_s,
            QString(255, u'n'),
            paths::fromBytes("\xFF\xFE bytes"),
            paths::fromBytes("\xEF\xBB\xBF mark"),
            paths::fromBytes("\xED\xA0\xBD surrogate")};
}

/// The code of the error that `call` throws; 0 when it throws none.
template<typename Call>
int failureOf(const Call &call)
{
    try {
        call();
        return 0;
    } catch (const Error &error) {
        EXPECT_EQ(error.domain, errors::systemDomain);
        EXPECT_FALSE(error.description.isEmpty());
        return error.code;
    }
}

int moveFailure(const QString &from, const QString &to)
{
    return failureOf([&] { files::move(from, to); });
}

std::set<QString> names(const QString &folder)
{
    const auto listed = files::list(folder).value_or(std::vector<QString>{u"not listed"_s});
    const std::set<QString> all(listed.begin(), listed.end());
    EXPECT_EQ(all.size(), listed.size()) << "a name came twice";
    return all;
}

QByteArray content(const QString &path)
{
    return files::readPrefix(path, 1000).value_or("unreadable");
}

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

TEST(FileLinks, thatDangleLeadToNothing)
{
    const TempHome temp;
    const QString link = temp.link(u"link"_s, u"missing"_s);
    EXPECT_FALSE(files::exists(link));
    EXPECT_FALSE(files::isDirectory(link));
    EXPECT_FALSE(files::list(link));
    EXPECT_FALSE(files::readPrefix(link, 1));
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

TEST(MakeDirectory, refusesANameThatIsTaken)
{
    const TempHome temp;
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.file(u"file"_s, "kept")); }), EEXIST);
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.folder(u"folder"_s)); }), EEXIST);
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.link(u"link"_s, u"missing"_s)); }), EEXIST);
    EXPECT_EQ(content(temp.at(u"file"_s)), "kept");
}

TEST(MakeDirectory, makesNoFolderAbove)
{
    const TempHome temp;
    EXPECT_EQ(failureOf([&] { files::makeDirectory(temp.at(u"missing/folder"_s)); }), ENOENT);
    EXPECT_EQ(names(temp.path()), std::set<QString>());
}

TEST(MakeDirectories, makeWhatIsMissingAbove)
{
    const TempHome temp;
    const QString deepest = temp.at(u"a/b\n/"_s + paths::fromBytes("\xFF") + u"/d"_s);
    files::makeDirectories(deepest);
    EXPECT_TRUE(files::isDirectory(deepest));
    files::makeDirectories(deepest);
    files::makeDirectories(temp.at(u"a/x/"_s));
    EXPECT_EQ(names(temp.at(u"a"_s)), std::set<QString>({u"b\n"_s, u"x"_s}));
}

TEST(MakeDirectories, goThroughALinkToAFolder)
{
    const TempHome temp;
    temp.folder(u"real"_s);
    files::makeDirectories(paths::join(temp.link(u"link"_s, u"real"_s), u"new/deep"_s));
    EXPECT_TRUE(files::isDirectory(temp.at(u"real/new/deep"_s)));
    files::makeDirectories(temp.at(u"link"_s));
}

TEST(MakeDirectories, refuseAFileInTheWay)
{
    const TempHome temp;
    const QString file = temp.file(u"file"_s, "kept");
    EXPECT_EQ(failureOf([&] { files::makeDirectories(file); }), EEXIST);
    EXPECT_EQ(failureOf([&] { files::makeDirectories(paths::join(file, u"below"_s)); }), EEXIST);
    EXPECT_EQ(content(file), "kept");
}

TEST(MakeDirectories, refuseADanglingLinkInTheWay)
{
    const TempHome temp;
    EXPECT_EQ(failureOf([&] { files::makeDirectories(temp.link(u"link"_s, u"missing"_s)); }), EEXIST);
}

TEST(MakeDirectories, bearWithOthersThatMakeTheSame)
{
    const TempHome temp;
    std::vector<std::thread> threads;
    std::vector<int> failures(8, -1);
    for (int &failure : failures) {
        threads.emplace_back([&temp, &failure] {
            failure = failureOf([&temp] { files::makeDirectories(temp.at(u"a/b/c/d/e/f/g/h"_s)); });
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(failures, std::vector<int>(8, 0));
    EXPECT_TRUE(files::isDirectory(temp.at(u"a/b/c/d/e/f/g/h"_s)));
}

TEST(Move, neverReplacesAFile)
{
    const TempHome temp;
    const QString from = temp.file(u"from"_s, "mine");
    const QString to = temp.file(u"to"_s, "other");
    EXPECT_EQ(moveFailure(from, to), EEXIST);
    EXPECT_EQ(content(from), "mine");
    EXPECT_EQ(content(to), "other");
}

TEST(Move, neverReplacesAnEmptyFolder)
{
    const TempHome temp;
    const QString from = temp.folder(u"from"_s);
    const QString to = temp.folder(u"to"_s);
    EXPECT_EQ(moveFailure(from, to), EEXIST);
    EXPECT_EQ(moveFailure(temp.file(u"file"_s), to), EEXIST);
    EXPECT_TRUE(files::isDirectory(from));
}

TEST(Move, neverReplacesADanglingLink)
{
    const TempHome temp;
    const QString from = temp.file(u"from"_s, "mine");
    const QString to = temp.link(u"to"_s, u"missing"_s);
    EXPECT_EQ(moveFailure(from, to), EEXIST);
    EXPECT_EQ(content(from), "mine");
    EXPECT_EQ(files::attributes(to)->kind, Kind::link);
}

TEST(Move, refusesAnEntrysOwnName)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s, "kept");
    EXPECT_EQ(moveFailure(path, path), EEXIST);
    EXPECT_EQ(content(path), "kept");
}

TEST(Move, takesALinkItselfAndNotItsTarget)
{
    const TempHome temp;
    const QString target = temp.file(u"target"_s, "content");
    const QString link = temp.link(u"link"_s, u"target"_s);
    files::move(link, temp.at(u"moved"_s));
    EXPECT_EQ(files::attributes(temp.at(u"moved"_s))->kind, Kind::link);
    EXPECT_EQ(content(target), "content");
    EXPECT_FALSE(files::attributes(link));
}

TEST(Move, takesAFolderWithWhatIsInIt)
{
    const TempHome temp;
    temp.file(u"from/deep/file"_s, "content");
    files::move(temp.at(u"from"_s), temp.at(u"to"_s));
    EXPECT_EQ(content(temp.at(u"to/deep/file"_s)), "content");
    EXPECT_FALSE(files::exists(temp.at(u"from"_s)));
}

TEST(Move, refusesAFoldersOwnInside)
{
    const TempHome temp;
    const QString folder = temp.folder(u"folder"_s);
    EXPECT_NE(moveFailure(folder, paths::join(folder, u"inside"_s)), 0);
    EXPECT_TRUE(files::isDirectory(folder));
}

TEST(Move, saysWhatIsMissing)
{
    const TempHome temp;
    EXPECT_EQ(moveFailure(temp.at(u"missing"_s), temp.at(u"to"_s)), ENOENT);
    const QString file = temp.file(u"file"_s, "kept");
    EXPECT_EQ(moveFailure(file, temp.at(u"no folder/file"_s)), ENOENT);
    EXPECT_EQ(content(file), "kept");
}

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
