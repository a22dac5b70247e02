#include "program/Rendering.h"

#include <string>

#include <gtest/gtest.h>

namespace {

bool drawsInSoftwareWith(bool hasGraphicsCard, const std::string &variable)
{
    return rendering::drawsInSoftware(hasGraphicsCard, [&](const char *name) { return name == variable; });
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
