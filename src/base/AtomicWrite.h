#pragma once

#include <QByteArray>
#include <QString>

namespace files {

/// Replaces the content of a file, or makes it, so that a reader sees the old content or the new one and never a part:
/// a temporary file beside it is written, synced and renamed over it. A new file is its user's alone (0600), a replaced
/// one hands its permissions on, but that its user may always read and write it. A link at `path` is replaced itself;
/// what it leads to stays untouched. Throws Error (the system's), and leaves nothing behind then. A writer that is killed
/// may leave its temporary file, which the next one takes away. Never waits for another writer.
void writeAtomically(const QString &path, const QByteArray &content);

} // namespace files
