#pragma once

#include <QString>

/// What the program's own panel asks of the disk about single paths. Each call may block for as long as the disk does. Any
/// thread.
namespace panelquestions {

/// What stands at a path that a file shall be saved under.
enum class Found {
    nothing,
    noFolder, ///< nor is there the folder that it would lie in
    folder,
    file, ///< or any other thing
};

Found lookAt(const QString &path);

/// Whether that is the name of one folder in another. Asks no disk.
bool canNameFolder(const QString &name);

/// Makes a folder. Gives what the system says against it; empty once it is made.
QString make(const QString &path);

} // namespace panelquestions
