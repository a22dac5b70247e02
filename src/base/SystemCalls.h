#pragma once

#include "base/Files.h"

#include <sys/stat.h>

/// The few system calls that differ between systems. Each system has its own source file for them, which the
/// build picks; base/ and the adapters beside it alone call them.
namespace systemcalls {

/// Attributes of the entry itself at `path`, relative to the open folder `directory` (or AT_FDCWD). None, with
/// errno set, when they can't be read.
std::optional<files::Attributes> entryAttributes(int directory, const char *path);

/// The part of these attributes that a measure needs, by the cheapest call that tells it.
std::optional<files::Extent> entryExtent(int directory, const char *path);

/// The same with a link followed. None for one that leads nowhere.
std::optional<files::Extent> followedExtent(int directory, const char *path);

/// True for a folder at which something is mounted, be it a part of the volume that it is on: one device may stand in many
/// places. `path` is the folder's, relative to the open folder `directory`; empty for that folder itself. False where the
/// system can't tell.
bool isMountPoint(int directory, const char *path);

/// When the content was last changed; the field's name differs between systems.
Date modificationDate(const struct stat &status);

/// Tells that these bytes of an open file will be read soon.
void expectReading(int descriptor, qint64 offset, qint64 count);

/// Renames and never replaces. 0, or the error number: EEXIST when the target's name is taken, EINVAL where the file
/// system knows no exclusive rename.
int renameWithoutReplacing(const char *from, const char *to);

/// A pipe of which a child process inherits no end by chance: the end to read from, then the one to write to.
/// -1, with errno set, when there is none to be had.
int openPipe(int (&ends)[2]);

} // namespace systemcalls
