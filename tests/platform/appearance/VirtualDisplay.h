#pragma once

#include "support/TempHome.h"

#include <QColor>
#include <QProcess>

/// A display of a test's own, which nobody sees but the test.
class VirtualDisplay
{
public:
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay &) = delete;
    VirtualDisplay &operator=(const VirtualDisplay &) = delete;

    /// As programs are told in their environment (":7"); empty when the display didn't start.
    const QString &name() const { return name_; }

    /// How much of it has that colour now, from 0 to 1.
    double shareOf(const QColor &color) const;

private:
    TempHome folder_;
    QProcess server_;
    QString name_;
};
