#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The Disk Analyzer from within, and folders with names of every kind. The tests' QML knows it as `Disk`.
class DiskUnderTest final : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Disk)
    QML_SINGLETON

public:
    DiskUnderTest(Composition &composition, Surroundings &surroundings);

    Q_INVOKABLE bool isScanning() const;
    /// Begins a scan of the home folder that no click on the screen has asked for, as another screen does.
    Q_INVOKABLE void beginScan();
    /// The runs of `du` alive.
    Q_INVOKABLE int probeCount() const;

private:
    Composition &composition_;
};
