#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
#include <QPointer>
#include <QQuickItem>

/// The toolkit's interface to an item or to a window, with what it leaves out. The toolkit's cache owns both.
class AccessibleItem final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// `inner` is the toolkit's interface to that object.
    AccessibleItem(QObject &object, QAccessibleInterface *inner);

    bool isValid() const override;
    QObject *object() const override;
    QWindow *window() const override;
    QList<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

private:
    QAccessibleInterface *inner() const;
    QAccessibleActionInterface *innerActions() const;
    QList<QAccessibleInterface *> children() const;
    bool canBePressed() const;

    QPointer<QObject> object_;
    QPointer<QQuickItem> item_; // null for a window
    QAccessible::Id innerId_;   // the cache may let go of that interface ahead of this one
};
