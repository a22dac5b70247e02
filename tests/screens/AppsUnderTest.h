#pragma once

#include "program/Composition.h"
#include "screens/Surroundings.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// What the App Manager finds in the folder for applications and in the library. The tests' QML knows it as `Apps`.
class AppsUnderTest final : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Apps)
    QML_SINGLETON

public:
    AppsUnderTest(Composition &composition, Surroundings &surroundings);

    /// In the place of what was there: Alpha (with a cache, preferences and support files), Beta (with a picture), Gamma, from
    /// the largest to the smallest; what a tool named Tool has left in three places, and what another Beta has.
    Q_INVOKABLE void fill() const;
    /// So many more small applications.
    Q_INVOKABLE void makeApps(int count) const;
    Q_INVOKABLE void removeGhosts() const;
    /// What a file holds, decoded.
    Q_INVOKABLE QString content(const QString &path) const;
    Q_INVOKABLE bool isBusy() const;
    /// Lets the screen begin on its second tab.
    Q_INVOKABLE void openOnGhostsTab() const { composition_.apps().setOpenOnGhostsTab(true); }
    /// Every list as after the program's start.
    Q_INVOKABLE void rescanAll() const;

private:
    void bundle(const QString &name, const QString &identifier, int kilobytes,
                const QString &picture = {}) const;
    void file(const QString &relative, int kilobytes) const;

    Composition &composition_;
    const TempHome &temp_;
};
