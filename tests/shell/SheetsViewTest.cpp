#include "shell/SheetsView.h"

#include "activity/HistoryService.h"
#include "support/TestPlatform.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class SheetsViewTest : public ::testing::Test
{
protected:
    TestPlatform test;
    HistoryService history{test.platform};
    ContentView content{test.platform, {}};
    int made = 0;
    SheetsView sheets{content, [this] {
                          ++made;
                          return std::make_unique<HistoryView>(test.platform, history);
                      }};
};

} // namespace

TEST_F(SheetsViewTest, makesTheModelOfTheHistoryAnewAtEachOpening)
{
    EXPECT_EQ(sheets.history(), nullptr);
    content.setSheet(Sheet::history, true);
    ASSERT_NE(sheets.history(), nullptr);
    content.closeHistory();
    EXPECT_EQ(sheets.history(), nullptr);
    content.setSheet(Sheet::history, true);
    EXPECT_NE(sheets.history(), nullptr);
    EXPECT_EQ(made, 2);
}

TEST_F(SheetsViewTest, leavesTheModelAloneWhenAnotherSheetComesAndGoes)
{
    content.setSheet(Sheet::history, true);
    const QSignalSpy changes(&sheets, &SheetsView::historyChanged);
    const HistoryView *before = sheets.history();
    content.setSheet(Sheet::settings, true);
    content.setSheet(Sheet::settings, false);
    EXPECT_EQ(sheets.history(), before);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(SheetsViewTest, makesTheModelOfASheetThatWaitedOnceTheOtherHasGone)
{
    content.setSheet(Sheet::settings, true);
    content.setSheet(Sheet::history, true);
    EXPECT_EQ(sheets.history(), nullptr);
    content.setSheet(Sheet::settings, false);
    EXPECT_NE(sheets.history(), nullptr);
    EXPECT_EQ(made, 1);
}

TEST_F(SheetsViewTest, keepsAClosedModelUntilTheNextTurnOfTheLoop)
{
    content.setSheet(Sheet::history, true);
    const QPointer<HistoryView> model = sheets.history();
    content.dismissSheets();
    EXPECT_EQ(sheets.history(), nullptr);
    EXPECT_NE(model, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(model, nullptr);
}
