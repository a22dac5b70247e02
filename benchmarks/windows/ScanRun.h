#pragma once

#include "program/Composition.h"
#include "TimedMainQueue.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Takes the program's window through two scans of the home folder and prints a line for each thing measured:
/// "turn SECONDS" for the longest turn of our blocks while the first scan ran, "cancel SECONDS" from the cancel of the
/// second one to the frame that shows it, "childless SECONDS" until no child process is left. With `scansOnly` it stops
/// after the first. Prints "ready" at its end and then leaves the window as it is. Main thread.
class ScanRun final : public QObject
{
    Q_OBJECT

public:
    ScanRun(Composition &composition, TimedMainQueue &queue, bool scansOnly);

private:
    void begin();
    void scanningChanged();
    void framePainted();
    void cancel();
    void lookForChildren();
    static void print(const char *name, double seconds);
    static void finish();

    enum class Stage { waiting, scanning, scanned, scanningAgain, cancelled, unwinding };

    Composition &composition_;
    TimedMainQueue &queue_;
    const bool scansOnly_;
    Stage stage_ = Stage::waiting;
    QElapsedTimer sinceCancel_;
    qint64 lastSeenChild_ = 0; // nanoseconds after the cancel
    QTimer look_;
};
