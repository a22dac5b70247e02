#pragma once

#include <QString>

/// A failure of an operation that changes the disk. Thrown, and caught by the direct caller, which counts it,
/// collects its text or shows it; none crosses a slot, a queue's block or QML.
struct Error
{
    QString domain;      ///< "Quillmere.{Name}", or the platform's.
    int code = 0;        ///< Meaning depends on the domain.
    QString description; ///< For the user, as it stands.
};

namespace errors {

/// The domain of errors that the operating system reports; their code is errno.
inline constexpr QLatin1StringView systemDomain{"POSIX"};

/// The error of a failed system call, with the system's own words for `code`.
Error fromErrno(int code);

} // namespace errors
