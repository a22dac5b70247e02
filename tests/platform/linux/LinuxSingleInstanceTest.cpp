#include "platform/linux/LinuxSingleInstance.h"

#include "base/Paths.h"
#include "PrivateBus.h"
#include "support/TempHome.h"
#include "WaitUntil.h"

#include <QByteArrayList>
#include <QDBusMessage>
#include <QDBusPendingCall>

#include <array>
#include <csignal>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Tells of each request for the window.
class Requests
{
public:
    explicit Requests(SingleInstance &instance)
    {
        instance.onActivate = [this](const QByteArray &token) { tokens.append(token); };
    }
    bool waitFor(qsizetype count) const
    {
        return waitUntil([this, count] { return tokens.size() >= count; });
    }

    QByteArrayList tokens;
};

/// Starts a second time without a bus, in a process of its own. True when that one gave way.
bool secondStartGivesWay(const QString &lockPath)
{
    const pid_t child = fork();
    if (child == 0) {
        LinuxSingleInstance second(PrivateBus::none(), lockPath);
        if (second.acquire())
            _exit(1);
        second.activateRunning("a token that a signal can't carry");
        _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// A process that holds the lock until it is killed.
class Holder
{
public:
    explicit Holder(const QString &lockPath)
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        child_ = fork();
        if (child_ == 0) {
            LinuxSingleInstance instance(PrivateBus::none(), lockPath);
            const char byte = instance.acquire() ? 1 : 0;
            if (write(ends[1], &byte, 1) == 1) {
                for (;;)
                    pause();
            }
            _exit(1);
        }
        char byte = 0;
        EXPECT_EQ(read(ends[0], &byte, 1), 1);
        EXPECT_EQ(byte, 1);
        close(ends[0]);
        close(ends[1]);
    }
    ~Holder() { end(); }
    Holder(const Holder &) = delete;
    Holder &operator=(const Holder &) = delete;

    void end()
    {
        if (child_ == 0)
            return;
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
        child_ = 0;
    }

private:
    pid_t child_ = 0;
};

/// The call that a desktop makes when it starts the program by its entry.
QDBusMessage activation(const QVariantMap &platformData)
{
    QDBusMessage call = QDBusMessage::createMethodCall(u"com.quillmere.app"_s, u"/com/quillmere/app"_s,
                                                       u"org.freedesktop.Application"_s, u"Activate"_s);
    call.setArguments({platformData});
    return call;
}

} // namespace

TEST(LinuxSingleInstance, secondStartOnTheBusHandsItsTokenToTheFirst)
{
    PrivateBus bus;
    LinuxSingleInstance first(bus.connect(), {});
    const Requests requests(first);
    ASSERT_TRUE(first.acquire());
    // On a thread, since it waits for the answer of the first one, which is given here.
    bool isAcquired = true;
    std::thread second([&isAcquired, connection = bus.connect()] {
        LinuxSingleInstance instance(connection, {});
        isAcquired = instance.acquire();
        instance.activateRunning("token 42");
    });
    EXPECT_TRUE(requests.waitFor(1));
    second.join();
    EXPECT_FALSE(isAcquired);
    EXPECT_EQ(requests.tokens, QByteArrayList{"token 42"});
}

TEST(LinuxSingleInstance, takesTheTokenUnderEitherName)
{
    PrivateBus bus;
    LinuxSingleInstance instance(bus.connect(), {});
    const Requests requests(instance);
    ASSERT_TRUE(instance.acquire());
    QDBusConnection desktop = bus.connect();
    desktop.asyncCall(activation({{u"desktop-startup-id"_s, u"old"_s}}));
    desktop.asyncCall(activation({{u"activation-token"_s, u"new"_s}, {u"desktop-startup-id"_s, u"old"_s}}));
    desktop.asyncCall(activation({}));
    EXPECT_TRUE(requests.waitFor(3));
    EXPECT_EQ(requests.tokens, (QByteArrayList{"old", "new", ""}));
}

TEST(LinuxSingleInstance, survivesHostileCalls)
{
    PrivateBus bus;
    LinuxSingleInstance instance(bus.connect(), {});
    const Requests requests(instance);
    ASSERT_TRUE(instance.acquire());
    QDBusConnection desktop = bus.connect();
    QDBusMessage wrongType = activation({});
    wrongType.setArguments({u"no map"_s});
    const QDBusPendingCall refused = desktop.asyncCall(wrongType);
    QDBusMessage nothing = activation({});
    nothing.setArguments({});
    desktop.asyncCall(nothing);
    const QDBusPendingCall unknown = desktop.asyncCall(QDBusMessage::createMethodCall(
        u"com.quillmere.app"_s, u"/com/quillmere/app"_s, u"org.freedesktop.Application"_s, u"Quit"_s));
    desktop.asyncCall(activation({{u"activation-token"_s, 5}}));
    desktop.asyncCall(activation({{u"activation-token"_s, QVariantList{u"x"_s}}}));
    desktop.asyncCall(activation({{u"activation-token"_s, QString(1'000'000, u'x')}}));
    EXPECT_TRUE(requests.waitFor(3));
    EXPECT_EQ(requests.tokens, (QByteArrayList{"5", "", ""}));
    EXPECT_TRUE(waitUntil([&] { return refused.isFinished() && unknown.isFinished(); }));
    EXPECT_TRUE(refused.isError());
    EXPECT_TRUE(unknown.isError());
}

TEST(LinuxSingleInstance, releaseLetsASuccessorTakeTheName)
{
    PrivateBus bus;
    const TempHome temp;
    LinuxSingleInstance first(bus.connect(), temp.at(u"lock"_s));
    LinuxSingleInstance successor(bus.connect(), {});
    ASSERT_TRUE(first.acquire());
    EXPECT_FALSE(successor.acquire());
    first.release();
    EXPECT_TRUE(successor.acquire());
    EXPECT_FALSE(first.acquire());
}

TEST(LinuxSingleInstance, secondStartWithoutABusSignalsTheFirst)
{
    const TempHome temp;
    LinuxSingleInstance first(PrivateBus::none(), temp.at(u"lock"_s));
    const Requests requests(first);
    ASSERT_TRUE(first.acquire());
    EXPECT_TRUE(secondStartGivesWay(temp.at(u"lock"_s)));
    EXPECT_TRUE(requests.waitFor(1));
    EXPECT_EQ(requests.tokens, QByteArrayList{""});
    EXPECT_TRUE(secondStartGivesWay(temp.at(u"lock"_s)));
    EXPECT_TRUE(requests.waitFor(2));
}

TEST(LinuxSingleInstance, startOnABusGivesWayToOneThatWasStartedWithout)
{
    PrivateBus bus;
    const TempHome temp;
    const Holder running(temp.at(u"lock"_s));
    LinuxSingleInstance second(bus.connect(), temp.at(u"lock"_s));
    EXPECT_FALSE(second.acquire());
    LinuxSingleInstance other(bus.connect(), {});
    EXPECT_TRUE(other.acquire()) << "The name was not given back.";
}

TEST(LinuxSingleInstance, lockOfAKilledProcessIsFree)
{
    const TempHome temp;
    Holder holder(temp.at(u"lock"_s));
    LinuxSingleInstance instance(PrivateBus::none(), temp.at(u"lock"_s));
    EXPECT_FALSE(instance.acquire());
    holder.end();
    EXPECT_TRUE(instance.acquire());
}

TEST(LinuxSingleInstance, releaseLetsASuccessorTakeTheLock)
{
    const TempHome temp;
    LinuxSingleInstance first(PrivateBus::none(), temp.at(u"lock"_s));
    ASSERT_TRUE(first.acquire());
    first.release();
    const Holder successor(temp.at(u"lock"_s));
    EXPECT_FALSE(first.acquire());
}

TEST(LinuxSingleInstance, survivesASignalThatComesAfterTheRelease)
{
    const TempHome temp;
    LinuxSingleInstance instance(PrivateBus::none(), temp.at(u"lock"_s));
    const Requests requests(instance);
    ASSERT_TRUE(instance.acquire());
    instance.release();
    ASSERT_EQ(raise(SIGUSR1), 0);
    ASSERT_TRUE(instance.acquire());
    ASSERT_EQ(raise(SIGUSR1), 0); // this one counts
    EXPECT_TRUE(requests.waitFor(1));
    EXPECT_EQ(requests.tokens.size(), 1);
}

TEST(LinuxSingleInstance, startsWhereThereIsNeitherBusNorRuntimeFolder)
{
    for (const QString &path : {QString(), u"/nowhere/at all/lock"_s, u"/dev/null/lock"_s}) {
        LinuxSingleInstance instance(PrivateBus::none(), path);
        EXPECT_TRUE(instance.acquire()) << path.toStdString();
        instance.activateRunning("token"); // nobody is there
        instance.release();
    }
}

TEST(LinuxSingleInstance, followsNoLinkInThePlaceOfItsLock)
{
    const TempHome temp;
    const QString target = temp.at(u"target"_s);
    ASSERT_EQ(symlink(paths::toBytes(target).constData(), paths::toBytes(temp.at(u"lock"_s)).constData()), 0);
    LinuxSingleInstance instance(PrivateBus::none(), temp.at(u"lock"_s));
    EXPECT_TRUE(instance.acquire());
    EXPECT_EQ(access(paths::toBytes(target).constData(), F_OK), -1);
}
