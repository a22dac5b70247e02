#pragma once

#include <QString>
#include <QVariantMap>

/// The keys of the user's settings, with their types and what a read gives before any write.
namespace settings {

/// Boolean, true. A stored preference with a visible switch; no operation consults it, since each tool's
/// confirmation stands regardless.
inline const QString confirmBeforeDelete = QStringLiteral("settings.confirmBeforeDelete");
/// Boolean, false. Whether the File Browser starts with hidden files on view.
inline const QString showHiddenFilesDefault = QStringLiteral("settings.showHiddenFilesDefault");
/// Boolean, true. A stored preference like `confirmBeforeDelete`.
inline const QString cleanupRequireReview = QStringLiteral("settings.cleanupRequireReview");
/// Integer, bytes, 102400. The smallest file that a duplicate scan looks at.
inline const QString duplicateMinSize = QStringLiteral("settings.duplicateMinSize");
/// Integer, minutes, 5. How long the result of a disk scan is reused.
inline const QString diskCacheLifetimeMinutes = QStringLiteral("settings.diskCacheLifetimeMinutes");
/// Boolean, false, not registered. Whether the Settings sheet shows its advanced section.
inline const QString showAdvanced = QStringLiteral("settings.showAdvanced");
/// Boolean, false, not registered. Whether the welcome tour was seen to its end.
inline const QString onboardingCompleted = QStringLiteral("onboarding.completed");
/// List, absent, not registered. The File Browser's own bookmarks.
inline const QString bookmarks = QStringLiteral("fileBrowser.bookmarks");

/// The five registered values, for `Defaults::registerDefaults` at start.
inline QVariantMap registeredDefaults()
{
    return {
        {confirmBeforeDelete, true},           {showHiddenFilesDefault, false},
        {cleanupRequireReview, true},          {duplicateMinSize, qint64(102400)},
        {diskCacheLifetimeMinutes, qint64(5)},
    };
}

} // namespace settings
