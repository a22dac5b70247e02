#pragma once

#include "platform/KeyStyle.h"

#include <QString>

/// The texts of the program carry the Mac's key signs (⌘ ⇧ ⌥ ⌃ ⌫). They are shown as they stand on a Mac; other
/// keyboards have other words for the same keys, and Control in the place of Command.
namespace keysigns {

/// `text` with every key sign in it in the given style: "Open Search (⌘K)" becomes "Open Search (Ctrl+K)".
QString text(const QString &text, KeyStyle style);

/// A key equivalent as Qt writes it ("Ctrl+Shift+Y", where Ctrl is Command on a Mac). Empty for an empty one.
QString sequence(const QString &signs);

} // namespace keysigns
