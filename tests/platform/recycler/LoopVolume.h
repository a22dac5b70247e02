#pragma once

#include "support/TempHome.h"

#include <QString>

/// A small disk of its own, an ext4 in a file, mounted on a folder for as long as the object lives. Takes an
/// administrator and a free loop device.
class LoopVolume
{
public:
    /// Mounts `megabytes` on the existing folder `mountPoint`.
    LoopVolume(const QString &mountPoint, int megabytes);
    ~LoopVolume();
    LoopVolume(const LoopVolume &) = delete;
    LoopVolume &operator=(const LoopVolume &) = delete;

    /// Why there is no volume; empty when there is one.
    const QByteArray &whyNot() const { return whyNot_; }

    /// Takes all room that is left on the volume with a file of that name.
    void fill(const QString &name) const;

private:
    TempHome temp_; // where the file of the disk is
    QString mountPoint_;
    QByteArray whyNot_;
};
