#include "apps/screen/AppTabTexts.h"

#include "common/KeySigns.h"

AppTabTexts AppTabTexts::ofInstalled(KeyStyle keys)
{
    AppTabTexts texts;
    texts.rescanTip = keysigns::text(QStringLiteral("Re-scan installed apps (⌘R)"), keys);
    texts.exportTip = QStringLiteral("Export installed apps");
    texts.scanning = QStringLiteral("Scanning applications...");
    texts.paneTitle = QStringLiteral("Select an app");
    texts.paneText = QStringLiteral("Click on an app to see details and uninstall options");
    return texts;
}

AppTabTexts AppTabTexts::ofGhosts(KeyStyle keys)
{
    AppTabTexts texts;
    texts.rescanTip = keysigns::text(QStringLiteral("Re-scan ghost files (⌘R)"), keys);
    texts.exportTip = QStringLiteral("Export ghost files");
    texts.scanning = QStringLiteral("Scanning for ghost files...");
    texts.paneTitle = QStringLiteral("Select a ghost app");
    texts.paneText = QStringLiteral("Click on a ghost app to see its leftover files");
    return texts;
}
