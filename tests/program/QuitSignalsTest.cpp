#include "support/MuteSocket.h"
#include "support/TempHome.h"

#include <QFile>
#include <QProcess>
#include <QtTest>

#include <csignal>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Milliseconds; sanitizers make the start slow, each wait ends as soon as it may.
constexpr int startPatience = 60'000;

/// The program itself, over a home of its own, without a bus unless a test puts one there.
class QuitSignalsTest : public ::testing::TestWithParam<int>
{
public:
    ~QuitSignalsTest() override
    {
        program_.kill();
        program_.waitForFinished();
    }

protected:
    QuitSignalsTest()
    {
        home_.folder(u"runtime"_s);
        home_.setMode(u"runtime"_s, 0700);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
            environment.remove(QLatin1StringView(name));
        environment.insert(u"HOME"_s, home_.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, home_.at(u"runtime"_s));
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path="_s + busPath());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        program_.setProcessEnvironment(environment);
        program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }
    QString busPath() const { return home_.at(u"bus"_s); }

    /// True once the program answers for the signal itself, as the kernel tells.
    bool catches(int signal) const
    {
        QFile status(u"/proc/%1/status"_s.arg(program_.processId()));
        if (!status.open(QFile::ReadOnly))
            return false;
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("SigCgt:"))
                return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1) & 1) != 0;
        }
        return false;
    }

    TempHome home_;
    QProcess program_;
};

} // namespace

TEST_P(QuitSignalsTest, endTheProgramAsAnyWayOutDoes)
{
    program_.start(QStringLiteral(QUILLMERE_PROGRAM), {});
    ASSERT_TRUE(program_.waitForStarted(startPatience));
    ASSERT_TRUE(QTest::qWaitFor([this] { return catches(GetParam()); }, startPatience));
    ASSERT_EQ(kill(static_cast<pid_t>(program_.processId()), GetParam()), 0);
    ASSERT_TRUE(program_.waitForFinished(startPatience));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program_.exitCode(), EXIT_SUCCESS);
}

TEST_P(QuitSignalsTest, endTheProgramBesideABusThatSaysNothing)
{
    const MuteSocket bus(busPath());
    ASSERT_TRUE(bus.isListening());
    program_.start(QStringLiteral(QUILLMERE_PROGRAM), {});
    ASSERT_TRUE(program_.waitForStarted(startPatience));
    ASSERT_TRUE(QTest::qWaitFor([this] { return catches(GetParam()); }, startPatience))
        << "It waits for the bus.";
    ASSERT_EQ(kill(static_cast<pid_t>(program_.processId()), GetParam()), 0);
    ASSERT_TRUE(program_.waitForFinished(startPatience));
    EXPECT_EQ(program_.exitCode(), EXIT_SUCCESS);
}

INSTANTIATE_TEST_SUITE_P(Both, QuitSignalsTest, ::testing::Values(SIGTERM, SIGINT),
                         [](const auto &signal) { return signal.param == SIGTERM ? "SIGTERM" : "SIGINT"; });
