#include "base/Paths.h"

#include <QFont>
#include <QRawFont>

#include <gtest/gtest.h>

// A sign from another font stands out by its size, its weight or as an empty box.
TEST(LineSigns, areInTheFontOfText)
{
    const QRawFont font = QRawFont::fromFont(QFont(QStringLiteral("Inter"), 13));
    ASSERT_TRUE(font.isValid());
    ASSERT_EQ(font.familyName(), QStringLiteral("Inter"));
    QString controls(QChar(0x7F));
    for (char16_t code = 0; code < 0x20; ++code)
        controls += QChar(code);
    const QString line = paths::inOneLine(controls);
    for (const QChar sign : line)
        EXPECT_TRUE(font.supportsCharacter(sign)) << static_cast<int>(sign.unicode());
}
