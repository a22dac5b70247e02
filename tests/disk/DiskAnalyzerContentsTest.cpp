#include "disk/DiskAnalyzerHome.h"
#include "disk/DiskAnalyzerView.h"

#include <QAbstractItemModelTester>

namespace {
using DiskAnalyzerContentsTest = DiskAnalyzerHome;
} // namespace

TEST_F(DiskAnalyzerContentsTest, listsTheContentsWithTheirShares)
{
    makeScanned();
    const QAbstractItemModelTester tester(view->contents(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(columnTexts(view->contents(), "symbol").join(u','), QStringLiteral("folder.fill,doc.fill"));
    EXPECT_EQ(columnTexts(view->contents(), "sizeText").join(u','), QStringLiteral("1000 KB,200 KB"));
    EXPECT_EQ(columnTexts(view->contents(), "shareText").join(u','), QStringLiteral("83.3%,16.7%"));
    EXPECT_EQ(columnTexts(view->contents(), "isFolder").join(u','), QStringLiteral("true,false"));
    EXPECT_DOUBLE_EQ(rowValue(view->contents(), 0, "share").toDouble(), 1000.0 / 1200);
    open("Documents");
    EXPECT_EQ(columnTexts(view->contents(), "shareText").join(u','), QStringLiteral("60.0%,40.0%"));
    view->rescan();
    test.settle();
    EXPECT_EQ(view->contents()->rowCount(), 2);
}

TEST_F(DiskAnalyzerContentsTest, roundsASharesTieToTheEvenDigit)
{
    test.temp.sparseFile(QStringLiteral("ties/more"), 351); // 87.75 % of 400
    test.temp.sparseFile(QStringLiteral("ties/less"), 49);  // 12.25 %
    test.temp.sparseFile(QStringLiteral("ties/none"), 0);
    disk.setAnalyzerScanPath(test.temp.at(QStringLiteral("ties")));
    makeScanned();
    EXPECT_EQ(columnTexts(view->contents(), "shareText").join(u','), QStringLiteral("87.8%,12.2%,0.0%"));
}

TEST_F(DiskAnalyzerContentsTest, hasNoShareOfAnEmptyWhole)
{
    test.temp.sparseFile(QStringLiteral("zeros/a"), 0);
    test.temp.folder(QStringLiteral("zeros/b"));
    disk.setAnalyzerScanPath(test.temp.at(QStringLiteral("zeros")));
    makeScanned();
    EXPECT_EQ(columnTexts(view->contents(), "shareText").join(u','), QStringLiteral("0.0%,0.0%"));
    EXPECT_EQ(view->mapSummary(), QStringLiteral("2 items · 0 B"));
    EXPECT_FALSE(view->isEmptyDirectory());
    EXPECT_TRUE(view->isMapEmpty());
}

TEST_F(DiskAnalyzerContentsTest, sumsInTheMapWhatIsListedAndInItsHeadWhatIsThere)
{
    for (int i = 0; i < 32; ++i) // two more than a listing keeps
        test.temp.sparseFile(QStringLiteral("many/%1").arg(i), 100);
    disk.setAnalyzerScanPath(test.temp.at(QStringLiteral("many")));
    makeScanned();
    EXPECT_EQ(view->mapSummary(), QStringLiteral("30 items · 3.1 KB"));
    EXPECT_EQ(rowValue(view->contents(), 0, "shareText").toString(), QStringLiteral("3.1%"));
    view->treemap()->resize(400, 300);
    EXPECT_NE(rowOf(view->treemap()->tiles(), "tileName", "18 others"), -1);
}
