#include "DemoApplications.h"

#include "base/Paths.h"
#include "DemoPictures.h"
#include "makers/MadeBundle.h"
#include "makers/MadeFiles.h"

#include <array>

namespace {

constexpr qint64 kb = 1024;
constexpr qint64 mb = 1024 * kb;

struct DemoBundle
{
    const char *path = ""; // below the applications folder
    const char *name = "";
    const char *version = "";
    const char *identifier = ""; // none where it is empty
    qint64 size = 0;
    int days = 0; // since it was last changed
    MadeBundle::Form form = MadeBundle::Form::xml;
    const char *tint = ""; // of its picture; none where it is empty
};

constexpr auto xml = MadeBundle::Form::xml;
constexpr auto binary = MadeBundle::Form::binary;

constexpr std::array bundles = {
    DemoBundle{"Sketchpad.app", "Sketchpad", "4.2", "com.example.sketchpad", 44 * mb, 60, binary, "#e5734b"},
    DemoBundle{"Xcode.app", "Xcode", "15.4", "com.apple.dt.Xcode", 38 * mb, 120, binary, "#3f8efc"},
    // One vendor with three of them, so that all of its data is spared.
    DemoBundle{"Tide Tables.app", "Tide Tables", "2.1.3", "com.harbour.tidetables", 19 * mb, 200, xml,
               "#1f9e9a"},
    DemoBundle{"Harbour Charts.app", "Charts", "7.0", "com.harbour.charts", 31 * mb, 12, binary, "#2f6fb5"},
    DemoBundle{"Utilities/Harbour Log.app", "Harbour Log", "1.9", "com.harbour.log", 6 * mb, 380, xml,
               "#8a63d2"},
    DemoBundle{"Browser.app", "Browser", "121.0", "com.example.browser", 96 * mb, 0, binary, "#4fae4a"},
    DemoBundle{"Maps Offline.app", "Maps Offline", "3.0 (beta)", "com.example.maps", 27 * mb, 1, xml,
               "#c9a02c"},
    DemoBundle{"Caf\u00e9 Ledger \u2615.app", "Caf\u00e9 Ledger, \"Pro\"", "12", "coop.bohne.ledger", 8 * mb,
               45, xml, "#8b5a3c"},
    DemoBundle{"Handmade Script.app", "Handmade Script", "", "", 300 * kb, 900, xml},
    // Of another user's, as what an administrator has put there.
    DemoBundle{"Utilities/Firewall Warden.app", "Firewall Warden", "4.1", "com.bulwark.firewall", 33 * mb, 30,
               binary, "#c4473a"},
    DemoBundle{"Utilities/Clock Guard.app", "Clock Guard", "1.2", "com.bulwark.clock", 6 * mb, 33, xml,
               "#b58a2b"},
    DemoBundle{"Utilities/Sealed Vault.app", "Sealed Vault", "7.0", "com.bulwark.vault", 12 * mb, 34, binary,
               "#5b6675"},
};

struct DemoLeftover
{
    const char *path; // below the library
    qint64 size;
    int days;
};

constexpr std::array leftovers = {
    // Of live applications: their own, helpers', a team's container, and an earlier application of a vendor that is here.
    DemoLeftover{"Application Support/Tide Tables/stations.db", 5 * mb, 30},
    DemoLeftover{"Caches/com.harbour.tidetables/tiles.db", 9 * mb, 2},
    DemoLeftover{"Caches/com.harbour.tidetables.helper/queue.db", 300 * kb, 2},
    DemoLeftover{"Preferences/com.harbour.tidetables.plist", 3 * kb, 2},
    DemoLeftover{"Containers/com.harbour.charts/Data/charts.db", 12 * mb, 12},
    DemoLeftover{"Group Containers/ABCDE12345.com.harbour.charts/shared.db", 2 * mb, 12},
    DemoLeftover{"Saved Application State/com.harbour.charts.savedState/windows.plist", 12 * kb, 12},
    DemoLeftover{"HTTPStorages/com.example.browser/cookies.db", 700 * kb, 0},
    DemoLeftover{"WebKit/com.example.browser/storage.db", 4 * mb, 0},
    DemoLeftover{"Caches/com.bulwark.clock/times.db", 2 * mb, 33},
    DemoLeftover{"Caches/com.harbour.pilot/pilot.db", 1 * mb, 700},
    // Of one that is gone, in six folders.
    DemoLeftover{"Application Support/com.oldmill.grindstone/projects.db", 23 * mb, 510},
    DemoLeftover{"Caches/com.oldmill.grindstone/Cache.db", 14 * mb, 510},
    DemoLeftover{"Containers/com.oldmill.grindstone/Data/state.db", 3 * mb, 510},
    DemoLeftover{"Group Containers/9XYZ88PQRS.com.oldmill.grindstone/shared.db", 1 * mb, 510},
    DemoLeftover{"Saved Application State/com.oldmill.grindstone.savedState/windows.plist", 20 * kb, 510},
    DemoLeftover{"Preferences/com.oldmill.grindstone.plist", 4 * kb, 510},
    // Of others that are gone: a crash reporter's, cookies', and a folder with a plain name.
    DemoLeftover{"Caches/net.quietfox.radio-player/stream.cache", 6 * mb, 820},
    DemoLeftover{"HTTPStorages/net.quietfox.radio-player.binarycookies", 40 * kb, 820},
    DemoLeftover{"Application Support/Lantern Festival/levels.bin", 18 * mb, 1100},
    // Looks as if its owner were here: the last word is an installed application's name.
    DemoLeftover{"Caches/org.driftwood.sketchpad/thumbnails.db", 7 * mb, 300},
    DemoLeftover{"Preferences/org.driftwood.sketchpad.plist", 5 * kb, 300},
};

QJsonObject descriptionOf(const DemoBundle &bundle)
{
    QJsonObject description;
    const auto tell = [&description](const QString &key, const char *text) {
        if (*text != '\0')
            description.insert(key, QString::fromUtf8(text));
    };
    tell(QStringLiteral("CFBundleName"), bundle.name);
    tell(QStringLiteral("CFBundleShortVersionString"), bundle.version);
    tell(QStringLiteral("CFBundleIdentifier"), bundle.identifier);
    if (*bundle.tint != '\0')
        tell(QStringLiteral("CFBundleIconFile"), "AppIcon");
    return description;
}

void makeBundle(const QString &path, const DemoBundle &bundle)
{
    if (*bundle.tint != '\0')
        madefiles::make(paths::join(path, QStringLiteral("Contents/Resources/AppIcon.icns")),
                        demopictures::set(QString::fromUtf8(bundle.name), QString::fromUtf8(bundle.tint)), 0,
                        bundle.days);
    MadeBundle{path, descriptionOf(bundle), bundle.form, bundle.size, bundle.days}.make();
}

} // namespace

namespace demoapplications {

void make(const QString &applications, const QString &home)
{
    for (const DemoBundle &bundle : bundles)
        makeBundle(paths::join(applications, QString::fromUtf8(bundle.path)), bundle);
    const QString library = paths::join(home, QStringLiteral("Library"));
    for (const DemoLeftover &leftover : leftovers)
        madefiles::make(paths::join(library, QString::fromUtf8(leftover.path)), leftover.path, leftover.size,
                        leftover.days);
}

} // namespace demoapplications
