#pragma once

#include <QString>
#include <QStringList>

/// Finding programs, and addresses that may be handed to one.
namespace programs {

/// The absolute path of the first program of this name in `searchPath`; empty when there is none. Folders that
/// are not absolute are passed over, so that nothing from the current folder is ever run. Looks at the disk.
QString find(const QString &name, const QStringList &searchPath);

/// Starts the first of `names` that is found in `searchPath` and can be started. It lives on without us. False
/// when there is none. Looks at the disk.
bool launchFirst(const QStringList &names, const QStringList &searchPath, const QStringList &arguments,
                 const QString &workingDirectory = {});

/// True for text that begins with a scheme ("mailto:…"), and so can't be taken for an option.
bool isAddress(const QByteArray &text);

} // namespace programs
