#include "platform/linux/AccessibilityBus.h"

#include "platform/linux/PrivateBus.h"
#include "support/TempHome.h"

#include <cstring>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int longEnough = 60000; // ms; a bus that answers does so long before
constexpr int briefly = 50;

/// Takes connections into its queue, as the kernel does for a process that is held, and says nothing.
class MuteSocket
{
public:
    explicit MuteSocket(const QString &path)
        : descriptor_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        strncpy(address.sun_path, path.toUtf8().constData(), sizeof address.sun_path - 1);
        isListening_ = bind(descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0
                       && listen(descriptor_, 5) == 0;
    }
    ~MuteSocket() { close(descriptor_); }
    MuteSocket(const MuteSocket &) = delete;
    MuteSocket &operator=(const MuteSocket &) = delete;

    bool isListening() const { return isListening_; }

private:
    int descriptor_;
    bool isListening_ = false;
};

TEST(AccessibilityBus, answersWhereThereIsOne)
{
    const PrivateBus bus;
    EXPECT_TRUE(accessibilitybus::answers(bus.address(), longEnough));
}

TEST(AccessibilityBus, answersNotWhereConnectionsAreTakenAndNobodySpeaks)
{
    const TempHome folder;
    const QString path = folder.path() + QStringLiteral("/bus");
    const MuteSocket silent(path);
    ASSERT_TRUE(silent.isListening());
    EXPECT_FALSE(accessibilitybus::answers(QStringLiteral("unix:path=") + path, briefly));
}

TEST(AccessibilityBus, answersNotWhereThereIsNone)
{
    const TempHome folder;
    EXPECT_FALSE(accessibilitybus::answers(
        QStringLiteral("unix:path=") + folder.path() + QStringLiteral("/none"), longEnough));
    EXPECT_FALSE(accessibilitybus::answers(QStringLiteral("no address"), longEnough));
    EXPECT_FALSE(accessibilitybus::answers(QString(), longEnough));
}

TEST(AccessibilityBus, isNotAskedForWithoutASession)
{
    accessibilitybus::passOverSilentOne(PrivateBus::none());
    EXPECT_FALSE(QDBusConnection(QStringLiteral("a11y")).isConnected());
}

} // namespace
