#include "controls/InputWatch.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace {

bool isAlt(const QEvent *event)
{
    return static_cast<const QKeyEvent *>(event)->key() == Qt::Key_Alt;
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
        emit acted();
        break;
    case QEvent::KeyRelease:
        if (isAlt(event))
            setAltDown(false);
        break;
    case QEvent::MouseButtonPress:
        isButtonDown_ = true;
        emit acted();
        break;
    case QEvent::MouseButtonRelease:
        isButtonDown_ = false;
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
