#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>

/// The Disk Analyzer from within, and folders with names of every kind. The tests' QML knows it as `Disk`.
class DiskUnderTest final : public QObject
{
    Q_OBJECT

public:
    DiskUnderTest(Composition &composition, Surroundings &surroundings);

    Q_INVOKABLE bool isScanning() const;
    /// The runs of `du` alive.
    Q_INVOKABLE int probeCount() const;

private:
    Composition &composition_;
};
