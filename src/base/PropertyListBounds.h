#pragma once

#include <QByteArrayView>

/// Whether a property list may be handed to the library that reads it. That one takes whatever a list asks for: it calls
/// itself for each list inside a list, and makes an object anew each time that something refers to it. So a file of some
/// hundred bytes could end the process or fill the memory.
namespace propertylistbounds {

inline constexpr int deepest = 64;               ///< lists inside lists; real ones have some ten
inline constexpr qsizetype mostObjects = 200000; ///< one for each reference to it
inline constexpr qint64 mostBytes = 16 << 20;    ///< of texts and data, likewise

/// For the binary form. False for one that is damaged too.
bool areKeptByBinary(QByteArrayView content);

/// For the XML form. False also for what no writer of such lists puts inside them: attributes, declarations and
/// instructions, behind which elements could hide.
bool areKeptByXml(QByteArrayView content);

} // namespace propertylistbounds
