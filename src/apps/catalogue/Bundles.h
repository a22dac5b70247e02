#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What a bundle tells of itself.
struct Bundle
{
    QString name;                   ///< the short one first, and the file's without its extension in the end
    std::optional<QString> version; ///< the short one, as people know it
    std::optional<QString> identifier; ///< in the case in which it stands there
    std::optional<QString> picture;    ///< absolute path inside the bundle, where something need not be

    bool operator==(const Bundle &) const = default;
};

/// Bundles of applications: folders whose name ends in ".app". Everything blocks for as long as the disk does; any thread.
namespace bundles {

/// Which links to a folder a search looks through.
enum class Links {
    insideRoot, ///< for whoever offers what is found for removal
    all         ///< for whoever spares what belongs to it: there, an application too many does no harm
};

/// The bundles in a folder and in the folders directly inside it, no deeper, in the order in which they are listed. None
/// inside another one and none in a hidden folder. What cannot be listed holds none.
QStringList find(const QString &root, Links links);

/// None where no folder is there. A bundle without a sound property list tells its name alone.
std::optional<Bundle> read(const QString &path);

} // namespace bundles
