#pragma once

#include "support/TempHome.h"

/// The real `du` behind a gate: while the gate is shut, each run waits at it before it measures.
class GatedDu
{
public:
    /// `home` is where the gate stands, and outlives it. The gate is open.
    explicit GatedDu(const TempHome &home);
    ~GatedDu();
    GatedDu(const GatedDu &) = delete;
    GatedDu &operator=(const GatedDu &) = delete;

    /// The program to run in the place of `du`.
    const QString &program() const { return program_; }

    void shut();
    void open();

private:
    const TempHome &home_;
    QString program_;
    int pipe_ = -1; // held at both ends while the gate is shut, so that nobody's opening it waits
};
