#include "platform/linux/ProgramSearch.h"

#include "base/ChildProcess.h"
#include "base/Paths.h"

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isProgram(const QString &path)
{
    const QByteArray native = paths::toBytes(path);
    struct stat status = {};
    return stat(native.constData(), &status) == 0 && S_ISREG(status.st_mode)
           && access(native.constData(), X_OK) == 0;
}

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isSchemeCharacter(char character)
{
    return isLetter(character) || (character >= '0' && character <= '9') || character == '+'
           || character == '-' || character == '.';
}

} // namespace

namespace programs {

QString find(const QString &name, const QStringList &searchPath)
{
    for (const QString &folder : searchPath) {
        if (!folder.startsWith(u'/'))
            continue;
        QString path = paths::join(folder, name);
        if (isProgram(path))
            return path;
    }
    return {};
}

bool launchFirst(const QStringList &names, const QStringList &searchPath, const QStringList &arguments,
                 const QString &workingDirectory)
{
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        const QString program = find(name, searchPath);
        return !program.isEmpty() && ChildProcess::launchDetached(program, arguments, workingDirectory);
    });
}

bool isAddress(const QByteArray &text)
{
    const qsizetype colon = text.indexOf(':');
    return colon > 0 && isLetter(text[0])
           && std::all_of(text.begin(), text.begin() + colon, isSchemeCharacter) && !text.contains('\0');
}

} // namespace programs
