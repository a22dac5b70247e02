#include "shell/UpcomingView.h"

#include <set>

#include <gtest/gtest.h>

TEST(UpcomingView, carriesTitleAndSymbolOfItsScreen)
{
    const UpcomingView view(SidebarItem::bulkRename);
    EXPECT_EQ(view.title(), QStringLiteral("Bulk Rename"));
    EXPECT_EQ(view.symbol(), QStringLiteral("textformat.abc"));
}

TEST(UpcomingView, describesEachScreenThatIsToComeInItsOwnWords)
{
    ASSERT_LT(UpcomingView::descriptions().size(), sidebar::rows.size()); // some are there
    std::set<QString> descriptions;
    for (const auto &[item, told] : UpcomingView::descriptions()) {
        const QString description = UpcomingView(item).description();
        EXPECT_EQ(description, told);
        EXPECT_TRUE(description.endsWith(u'.')) << sidebar::key(item).toStdString();
        descriptions.insert(description);
    }
    EXPECT_EQ(descriptions.size(), UpcomingView::descriptions().size());
}
