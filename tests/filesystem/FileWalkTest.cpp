#include "filesystem/FileWalk.h"

#include "base/Paths.h"
#include "filesystem/InjectedFaults.h"
#include "support/TempHome.h"

#include <QStringList>

#include <cerrno>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// The files that a walk visits, from the root on, in order of their names.
QStringList walked(const QString &root)
{
    QStringList found;
    filewalk::overFiles(root, [&](const QString &folder, const files::DirectoryReader &entry) {
        found << (folder + u'/' + paths::fromBytes(entry.name())).mid(root.size() + 1);
        return true;
    });
    found.sort();
    return found;
}

} // namespace

TEST(OverFiles, visitsEveryRegularFileAtAnyDepth)
{
    const TempHome temp;
    QStringList expected{u".hidden"_s,
                         u".hidden folder/file"_s,
                         u"a/b/c/d/e/f/g/h/file"_s,
                         u"a/file"_s,
                         u"new\nline"_s,
                         u"two words"_s,
                         u"bytes "_s + paths::fromBytes("\xFF\xFE")};
    for (const QString &name : expected)
        temp.file(u"root/"_s + name);
    temp.folder(u"root/empty"_s);
    ASSERT_EQ(mkfifo(paths::toBytes(temp.at(u"root/pipe"_s)).constData(), 0600), 0);
    expected.sort();
    EXPECT_EQ(walked(temp.at(u"root"_s)), expected);
}

TEST(OverFiles, looksThroughNoLink)
{
    const TempHome temp;
    temp.file(u"elsewhere/file"_s);
    temp.file(u"root/folder/file"_s);
    temp.link(u"root/to folder"_s, temp.at(u"elsewhere"_s));
    temp.link(u"root/to file"_s, temp.at(u"elsewhere/file"_s));
    temp.link(u"root/inside"_s, u"folder"_s);
    temp.link(u"root/round"_s, u"."_s);
    temp.link(u"root/nowhere"_s, u"missing"_s);
    EXPECT_EQ(walked(temp.at(u"root"_s)), QStringList(u"folder/file"_s));
    EXPECT_EQ(walked(temp.link(u"link"_s, u"root"_s)), QStringList());
}

TEST(OverFiles, looksIntoNoPackage)
{
    const TempHome temp;
    temp.file(u"root/Thing.app/Contents/file"_s);
    temp.file(u"root/deep/Photos.PhotosLibrary/file"_s);
    temp.file(u"root/file.app"_s);
    temp.file(u"root.app/inside the root itself"_s);
    EXPECT_EQ(walked(temp.at(u"root"_s)), QStringList(u"file.app"_s));
    EXPECT_EQ(walked(temp.at(u"root.app"_s)), QStringList(u"inside the root itself"_s));
}

TEST(OverFiles, endsWhenTheVisitorHasEnough)
{
    const TempHome temp;
    for (int number = 0; number < 50; ++number)
        temp.file(u"%1/%2"_s.arg(number % 5).arg(number));
    int visits = 0;
    filewalk::overFiles(temp.path(),
                        [&visits](const QString &, const files::DirectoryReader &) { return ++visits < 7; });
    EXPECT_EQ(visits, 7);
}

TEST(OverFiles, passesOverWhatCannotBeListed)
{
    const TempHome temp;
    temp.file(u"a/file"_s);
    temp.file(u"locked/file"_s);
    temp.file(u"z/file"_s);
    const InjectedFaults faults(files::Operation::list, temp.at(u"locked"_s));
    EXPECT_EQ(walked(temp.path()), (QStringList{u"a/file"_s, u"z/file"_s}));
    EXPECT_EQ(walked(temp.at(u"missing"_s)), QStringList());
    EXPECT_EQ(walked(temp.at(u"a/file"_s)), QStringList());
}

TEST(OverFiles, asksWhereTheListingDoesNotTellKinds)
{
    const TempHome temp;
    temp.file(u"folder/file"_s);
    temp.link(u"link"_s, u"folder"_s);
    const InjectedFaults faults([](files::Operation operation, const QString &) {
        return operation == files::Operation::kind ? ENOTSUP : 0;
    });
    EXPECT_EQ(walked(temp.path()), QStringList(u"folder/file"_s));
}

TEST(OverFiles, goesDeeperThanFoldersMayBeOpen)
{
    const TempHome temp;
    QString folder = u"root"_s;
    QStringList expected;
    for (int level = 0; level < 300; ++level) {
        folder += u"/d"_s;
        temp.file(folder + u"/file"_s);
        expected << (folder + u"/file"_s).mid(5);
    }
    expected.sort();
    EXPECT_EQ(walked(temp.at(u"root"_s)), expected);
}
