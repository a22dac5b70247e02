#include "common/ExtensionTable.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ExtensionTable, tellsWhatAnExtensionStandsFor)
{
    const ExtensionTable table{{"jpg png", "picture"}, {"txt", "text"}, {"gif", "picture"}};
    EXPECT_EQ(table.value(u"png"_s), u"picture"_s);
    EXPECT_EQ(table.value(u"gif"_s), u"picture"_s);
    EXPECT_EQ(table.value(u"txt"_s), u"text"_s);
}

TEST(ExtensionTable, knowsNoOtherExtension)
{
    const ExtensionTable table{{"jpg png", "picture"}};
    for (const QString &other : {QString(), u"JPG"_s, u"jp"_s, u"jpg png"_s, u" "_s})
        EXPECT_EQ(table.value(other), std::nullopt) << other.toStdString();
}

TEST(ExtensionTable, goesByTheFirstRowOfAnExtension)
{
    const ExtensionTable table{{"a b", "first"}, {"b c", "second"}};
    EXPECT_EQ(table.value(u"b"_s), u"first"_s);
    const std::map<QString, QStringList> expected = {{u"first"_s, {u"a"_s, u"b"_s}}, {u"second"_s, {u"c"_s}}};
    EXPECT_EQ(table.extensionsByValue(), expected);
}
