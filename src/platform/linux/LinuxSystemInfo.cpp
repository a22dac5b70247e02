#include "platform/linux/LinuxSystemInfo.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "platform/linux/SystemTexts.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unicode/locid.h>

namespace {

constexpr qint64 mostOfMountTable = 4 << 20; // bytes; a host of many containers has some thousands of lines
constexpr qint64 mostOfProductName = 4096;   // bytes, a page: the kernel gives no more
const QString rootPath = QStringLiteral("/");

/// `path` with all links resolved; empty when it leads nowhere. Only for the kernel's own folders, which never
/// make us wait.
QString resolvedLink(const QString &path)
{
    char *target = realpath(paths::toBytes(path).constData(), nullptr);
    QString text = target ? paths::fromBytes(target) : QString();
    std::free(target); // NOLINT(cppcoreguidelines-no-malloc): realpath's
    return text;
}

/// `blocks` of `blockSize` bytes, held within 64 bits: some network and FUSE file systems report nonsense.
qint64 bytesOf(fsblkcnt_t blocks, unsigned long blockSize)
{
    constexpr quint64 most = std::numeric_limits<qint64>::max();
    return sums::saturatedProduct(static_cast<qint64>(std::min<quint64>(blocks, most)),
                                  static_cast<qint64>(std::min<quint64>(blockSize, most)));
}

} // namespace

LinuxSystemInfo::LinuxSystemInfo()
    : LinuxSystemInfo(Sources())
{
}

LinuxSystemInfo::LinuxSystemInfo(Sources sources)
    : sources_(std::move(sources))
{
}

std::optional<SystemInfo::Volume> LinuxSystemInfo::rootVolume() const
{
    struct statvfs status = {};
    if (statvfs("/", &status) == -1)
        return std::nullopt;
    Volume volume;
    volume.total = bytesOf(status.f_blocks, status.f_frsize);
    volume.available = bytesOf(status.f_bavail, status.f_frsize); // without what is kept for root
    volume.name = rootVolumeName();
    return volume;
}

QString LinuxSystemInfo::rootVolumeName() const
{
    const auto table = files::readPrefix(sources_.mountInfo, mostOfMountTable);
    const auto mount = systemtexts::rootMount(table.value_or(QByteArray()));
    if (!mount)
        return rootPath;
    const QString source = paths::fromBytes(mount->source);
    if (const auto name = deviceName(source, paths::fromBytes(mount->device)))
        return *name;
    // A file system without a device is told by its source: a dataset's name, a server's path, "overlay".
    const QString name = paths::display(source).trimmed();
    return name.isEmpty() || name == QStringLiteral("none") ? rootPath : name;
}

std::optional<QString> LinuxSystemInfo::deviceName(const QString &source, const QString &number) const
{
    // Only what lies among the devices is one; a network file system's source is a path on another machine, and
    // to look at it could take for ever.
    if (!paths::isAtOrBelow(source, sources_.devices) || source.contains(u"/../"))
        return std::nullopt;
    QString device = resolvedLink(source);
    QString name = paths::lastComponent(source);
    if (device.isEmpty()) {
        // "/dev/root", which an early boot leaves in the table, does not exist: the number tells the device.
        const QString byNumber = resolvedLink(paths::join(sources_.devicesByNumber, number));
        if (byNumber.isEmpty())
            return std::nullopt;
        name = paths::lastComponent(byNumber);
        device = resolvedLink(paths::join(sources_.devices, name));
    }
    const auto label = labelOf(device);
    return label ? label : paths::display(name);
}

std::optional<QString> LinuxSystemInfo::labelOf(const QString &device) const
{
    const auto links = files::list(sources_.labels);
    if (!links || device.isEmpty())
        return std::nullopt;
    for (const QString &link : *links) {
        const QString label = systemtexts::decodedLabel(link).trimmed();
        if (!label.isEmpty() && resolvedLink(paths::join(sources_.labels, link)) == device)
            return label;
    }
    return std::nullopt;
}

std::optional<QString> LinuxSystemInfo::hardwareModel() const
{
    const auto content = files::readPrefix(sources_.productName, mostOfProductName);
    const QString model = paths::display(paths::fromBytes(content.value_or(QByteArray()))).trimmed();
    return model.isEmpty() ? std::nullopt : std::optional(model);
}

QString LinuxSystemInfo::localeIdentifier() const
{
    return QString::fromLatin1(icu::Locale::getDefault().getBaseName()); // without keywords such as "@euro"
}

SystemInfo::Version LinuxSystemInfo::systemVersion() const
{
    struct utsname names = {};
    return uname(&names) == -1 ? Version() : systemtexts::kernelVersion(names.release);
}
