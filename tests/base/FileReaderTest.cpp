#include "base/Files.h"
#include "base/Paths.h"
#include "support/TempHome.h"

#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Takes the injected faults away again.
struct FaultsEnd
{
    FaultsEnd() = default;
    ~FaultsEnd() { files::injectFaults({}); }
    FaultsEnd(const FaultsEnd &) = delete;
    FaultsEnd &operator=(const FaultsEnd &) = delete;
};

bool isOpen(const QString &path)
{
    return files::FileReader(paths::toBytes(path)).isOpen();
}

} // namespace

TEST(FileReader, readsAnyPartOfAFile)
{
    const TempHome temp;
    const files::FileReader reader(paths::toBytes(temp.file(u"file"_s, "0123456789")));
    ASSERT_TRUE(reader.isOpen());
    QByteArray content;
    EXPECT_TRUE(reader.read(0, 10, content));
    EXPECT_EQ(content, "0123456789");
    content.clear();
    EXPECT_TRUE(reader.read(7, 2, content));
    EXPECT_EQ(content, "78") << "in any order";
    EXPECT_TRUE(reader.read(2, 0, content));
    EXPECT_EQ(content, "78");
}

TEST(FileReader, appendsToWhatIsThere)
{
    const TempHome temp;
    const files::FileReader reader(paths::toBytes(temp.file(u"file"_s, "0123456789")));
    QByteArray content = "before ";
    EXPECT_TRUE(reader.read(1, 3, content));
    EXPECT_TRUE(reader.read(8, 2, content));
    EXPECT_EQ(content, "before 12389");
}

TEST(FileReader, readsFewerBytesWhereTheFileEnds)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s, "0123456789");
    const files::FileReader reader(paths::toBytes(path));
    QByteArray content = "x";
    EXPECT_TRUE(reader.read(8, 100, content));
    EXPECT_EQ(content, "x89");
    EXPECT_TRUE(reader.read(100, 5, content));
    EXPECT_EQ(content, "x89");
    ASSERT_EQ(truncate(paths::toBytes(path).constData(), 3), 0); // while it is open
    EXPECT_TRUE(reader.read(0, 10, content));
    EXPECT_EQ(content, "x89012");
}

TEST(FileReader, readsAMebibyteInOneGo)
{
    const TempHome temp;
    const QByteArray bytes(1 << 20, 'q');
    const files::FileReader reader(paths::toBytes(temp.file(u"file"_s, bytes)));
    const FaultsEnd end;
    int reads = 0;
    files::injectFaults([&reads](files::Operation operation, const QString &) {
        reads += operation == files::Operation::read ? 1 : 0;
        return 0;
    });
    QByteArray content;
    EXPECT_TRUE(reader.read(0, bytes.size(), content));
    EXPECT_EQ(content, bytes);
    EXPECT_EQ(reads, 1);
}

TEST(FileReader, readsBehindTheFirst32Bits)
{
    const TempHome temp;
    const qint64 size = (qint64(1) << 33) + 5;
    const files::FileReader reader(paths::toBytes(temp.sparseFile(u"file"_s, size)));
    QByteArray content;
    EXPECT_TRUE(reader.read(size - 3, 100, content));
    EXPECT_EQ(content, QByteArray(3, '\0'));
}

TEST(FileReader, tellsWhenTheContentWasLastChanged)
{
    const TempHome temp;
    const QByteArray path = paths::toBytes(temp.file(u"file"_s));
    const timespec times[] = {{5, 6}, {1234567, 89}};
    ASSERT_EQ(utimensat(AT_FDCWD, path.constData(), times, 0), 0);
    EXPECT_EQ(files::FileReader(path).modified(), dates::fromUnix(1234567, 89));
    EXPECT_EQ(files::FileReader("/missing").modified(), dates::distantPast);
}

TEST(FileReader, isOpenOnARegularFileAndOnALinkToOne)
{
    const TempHome temp;
    EXPECT_TRUE(isOpen(temp.file(u"empty"_s)));
    EXPECT_TRUE(isOpen(temp.link(u"link"_s, u"empty"_s)));
    EXPECT_TRUE(isOpen(temp.file(paths::fromBytes("\xFF\n"))));
}

TEST(FileReader, isNotOpenOnAnythingElseAndNeverWaits)
{
    const TempHome temp;
    const QString pipe = temp.at(u"pipe"_s);
    ASSERT_EQ(mkfifo(paths::toBytes(pipe).constData(), 0600), 0);
    EXPECT_FALSE(isOpen(pipe));
    EXPECT_FALSE(isOpen(temp.link(u"toPipe"_s, u"pipe"_s)));
    EXPECT_FALSE(isOpen(temp.link(u"toDevice"_s, u"/dev/zero"_s)));
    EXPECT_FALSE(isOpen(temp.link(u"dangling"_s, u"missing"_s)));
    EXPECT_FALSE(isOpen(temp.folder(u"folder"_s)));
    EXPECT_FALSE(isOpen(temp.at(u"missing"_s)));
    EXPECT_FALSE(isOpen(QString()));
}

TEST(FileReader, leavesNoDescriptorBehind)
{
    const TempHome temp;
    const QString file = temp.file(u"file"_s);
    const QString folder = temp.folder(u"folder"_s);
    const auto openCount = [] { return files::list(u"/dev/fd"_s).value().size(); };
    const size_t before = openCount();
    for (int number = 0; number < 10; ++number) {
        EXPECT_TRUE(isOpen(file));
        EXPECT_FALSE(isOpen(folder));
    }
    EXPECT_EQ(openCount(), before);
}

TEST(InjectedFaults, makeAFileReaderFailToOpen)
{
    const TempHome temp;
    const QString path = temp.file(u"file"_s);
    const FaultsEnd end;
    files::injectFaults([&path](files::Operation operation, const QString &at) {
        return operation == files::Operation::open && at == path ? EACCES : 0;
    });
    EXPECT_FALSE(isOpen(path));
    EXPECT_TRUE(isOpen(temp.file(u"other"_s)));
}

TEST(InjectedFaults, makeAFileReaderFailToRead)
{
    const TempHome temp;
    const files::FileReader reader(paths::toBytes(temp.file(u"file"_s, "content")));
    const FaultsEnd end;
    files::injectFaults([](files::Operation operation, const QString &) {
        return operation == files::Operation::read ? EIO : 0;
    });
    QByteArray content = "before";
    EXPECT_FALSE(reader.read(0, 7, content));
    EXPECT_EQ(content, "before");
    files::injectFaults({});
    EXPECT_TRUE(reader.read(0, 7, content));
    EXPECT_EQ(content, "beforecontent");
}

TEST(InjectedFaults, makeAFileReaderReadAgainAfterAnInterruption)
{
    const TempHome temp;
    const files::FileReader reader(paths::toBytes(temp.file(u"file"_s, "content")));
    const FaultsEnd end;
    int reads = 0;
    files::injectFaults([&reads](files::Operation operation, const QString &) {
        return operation == files::Operation::read && ++reads < 3 ? EINTR : 0;
    });
    QByteArray content;
    EXPECT_TRUE(reader.read(0, 7, content));
    EXPECT_EQ(content, "content");
    EXPECT_EQ(reads, 3);
}
