#pragma once

#include <QStringList>

class QQuickWindow;

/// How well the texts of a window can be told from what is really behind them: measured in its picture, not told from the
/// colours that the QML means to lay under them.
namespace contrast {

constexpr double ofTexts = 4.5;
constexpr double ofFaint = 3; // symbols, placeholders, and what is disabled

struct Measure
{
    qsizetype texts = 0;   ///< those on view, symbols among them; in front of the backdrop where there is one
    QStringList offenders; ///< a line for each that falls short: what it reads, its ratio, where it stands
};

/// Measures each text on view by the pixel of its ink that has the least contrast. The window is painted twice, as it is and
/// with all its texts transparent; where the pictures differ there is ink, and the second one holds what is behind it.
Measure measure(QQuickWindow &window);

} // namespace contrast
