#include "program/QuitPaths.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

constexpr double exitDelay = 0.5; // seconds

/// Command with Q, whatever other modifiers or Caps Lock make of it.
bool isQuitKey(const QKeyEvent &key)
{
    return key.modifiers().testFlag(Qt::ControlModifier)
           && (key.key() == Qt::Key_Q || key.text().toLower() == QStringLiteral("q"));
}

} // namespace

QuitPaths::QuitPaths(const Platform &platform, ContentView &content, std::function<void()> exitNow)
    : platform_(platform)
    , content_(content)
    , exitNow_(std::move(exitNow))
{
    QCoreApplication::instance()->installEventFilter(this);
}

void QuitPaths::requestQuit()
{
    content_.dismissSheets();
    emit requested();
    platform_.mainQueue.postAfter(exitDelay, exitNow_);
}

void QuitPaths::handleQuitEvent()
{
    exitNow_();
}

bool QuitPaths::eventFilter(QObject *watched, QEvent *event)
{
    // A key that might be a shortcut comes as an override first, to whatever has the focus; both are key-downs.
    const bool isKeyDown = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKeyDown && isQuitKey(*static_cast<QKeyEvent *>(event)))
        exitNow_();
    return QObject::eventFilter(watched, event);
}
