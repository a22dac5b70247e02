#include "RowsRun.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QWheelEvent>

#include <cstdio>
#include <ctime>

namespace {

using namespace std::chrono_literals;

constexpr int steps = 100;
constexpr auto restTime = 60ms; // without a frame
constexpr auto idleTime = 2s;

double processTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

QQuickItem *itemNamed(QQuickItem *root, const QString &name)
{
    if (root->objectName() == name && root->isVisible())
        return root;
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = itemNamed(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

RowsRun::RowsRun(Composition &composition, int rows)
    : composition_(composition)
    , rows_(rows)
{
    sinceStart_.start();
    connect(composition.window(), &QQuickWindow::frameSwapped, this, &RowsRun::framePainted);
    connect(&look_, &QTimer::timeout, this, &RowsRun::lookForRows);
    connect(&rest_, &QTimer::timeout, this, &RowsRun::goOn);
    rest_.setInterval(restTime);
    rest_.setSingleShot(true);
    QTimer::singleShot(500ms, this, [this] { // the window is up and at rest
        composition_.content().setSelectedItem(SidebarItem::duplicates);
        look_.start(100ms);
    });
}

void RowsRun::lookForRows()
{
    item_ = itemNamed(composition_.window()->contentItem(), QStringLiteral("duplicateList"));
    if (!item_ || item_->property("count").toInt() < rows_)
        return;
    look_.stop();
    item_->forceActiveFocus();
    QTimer::singleShot(1s, this, [this] { // what the end of the scan paints is over
        stage_ = Stage::warming;
        pressDown();
    });
}

void RowsRun::pressDown()
{
    ++done_;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), done_ > 1);
    QCoreApplication::sendEvent(composition_.window(), &press);
}

void RowsRun::turnWheel()
{
    ++done_;
    const QPointF place = item_->mapToScene({item_->width() / 2, item_->height() / 2});
    QWheelEvent notch(place, composition_.window()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    notch.setTimestamp(static_cast<quint64>(sinceStart_.elapsed()));
    QCoreApplication::sendEvent(composition_.window(), &notch);
}

/// Each key is followed by a frame, so that no two fall into one; a notch by as many as it takes the list to come to rest.
void RowsRun::framePainted()
{
    if (stage_ == Stage::warming || stage_ == Stage::pressing)
        QTimer::singleShot(0, this, &RowsRun::goOn);
    else if (stage_ == Stage::turning)
        rest_.start();
}

void RowsRun::goOn()
{
    if (done_ < steps)
        return stage_ == Stage::turning ? turnWheel() : pressDown();
    if (stage_ == Stage::pressing)
        measured("row");
    if (stage_ == Stage::turning)
        measured("notch");
    done_ = 0;
    begin_ = processTime();
    if (stage_ == Stage::warming) {
        stage_ = Stage::pressing;
        pressDown();
    } else if (stage_ == Stage::pressing) {
        stage_ = Stage::turning;
        turnWheel();
    } else {
        stage_ = Stage::idling;
        QTimer::singleShot(idleTime, this, [this] {
            done_ = std::chrono::seconds(idleTime).count();
            measured("idle");
            puts("ready");
            fflush(stdout);
        });
    }
}

void RowsRun::measured(const char *name)
{
    printf("%s %.6f\n", name, (processTime() - begin_) / done_);
}
