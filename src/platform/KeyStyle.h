#pragma once

/// How this system's people write their keys.
enum class KeyStyle {
    signs, ///< "⇧⌘Y"
    words, ///< "Ctrl+Shift+Y"
};
