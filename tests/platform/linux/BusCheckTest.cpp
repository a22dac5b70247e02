#include "platform/linux/BusCheck.h"

#include "platform/linux/PrivateBus.h"
#include "support/MuteSocket.h"
#include "support/TempHome.h"

#include <thread>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

using buscheck::Outcome;

namespace {

constexpr int longEnough = 60000; // ms; a bus that answers does so long before
constexpr int briefly = 50;
constexpr buscheck::Peer busItself = {"org.freedesktop.DBus", "/org/freedesktop/DBus"};
constexpr buscheck::Peer nobody = {"com.quillmere.Nobody", "/com/quillmere/Nobody"};

/// Takes a connection as a bus does, and has no word once it is there.
class SilentBus
{
public:
    explicit SilentBus(const QString &path)
        : socket_(path)
        , thread_([this] { takeConnection(); })
    {
    }
    ~SilentBus()
    {
        socket_.endListening();
        thread_.join();
    }
    SilentBus(const SilentBus &) = delete;
    SilentBus &operator=(const SilentBus &) = delete;

    bool isListening() const { return socket_.isListening(); }

private:
    void takeConnection()
    {
        const int connection = accept(socket_.descriptor(), nullptr, nullptr);
        char bytes[4096];
        for (ssize_t count = 0; (count = read(connection, bytes, sizeof bytes)) > 0;)
            answer(connection, QByteArray(bytes, static_cast<qsizetype>(count)));
        close(connection);
    }
    static void answer(int connection, const QByteArray &line)
    {
        if (line.endsWith("AUTH\r\n"))
            say(connection, "REJECTED EXTERNAL\r\n");
        else if (line.startsWith("AUTH"))
            say(connection, "OK 0123456789abcdef0123456789abcdef\r\n");
        else if (line.startsWith("NEGOTIATE"))
            say(connection, "ERROR\r\n");
    }
    static void say(int connection, const QByteArray &line)
    {
        EXPECT_EQ(write(connection, line.constData(), static_cast<size_t>(line.size())), line.size());
    }

    MuteSocket socket_;
    std::thread thread_;
};

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

TEST(BusCheck, findsSilenceWhereTheFirstCallIsNotAnswered)
{
    const TempHome folder;
    const QString path = folder.path() + QStringLiteral("/bus");
    const SilentBus silent(path);
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
