#pragma once

#include "program/Composition.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QQuickItem;

/// Takes the program's window to the Duplicate Finder's list and through it, and prints what that costs in CPU time of the whole
/// process, painting included: "row SECONDS" for each row that a held Down key goes on, "notch SECONDS" for each notch of
/// the wheel, "idle SECONDS" for each second in which nothing happens. Prints "ready" at its end. Main thread.
class RowsRun final : public QObject
{
    Q_OBJECT

public:
    /// The Duplicate Finder's list is there when it has so many rows.
    RowsRun(Composition &composition, int rows);

private:
    void lookForRows();
    void framePainted();
    void pressDown();
    void turnWheel();
    void goOn();
    void measured(const char *name);

    enum class Stage { waiting, warming, pressing, turning, idling };

    Composition &composition_;
    const int rows_;
    QQuickItem *item_ = nullptr;
    Stage stage_ = Stage::waiting;
    int done_ = 0; // keys or notches of the stage
    double begin_ = 0;
    QElapsedTimer sinceStart_;
    QTimer look_;
    QTimer rest_;
};
