#include "FirstFramePlugin.h"

#include <QEvent>
#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>

#include <unistd.h>

namespace {

/// Waits for the first window to appear, then for its first frame.
class FirstFrameWatcher final : public QObject
{
public:
    explicit FirstFrameWatcher(bool exits)
        : exits_(exits)
    {
        qGuiApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *window = event->type() == QEvent::Show ? qobject_cast<QQuickWindow *>(watched) : nullptr;
        if (window) {
            qGuiApp->removeEventFilter(this);
            connect(
                window, &QQuickWindow::frameSwapped, this, [this] { tell(); }, Qt::SingleShotConnection);
        }
        return false;
    }

private:
    void tell() const
    {
        puts("ready");
        fflush(stdout);
        if (exits_)
            _exit(EXIT_SUCCESS);
    }

    const bool exits_;
};

} // namespace

QObject *FirstFramePlugin::create(const QString &, const QString &mode)
{
    return new FirstFrameWatcher(mode == u"exit");
}
