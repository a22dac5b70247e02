#pragma once

#include <QVariantMap>

class QObject;

/// What assistive technology is told of the things of a window. It is asked as a screen reader asks, since the toolkit tells
/// other than what the QML says of some.
namespace spoken {

/// Of that item or popup: role, name, description, and states (those of them that make a difference to whoever can't see it,
/// by the toolkit's names, in the order of the alphabet, in one text). Empty where nothing is told.
QVariantMap of(QObject *object);

} // namespace spoken
