#pragma once

#include "platform/Platform.h"
#include "shell/ContentView.h"

#include <QObject>

#include <functional>

/// The three ways out. None of them waits for work in progress. Main thread.
///
/// The key ⌘Q and the system's quit request end the process at once; any other request (the window's close button,
/// the menu) first takes the sheets down and ends it half a second later.
class QuitPaths final : public QObject
{
    Q_OBJECT

public:
    /// `exitNow` ends the process and does not return. Watches the keys of the whole application from here on.
    QuitPaths(const Platform &platform, ContentView &content, std::function<void()> exitNow);

    Q_INVOKABLE void requestQuit();

    /// The system asks the program to go: a signal, or the end of the session.
    void handleQuitEvent();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A request that ends the process half a second later.
    void requested();

private:
    const Platform &platform_;
    ContentView &content_;
    const std::function<void()> exitNow_;
};
