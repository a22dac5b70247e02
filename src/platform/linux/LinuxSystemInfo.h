#pragma once

#include "platform/SystemInfo.h"

/// The machine by its kernel: the file system on "/", the firmware's product name, uname; the locale by ICU.
class LinuxSystemInfo final : public SystemInfo
{
public:
    /// Where the kernel tells what we ask. Tests put files of their own there.
    struct Sources
    {
        QString mountInfo = QStringLiteral("/proc/self/mountinfo");
        QString labels = QStringLiteral("/dev/disk/by-label");
        QString devices = QStringLiteral("/dev");
        QString devicesByNumber = QStringLiteral("/sys/dev/block");
        QString productName = QStringLiteral("/sys/class/dmi/id/product_name");
    };

    LinuxSystemInfo();
    explicit LinuxSystemInfo(Sources sources);

    std::optional<Volume> rootVolume() const override;
    std::optional<QString> hardwareModel() const override;
    QString localeIdentifier() const override;
    Version systemVersion() const override;

    /// The label of the volume on "/", else its device's name ("vda2"), else the source of its mount ("tank/ROOT",
    /// "overlay"), else "/".
    QString rootVolumeName() const;

private:
    std::optional<QString> deviceName(const QString &source, const QString &number) const;
    std::optional<QString> labelOf(const QString &device) const;

    const Sources sources_;
};
