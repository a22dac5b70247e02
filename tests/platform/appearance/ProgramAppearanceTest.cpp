#include "platform/linux/PrivateBus.h"
#include "platform/linux/WaitUntil.h"
#include "StandInSettingsPortal.h"
#include "VirtualDisplay.h"

#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QColor darkWindow(u"#0d1117"_s);
const QColor lightWindow(u"#ffffff"_s);

/// The program itself, over a home, a bus and a display of its own.
class ProgramAppearanceTest : public ::testing::Test
{
public:
    ~ProgramAppearanceTest() override
    {
        program_.kill();
        program_.waitForFinished();
    }

protected:
    ProgramAppearanceTest()
    {
        home_.folder(u"runtime"_s);
        home_.setMode(u"runtime"_s, 0700);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME",
                                 "WAYLAND_DISPLAY", "QT_LOGGING_RULES", "QDBUS_DEBUG"})
            environment.remove(QLatin1StringView(name));
        environment.insert(u"HOME"_s, home_.path());
        environment.insert(u"XDG_RUNTIME_DIR"_s, home_.at(u"runtime"_s));
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus_.address());
        environment.insert(u"DISPLAY"_s, display_.name());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        program_.setProcessEnvironment(environment);
        program_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }

    /// Waits until most of what is to be seen has the colour of such a window.
    bool waitFor(const QColor &color) const
    {
        return waitUntil([&] { return display_.shareOf(color) > 0.5; });
    }

    TempHome home_;
    PrivateBus bus_;
    VirtualDisplay display_;
    QProcess program_;
};

} // namespace

TEST_F(ProgramAppearanceTest, paintsTheWindowAnewWhenTheDesktopChanges)
{
    StandInSettingsPortal portal(bus_.connect(), QVariant(1U));
    program_.start(QStringLiteral(QUILLMERE_PROGRAM), {});
    ASSERT_TRUE(waitFor(darkWindow));
    portal.tell(2U);
    EXPECT_TRUE(waitFor(lightWindow));
    portal.tell(1U);
    EXPECT_TRUE(waitFor(darkWindow));
}
