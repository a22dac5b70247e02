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
    std::set<QString> descriptions;
    for (const SidebarSection section : sidebar::sections) {
        for (const SidebarItem item : sidebar::items(section)) {
            const QString description = UpcomingView(item).description();
            if (item == SidebarItem::diskAnalyzer) {
                EXPECT_EQ(description, QString()); // that one is there
                continue;
            }
            EXPECT_TRUE(description.endsWith(u'.')) << sidebar::key(item).toStdString();
            EXPECT_TRUE(descriptions.insert(description).second) << description.toStdString();
        }
    }
    EXPECT_EQ(descriptions.size(), 8U);
}
