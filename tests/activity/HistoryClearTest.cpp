#include "activity/HistorySheetFixture.h"

using namespace Qt::StringLiterals;
using Kind = HistoryEntry::Kind;

namespace {
using HistoryClearTest = HistorySheet;
} // namespace

TEST_F(HistoryClearTest, clearsTheLogOnlyAfterItsQuestion)
{
    record(samples::entry(u"a"_s));
    open();
    EXPECT_TRUE(view->canClear());
    view->confirmClear();
    test.mainQueue.run();
    EXPECT_EQ(titles(), u"a"_s);
    view->askToClear();
    EXPECT_TRUE(view->showClearConfirm());
    view->cancelClear();
    EXPECT_FALSE(view->showClearConfirm());
    test.mainQueue.run();
    EXPECT_EQ(titles(), u"a"_s);
    view->askToClear();
    view->confirmClear();
    EXPECT_FALSE(view->showClearConfirm());
    test.mainQueue.run();
    EXPECT_EQ(view->rows()->rowCount(), 0);
    EXPECT_EQ(view->emptyText(), u"No activity yet."_s);
    EXPECT_FALSE(view->canClear());
    EXPECT_TRUE(view->canReveal());
}

TEST_F(HistoryClearTest, takesTheQuestionBackWhenTheLogChangesUnderIt)
{
    record(samples::entry(u"a"_s));
    open();
    view->askToClear();
    record(samples::entry(u"b"_s));
    EXPECT_FALSE(view->showClearConfirm());
    view->confirmClear(); // the click that was on its way
    test.mainQueue.run();
    EXPECT_EQ(titles(), u"b a"_s);
}

TEST_F(HistoryClearTest, keepsTheQuestionUpWhileOnlyTheViewOfTheLogChanges)
{
    record(samples::entry(Kind::organize, u"a"_s, 1));
    open();
    view->askToClear();
    view->toggleRow(0);
    view->chooseFilter(undoChip);
    test.mainQueue.run();
    EXPECT_TRUE(view->showClearConfirm());
}

TEST_F(HistoryClearTest, asksWithItsOwnWords)
{
    open();
    const HistoryTexts texts = view->texts();
    EXPECT_EQ(texts.confirmTitle, u"Clear all history?"_s);
    EXPECT_EQ(texts.confirmText,
              u"Deletes the activity log. Files already moved to Trash stay there. This can't be undone."_s);
    EXPECT_EQ(texts.cancel, u"Cancel"_s);
    EXPECT_EQ(texts.clear, u"Clear"_s);
    EXPECT_EQ(texts.clearTip, u"Wipe all entries (files already trashed stay trashed)"_s);
}
