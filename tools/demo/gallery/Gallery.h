#pragma once

#include <QQmlApplicationEngine>

class GalleryPoses;
class QQuickWindow;

/// Every control of the program in each of its states, in a window of its own. Its sections are in the `Gallery…Sections.qml`
/// beside it. One a process; main thread.
class Gallery
{
public:
    /// Throws where its QML can't be loaded.
    explicit Gallery(bool isDark);

    QQuickWindow &window() { return *window_; }
    GalleryPoses &poses();

    void setDark(bool isDark);

    /// Makes the window as high as all sections.
    void showWhole();

private:
    QQmlApplicationEngine engine_;
    QQuickWindow *window_ = nullptr;
};
