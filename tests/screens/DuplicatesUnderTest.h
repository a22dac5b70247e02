#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// What the Duplicate Finder works on. The tests' QML knows it as `Duplicates`.
class DuplicatesUnderTest final : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Duplicates)
    QML_SINGLETON

public:
    DuplicatesUnderTest(Composition &composition, Surroundings &surroundings);

    /// A folder of equal files that no test has seen, in the place of the one before.
    Q_INVOKABLE QString makeTwins();
    /// A folder of files by two ways (equalfiles::fillWays).
    Q_INVOKABLE QString makeWays();
    /// A folder of so many groups of three equal files, one of them older.
    Q_INVOKABLE QString makeTriples(int triples) const;
    /// A folder of so many pairs of equal files.
    Q_INVOKABLE QString makePairs(int pairs) const;
    /// Lets the Duplicate Finder look at these folders, and at files from `minSize` bytes on.
    Q_INVOKABLE void scanOnly(const QStringList &folders, int minSize);

private:
    Composition &composition_;
    const TempHome &temp_;
    int twins_ = 0;
    int ways_ = 0;
};
