#pragma once

#include <QString>

/// The names of the program's notifications. None carries an object but `navigate`.
namespace notifications {

inline const QString openSettings = QStringLiteral("Quillmere.openSettings");
inline const QString openShortcuts = QStringLiteral("Quillmere.openShortcuts");
inline const QString navigate = QStringLiteral("Quillmere.navigate"); ///< object: the screen's key, a text
inline const QString rescan = QStringLiteral("Quillmere.rescan");
inline const QString newFolder = QStringLiteral("Quillmere.newFolder");
inline const QString openHistory = QStringLiteral("Quillmere.openHistory");
inline const QString openOnboarding = QStringLiteral("Quillmere.openOnboarding");
inline const QString reportBug = QStringLiteral("Quillmere.reportBug");
inline const QString requestFeature = QStringLiteral("Quillmere.requestFeature");

} // namespace notifications
