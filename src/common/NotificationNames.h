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

/// The system's word that the program has come to the front; posted once a time, not at the start.
inline const QString becameActive = QStringLiteral("Platform.becameActive");

} // namespace notifications
