#include "controls/InputWatch.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace {

bool isAlt(const QEvent *event)
{
    return static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Alt;
}

bool isByKey(const QEvent *focusIn, bool wasKeyLast)
{
    switch (static_cast<const QFocusEvent *>(focusIn)->reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
        return true;
    case Qt::OtherFocusReason:
        return wasKeyLast;
    default:
        return false;
    }
}

} // namespace

InputWatch::InputWatch(QObject *parent)
    : QObject(parent)
{
    qGuiApp->installEventFilter(this);
    // The release of a key may go to another program.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this] { setAltDown(false); });
}

bool InputWatch::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // all there is of a key that is a shortcut
    case QEvent::KeyPress:
        if (isAlt(event))
            setAltDown(true);
        wasKeyLast_ = true;
        emit acted();
        break;
    case QEvent::KeyRelease:
        if (isAlt(event))
            setAltDown(false);
        break;
    case QEvent::MouseButtonPress:
        isButtonDown_ = true;
        wasKeyLast_ = false;
        emit acted();
        break;
    case QEvent::MouseButtonRelease:
        isButtonDown_ = false;
        break;
    case QEvent::FocusIn:
        setFocusByKey(isByKey(event, wasKeyLast_));
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void InputWatch::setAltDown(bool isDown)
{
    if (isAltDown_ == isDown)
        return;
    isAltDown_ = isDown;
    emit isAltDownChanged();
}

void InputWatch::setFocusByKey(bool isByKey)
{
    if (isFocusByKey_ == isByKey)
        return;
    isFocusByKey_ = isByKey;
    emit isFocusByKeyChanged();
}
