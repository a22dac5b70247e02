#include "platform/linux/BusCheck.h"

#include "platform/linux/PrivateBus.h"
#include "support/MuteSocket.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

using buscheck::Outcome;

namespace {

constexpr int longEnough = 60000; // ms; a bus that answers does so long before
constexpr int briefly = 50;
constexpr buscheck::Peer busItself = {"org.freedesktop.DBus", "/org/freedesktop/DBus"};
constexpr buscheck::Peer nobody = {"com.quillmere.Nobody", "/com/quillmere/Nobody"};

TEST(BusCheck, isAnsweredWhereThereIsABus)
{
    const PrivateBus bus;
    EXPECT_EQ(buscheck::ask(bus.address(), busItself, longEnough), Outcome::answered);
    EXPECT_EQ(buscheck::ask(bus.address(), nobody, longEnough), Outcome::answered);
}

TEST(BusCheck, findsSilenceWhereConnectionsAreTakenAndNobodySpeaks)
{
    const TempHome folder;
    const QString path = folder.path() + QStringLiteral("/bus");
    const MuteSocket silent(path);
    ASSERT_TRUE(silent.isListening());
    EXPECT_EQ(buscheck::ask(QStringLiteral("unix:path=") + path, busItself, briefly), Outcome::silent);
}

TEST(BusCheck, findsNoneWhereNobodyListens)
{
    const TempHome folder;
    EXPECT_EQ(buscheck::ask(QStringLiteral("unix:path=") + folder.path() + QStringLiteral("/none"), busItself,
                            longEnough),
              Outcome::none);
    EXPECT_EQ(buscheck::ask(QStringLiteral("no address"), busItself, longEnough), Outcome::none);
    EXPECT_EQ(buscheck::ask(QString(), busItself, longEnough), Outcome::none);
}

} // namespace
