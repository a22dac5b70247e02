#include "program/EditCommands.h"

#include <QGuiApplication>
#include <QQuickItem>

namespace {

/// What edits text in Qt Quick, whatever control is made of it.
bool isTextField(const QObject *object)
{
    return object && (object->inherits("QQuickTextInput") || object->inherits("QQuickTextEdit"));
}

bool isMenu(const QObject *object)
{
    return object && (object->inherits("QQuickMenuItem") || object->inherits("QQuickPopupItem"));
}

/// A menu takes the focus while it is open and gives it back; the field stays the one that is meant. The focus may be
/// the list's inside it, once a line has had it.
bool isPartOfMenu(const QObject *object)
{
    const auto *item = qobject_cast<const QQuickItem *>(object);
    return isMenu(object) || (item && isMenu(item->parentItem()));
}

} // namespace

EditCommands::EditCommands(MenuBarView &menuBar)
    : menuBar_(menuBar)
{
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &EditCommands::follow);
    connect(&menuBar_, &MenuBarView::textCommandChosen, this, &EditCommands::perform);
}

void EditCommands::follow(QObject *focus)
{
    if (isPartOfMenu(focus))
        return;
    field_ = isTextField(focus) ? focus : nullptr;
    menuBar_.setHasText(field_ != nullptr);
}

void EditCommands::perform(const QString &command)
{
    if (field_)
        QMetaObject::invokeMethod(field_, command.toLatin1().constData());
}
