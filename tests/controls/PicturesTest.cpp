#include "controls/Pictures.h"

#include "base/Paths.h"

#include <QUrl>

#include <gtest/gtest.h>

TEST(Pictures, tellsAnyPathByItsAddress)
{
    for (const QByteArray &path :
         {QByteArray("/Applications/Maps.app/Contents/Resources/Icon.icns"), QByteArray("/a b/../%2f?#\\é"),
          QByteArray("/caf\xe9/\x01\n"), QByteArray("/")}) {
        const QString key = paths::fromBytes(path);
        const QString address = QUrl(Pictures::address(key)).toString();
        const QString head = QStringLiteral("image://") + Pictures::provider + u'/';
        ASSERT_TRUE(address.startsWith(head)) << address.toStdString();
        EXPECT_EQ(Pictures::keyOf(address.mid(head.size())), key) << path.toStdString();
    }
}

TEST(Pictures, hasNoAddressWithoutAKey)
{
    EXPECT_EQ(Pictures::address({}), QString());
}
