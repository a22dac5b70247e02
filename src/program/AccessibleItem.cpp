#include "program/AccessibleItem.h"

namespace {

/// False for what is scrolled out of all that clips it.
bool isInView(const QQuickItem &item)
{
    QRectF seen = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    for (const QQuickItem *parent = item.parentItem(); parent && !seen.isEmpty();
         parent = parent->parentItem()) {
        if (parent->clip())
            seen &= parent->mapRectToScene(QRectF(0, 0, parent->width(), parent->height()));
    }
    return !seen.isEmpty();
}

/// The toolkit would tell of what is hidden, too, with a state that says so. What has the keyboard is always told of. The
/// lines that part the commands of a menu, and the sign that it scrolls, are for the eye.
bool isTold(const QAccessibleInterface &child)
{
    const auto *item = qobject_cast<QQuickItem *>(child.object());
    if (!item || !item->isVisible() || item->property("isDivider").toBool()
        || item->inherits("QQuickScrollIndicator"))
        return false;
    return item->hasActiveFocus() || (!qFuzzyIsNull(item->opacity()) && isInView(*item));
}

} // namespace

AccessibleItem::AccessibleItem(QObject &object, QAccessibleInterface *inner)
    : object_(&object)
    , item_(qobject_cast<QQuickItem *>(&object))
    , innerId_(QAccessible::uniqueId(inner))
{
}

QAccessibleInterface *AccessibleItem::inner() const
{
    return QAccessible::accessibleInterface(innerId_);
}

bool AccessibleItem::isValid() const
{
    return object_ && inner() && inner()->isValid();
}

QObject *AccessibleItem::object() const
{
    return object_;
}

QWindow *AccessibleItem::window() const
{
    return inner() ? inner()->window() : nullptr;
}

QList<QPair<QAccessibleInterface *, QAccessible::Relation>>
AccessibleItem::relations(QAccessible::Relation match) const
{
    return inner() ? inner()->relations(match) : QAccessibleInterface::relations(match);
}

QAccessibleInterface *AccessibleItem::focusChild() const
{
    return inner() ? inner()->focusChild() : nullptr;
}

QAccessibleInterface *AccessibleItem::childAt(int x, int y) const
{
    QAccessibleInterface *found = inner() ? inner()->childAt(x, y) : nullptr;
    return found && isTold(*found) ? found : nullptr;
}

QAccessibleInterface *AccessibleItem::parent() const
{
    return inner() ? inner()->parent() : nullptr;
}

QList<QAccessibleInterface *> AccessibleItem::children() const
{
    QList<QAccessibleInterface *> shown;
    const int count = inner() ? inner()->childCount() : 0;
    for (int index = 0; index < count; ++index) {
        QAccessibleInterface *child = inner()->child(index);
        if (child && isTold(*child))
            shown.append(child);
    }
    return shown;
}

QAccessibleInterface *AccessibleItem::child(int index) const
{
    return children().value(index);
}

int AccessibleItem::childCount() const
{
    return static_cast<int>(children().size());
}

int AccessibleItem::indexOfChild(const QAccessibleInterface *child) const
{
    return static_cast<int>(children().indexOf(child));
}

QString AccessibleItem::text(QAccessible::Text kind) const
{
    QString text = inner() ? inner()->text(kind) : QString();
    if (!text.isEmpty() || kind != QAccessible::Name || !item_ || !item_->parent())
        return text;
    // A menu's title and a tooltip's text are known to these, not to the item that draws them.
    const QObject &owner = *item_->parent();
    return owner.property(owner.inherits("QQuickToolTip") ? "text" : "title").toString();
}

void AccessibleItem::setText(QAccessible::Text kind, const QString &text)
{
    if (inner())
        inner()->setText(kind, text);
}

QRect AccessibleItem::rect() const
{
    return inner() ? inner()->rect() : QRect();
}

/// The toolkit's controls overwrite a role that is given to them, so that theirs stands in a property `toldRole`.
QAccessible::Role AccessibleItem::role() const
{
    const QVariant toldRole = item_ ? item_->property("toldRole") : QVariant();
    if (toldRole.isValid())
        return static_cast<QAccessible::Role>(toldRole.toInt());
    return inner() ? inner()->role() : QAccessible::NoRole;
}

/// What is expanded is an item's property `isExpanded`; where `isExpandable` stands beside it, that has a say. What the toolkit's
/// controls are told to be checked they overwrite with their own state, so that it stands in a property `toldChecked`.
QAccessible::State AccessibleItem::state() const
{
    QAccessible::State state = inner() ? inner()->state() : QAccessible::State();
    if (!item_)
        return state;
    if (!item_->isEnabled()) {
        state.disabled = true;
        state.focusable = false; // toolkits before 6.8 say that it is
    }
    const QVariant toldChecked = item_->property("toldChecked");
    if (toldChecked.isValid()) {
        state.checkable = true;
        state.checked = toldChecked.toBool();
    }
    const QVariant isExpanded = item_->property("isExpanded");
    const QVariant isExpandable = item_->property("isExpandable");
    if (isExpanded.isValid() && (!isExpandable.isValid() || isExpandable.toBool())) {
        state.expandable = true;
        state.expanded = isExpanded.toBool();
        state.collapsed = !isExpanded.toBool();
    }
    return state;
}

void *AccessibleItem::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface && item_)
        return static_cast<QAccessibleActionInterface *>(this);
    return inner() ? inner()->interface_cast(type) : nullptr;
}

QAccessibleActionInterface *AccessibleItem::innerActions() const
{
    return inner() ? inner()->actionInterface() : nullptr;
}

/// Buttons of every kind, rows and menu titles among them. The toolkit offers to press some of these, and then does nothing.
bool AccessibleItem::canBePressed() const
{
    return item_ && item_->isEnabled() && item_->metaObject()->indexOfSignal("clicked()") >= 0;
}

QStringList AccessibleItem::actionNames() const
{
    QStringList names = innerActions() ? innerActions()->actionNames() : QStringList();
    if (canBePressed() && !names.contains(pressAction()))
        names.prepend(pressAction());
    if (item_ && !item_->isEnabled())
        names.removeIf([](const QString &name) { return name == pressAction() || name == toggleAction(); });
    return names;
}

void AccessibleItem::doAction(const QString &name)
{
    if (name != pressAction() && name != toggleAction()) {
        if (innerActions())
            innerActions()->doAction(name);
        return;
    }
    for (const char *step : {"pressed", "clicked"}) { // as a click goes; the first may take the item away
        if (canBePressed())
            QMetaObject::invokeMethod(item_, step);
    }
}

QStringList AccessibleItem::keyBindingsForAction(const QString &name) const
{
    return innerActions() ? innerActions()->keyBindingsForAction(name) : QStringList();
}
