#pragma once

#include <QByteArray>
#include <QString>

namespace files {

/// Replaces the content of a file, or makes it, so that a reader sees the old content or the new one and never a part:
/// a temporary file beside it is written, synced and renamed over it. A new file is its user's alone (0600), a replaced
/// one hands its permissions on, but that its user may always read and write it. A link at `path` is replaced itself;
/// what it leads to stays untouched. Throws Error (the system's), and leaves nothing behind then. A writer that is killed
/// may leave its temporary file, which the next one takes away. Never waits for another writer.
///
/// Living writers are told from killed ones by a lock on the temporary file. Where that fails (a file system without locks,
/// a temporary file that another user's process writes), a writer may lose its file to a second one; it then throws
/// EBUSY. What remains is the instant between that look and the rename: a loss within it brings the second one's unfinished
/// content into place until it has finished too, and lets the second one fail.
void writeAtomically(const QString &path, const QByteArray &content);

} // namespace files
