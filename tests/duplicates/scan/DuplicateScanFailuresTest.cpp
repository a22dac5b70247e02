#include "duplicates/scan/DuplicateScan.h"

#include "CallCounts.h"
#include "duplicates/Contents.h"
#include "OrderedFiles.h"
#include "ScanRun.h"
#include "support/TempHome.h"

#include <cerrno>
#include <set>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace contents;

namespace {

using Groups = std::vector<QStringList>;

} // namespace

TEST(DuplicateScan, opensEveryFileOfASharedSizeAndNoneOfAUniqueOne)
{
    const TempHome temp;
    std::set<QString> shared;
    for (int number = 0; number < 5; ++number) {
        temp.file(u"unique%1"_s.arg(number), filled(100 + number));
        shared.insert(temp.file(u"shared%1"_s.arg(number), filled(5000, static_cast<quint64>(number))));
    }
    const CallCounts calls;
    EXPECT_TRUE(ScanRun({temp.path()}).run().groups.empty());
    EXPECT_EQ(std::set<QString>(calls.opened.begin(), calls.opened.end()), shared);
    EXPECT_EQ(calls.opened.size(), 5);
    EXPECT_EQ(calls.readFiles.size(), 5);
    EXPECT_EQ(calls.questions.size(), 10U);
    for (const auto &[path, count] : calls.questions)
        EXPECT_EQ(count, 1) << path.toStdString();
}

TEST(DuplicateScan, countsAFileOnceThatCannotBeOpened)
{
    const OrderedFiles home({"same", "same", "same"});
    const InjectedFaults fault(files::Operation::open, home.files[1]);
    const auto result = ScanRun(home.scanPaths).run();
    EXPECT_EQ(ScanRun::paths(result), Groups{QStringList({home.files[0], home.files[2]})});
    EXPECT_EQ(result.hashFailureCount, 1);
}

TEST(DuplicateScan, countsFailuresOfAllSizes)
{
    const OrderedFiles home({"same", "same", "longer", "longer", "unique file"});
    const InjectedFaults fault([](files::Operation operation, const QString &) {
        return operation == files::Operation::open ? EACCES : 0;
    });
    const auto result = ScanRun(home.scanPaths).run();
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(result.hashFailureCount, 4) << "a file of a size of its own is not opened";
    EXPECT_FALSE(result.wasCancelled);
}

TEST(DuplicateScan, countsAFileOnceThatVanishesBetweenItsTwoOpenings)
{
    const QByteArray content = filled(10000);
    const OrderedFiles home({content, content, content});
    int opens = 0;
    const InjectedFaults fault([&](files::Operation operation, const QString &path) {
        const bool isFirst = operation == files::Operation::open && path == home.files[0];
        return isFirst && ++opens > 1 ? ENOENT : 0;
    });
    const auto result = ScanRun(home.scanPaths).run();
    EXPECT_EQ(ScanRun::paths(result), Groups{QStringList({home.files[1], home.files[2]})});
    EXPECT_EQ(opens, 2);
    EXPECT_EQ(result.hashFailureCount, 1);
}
