#include "filesystem/Packages.h"

#include <gtest/gtest.h>

TEST(IsPackage, knowsTheEndingsOfPackages)
{
    for (const char *name :
         {"Thing.app", "a.bundle", "Core.framework", "My Photos.photoslibrary", "x.xcodeproj", "y.plugin",
          "z.kext", "setup.pkg", "two.dots.app", "Thing.APP", ".hidden.app"})
        EXPECT_TRUE(packages::isPackage(name)) << name;
}

TEST(IsPackage, takesNoOtherFolderForOne)
{
    for (const char *name : {"", "app", ".app", "Thing.app ", "Thing.apps", "Thing.ap", "Thing.", "Thing",
                             "app.d", "a.\xFF", "a.verylongendingthatisnone", "a.app/"})
        EXPECT_FALSE(packages::isPackage(name)) << name;
}
