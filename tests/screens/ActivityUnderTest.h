#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QVariantMap>

/// The activity log from within, and the access to protected folders. The tests' QML knows it as `Activity`.
class ActivityUnderTest final : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Activity)
    QML_SINGLETON

public:
    ActivityUnderTest(Composition &composition, Surroundings &surroundings);

    /// An entry of the activity log: kind, title, and where they are given paths, bytes, detail, isFailed.
    Q_INVOKABLE void record(const QVariantMap &entry);
    Q_INVOKABLE void emptyHistory() { composition_.history().clear(); }
    /// Whether the folders can be listed that only a program with full access can.
    Q_INVOKABLE void setFullAccess(bool isFull) const;

private:
    Composition &composition_;
    const Surroundings &surroundings_;
};
