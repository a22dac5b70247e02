#include "program/Rendering.h"

#include <QByteArray>

#include <string>

#include <gtest/gtest.h>

namespace {

bool drawsInSoftwareWith(bool hasGraphicsCard, const std::string &variable, const QByteArray &value = "1")
{
    return rendering::drawsInSoftware(
        hasGraphicsCard, [&](const char *name) { return name == variable ? value : QByteArray(); });
}

} // namespace

TEST(Rendering, isInSoftwareOnlyWithoutAGraphicsCard)
{
    EXPECT_TRUE(drawsInSoftwareWith(false, {}));
    EXPECT_FALSE(drawsInSoftwareWith(true, {}));
}

TEST(Rendering, isLeftToTheUserWhoHasChosen)
{
    for (const char *variable :
         {"QT_QUICK_BACKEND", "QMLSCENE_DEVICE", "QSG_RHI_BACKEND", "QSG_RHI_PREFER_SOFTWARE_RENDERER",
          "QT_OPENGL", "QT_XCB_GL_INTEGRATION", "LIBGL_ALWAYS_SOFTWARE"}) {
        EXPECT_FALSE(drawsInSoftwareWith(false, variable)) << variable;
        EXPECT_FALSE(drawsInSoftwareWith(true, variable)) << variable;
    }
}

TEST(Rendering, passesOverWhatChoosesNothing)
{
    EXPECT_TRUE(drawsInSoftwareWith(false, "QT_QPA_PLATFORM"));
}

TEST(Rendering, isNotInSoftwareAtAScaleThatTheSoftwareCannotDraw)
{
    for (const char *scale : {"0.5", "0.99", "1;0.5", "DP-1=0.75", "DP-1=2;HDMI-1=0.75"}) {
        EXPECT_FALSE(drawsInSoftwareWith(false, "QT_SCALE_FACTOR", scale)) << scale;
        EXPECT_FALSE(drawsInSoftwareWith(false, "QT_SCREEN_SCALE_FACTORS", scale)) << scale;
    }
    for (const char *scale : {"", "0", "1", "1.5", "2", "1;1.5", "DP-1=1;DP-2=2", "small", "DP-0.5=1"}) {
        EXPECT_TRUE(drawsInSoftwareWith(false, "QT_SCALE_FACTOR", scale)) << scale;
        EXPECT_TRUE(drawsInSoftwareWith(false, "QT_SCREEN_SCALE_FACTORS", scale)) << scale;
    }
}
