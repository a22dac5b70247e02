#pragma once

/// What assistive technology is told of the items of the window, where the toolkit leaves something out: items that are not
/// on view are not told of, what is disabled or expanded says so, and every button, row and menu title can be pressed. Names,
/// roles and descriptions are those of the QML. Costs nothing as long as nobody asks.
namespace accessibleitems {

/// From now on, for this process. An application object destroyed beforehand would have taken the toolkit's own part away.
void install();

} // namespace accessibleitems
