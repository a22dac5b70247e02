#pragma once

#include "platform/SystemInfo.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

/// Readings of the texts in which the kernel tells of itself. Pure, and never trusting: anything may stand in
/// a device's name or a volume's label.
namespace systemtexts {

/// One line of a mount table: what is mounted, and the number of its device.
struct Mount
{
    QByteArray source; ///< "/dev/vda2", or a name of the file system's own choice
    QByteArray device; ///< "254:2"; "0:27" for a file system without a device of its own
};

/// What is mounted on "/" by /proc/self/mountinfo: the last line for it, which lies over the earlier ones.
std::optional<Mount> rootMount(QByteArrayView mountInfo);

/// The label that a link in /dev/disk/by-label stands for: there "\x20" is a space.
QString decodedLabel(const QString &linkName);

/// The version at the start of a kernel's release, "6.1.0" of "6.1.0-18-amd64". What is missing is 0.
SystemInfo::Version kernelVersion(QByteArrayView release);

} // namespace systemtexts
