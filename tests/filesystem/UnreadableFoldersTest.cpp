#include "filesystem/FileSystemService.h"
#include "support/OrdinaryUser.h"
#include "support/TestPlatform.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// "root" with a folder for each way in which one may be locked, each with a file of 100 bytes in it, and one file beside.
struct LockedFolders
{
    LockedFolders()
    {
        test.temp.file(u"root/open/file"_s, QByteArray(7, 'x'));
        test.temp.file(u"root/beside"_s, QByteArray(5, 'x'));
        for (const auto &[name, mode] : locks) {
            test.temp.file(u"root/"_s + name + u"/file"_s, QByteArray(100, 'x'));
            test.temp.setMode(u"root/"_s + name, mode);
        }
    }

    const std::vector<std::pair<QString, unsigned>> locks = {
        {u"closed"_s, 0}, {u"only to enter"_s, 0300}, {u"only to list"_s, 0400}};
    TestPlatform test;
    FileSystemService service{test.platform, test.probes};
};

} // namespace

TEST(UnreadableFolders, areListedAsEmptyForAnOrdinaryUser)
{
    const auto checks = [] {
        const LockedFolders locked;
        EXPECT_EQ(locked.service.listDirectory(locked.test.temp.at(u"root"_s), true).size(), 5U);
        EXPECT_EQ(locked.service.listDirectory(locked.test.temp.at(u"root/open"_s), true).size(), 1U);
        for (const auto &[name, mode] : locked.locks)
            EXPECT_TRUE(locked.service.listDirectory(locked.test.temp.at(u"root/"_s + name), true).empty())
                << name.toStdString();
    };
    EXPECT_TRUE(holdsForOrdinaryUser(checks));
}

TEST(UnreadableFolders, countNothingInATreeForAnOrdinaryUser)
{
    const auto checks = [] {
        const LockedFolders locked;
        const FileEntry root = locked.service.scanTree(locked.test.temp.at(u"root"_s), 0, 3);
        EXPECT_EQ(root.size, 12);
        ASSERT_EQ(root.children->size(), 5U);
        for (const auto &lock : locked.locks) {
            const QString &name = lock.first;
            const auto child = std::find_if(root.children->begin(), root.children->end(),
                                            [&](const FileEntry &entry) { return entry.name == name; });
            ASSERT_NE(child, root.children->end()) << name.toStdString();
            EXPECT_EQ(child->size, 0) << name.toStdString();
            EXPECT_TRUE(!child->children || child->children->empty()) << name.toStdString();
        }
    };
    EXPECT_TRUE(holdsForOrdinaryUser(checks));
}
