#include "program/AccessibleItems.h"

#include "program/AccessibleItem.h"

#include <QQuickWindow>

namespace {

/// The toolkit asks for each class of an object, from its own one upwards; the answer is given for the first, so that none of
/// the toolkit's factories is asked ahead of this one. Main thread.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    static bool isAsking = false; // the toolkit for its own interface
    if (isAsking || !object || className != QLatin1String(object->metaObject()->className()))
        return nullptr;
    if (!qobject_cast<QQuickItem *>(object) && !qobject_cast<QQuickWindow *>(object))
        return nullptr;
    isAsking = true;
    QAccessibleInterface *inner = QAccessible::queryAccessibleInterface(object);
    isAsking = false;
    return inner ? new AccessibleItem(*object, inner) : nullptr;
}

} // namespace

void accessibleitems::install()
{
    QAccessible::installFactory(makeInterface);
}
