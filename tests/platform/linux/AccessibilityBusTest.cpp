#include "platform/linux/AccessibilityBus.h"

#include "platform/linux/PrivateBus.h"

#include <gtest/gtest.h>

namespace {

TEST(AccessibilityBus, isNotAskedForWithoutASession)
{
    accessibilitybus::passOverSilentOne(PrivateBus::none());
    EXPECT_FALSE(QDBusConnection(QStringLiteral("a11y")).isConnected());
}

} // namespace
