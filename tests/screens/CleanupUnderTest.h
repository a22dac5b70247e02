#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// What Smart Cleanup finds in the home folder. The tests' QML knows it as `Cleanup`.
class CleanupUnderTest final : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Cleanup)
    QML_SINGLETON

public:
    CleanupUnderTest(Composition &composition, Surroundings &surroundings);

    /// Something for five categories, in the place of what was there: caches of a browser (900 KB), logs of three sizes
    /// (600 KB in all), two downloads of long ago (400 KB) beside a new one, something in the Trash (250 KB), empty folders.
    Q_INVOKABLE void fill() const;
    /// Leaves nothing in any place that is looked at, though the places stay.
    Q_INVOKABLE void empty() const;
    /// So many more small logs.
    Q_INVOKABLE void makeLogs(int count) const;
    /// The names in a folder of the home folder, in their order.
    Q_INVOKABLE QString names(const QString &relative) const;
    Q_INVOKABLE bool isCleaning() const;

private:
    void file(const QString &relative, int kilobytes) const;

    Composition &composition_;
    const TempHome &temp_;
};
