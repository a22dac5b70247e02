#include "platform/linux/LinuxApplications.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "platform/linux/DesktopEntry.h"
#include "platform/linux/ProgramSearch.h"

#include <algorithm>
#include <optional>

namespace {

constexpr qint64 largestEntry = 1 << 20; // bytes; a large one with its translations has some ten thousand

bool isNumber(const QString &name)
{
    return std::ranges::all_of(name, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

/// Where a program that an entry names lies; empty where it is not to be found.
QString placeOf(const QString &program, const QStringList &searchPath)
{
    if (program.startsWith(u'/'))
        return program;
    return paths::isEntryName(program) ? programs::find(program, searchPath) : QString();
}

} // namespace

LinuxApplications::LinuxApplications(const Lazy<Locations> &locations, QStringList searchPath,
                                     QString processes)
    : locations_(locations)
    , searchPath_(std::move(searchPath))
    , processes_(std::move(processes))
{
}

QStringList LinuxApplications::runningPaths() const
{
    QStringList running;
    for (const QString &name : files::list(processes_).value_or(std::vector<QString>())) {
        if (!isNumber(name))
            continue;
        // None of another user's processes, nor of the kernel's own threads.
        if (const auto program = files::linkTarget(paths::join(processes_, name + QStringLiteral("/exe"))))
            running.append(*program);
    }
    running.removeDuplicates();
    return running;
}

QStringList LinuxApplications::knownPaths(const QString &identifier) const
{
    if (!paths::isEntryName(identifier))
        return {};
    for (const QString &folder : locations_->desktopEntryFolders) {
        const QString path = paths::join(folder, identifier + QStringLiteral(".desktop"));
        const auto content = files::readPrefix(path, largestEntry);
        if (!content)
            continue;
        // The first one stands for all of that name behind it, also where it says that there is none.
        const auto entry = DesktopEntry::parse(*content);
        if (!entry || (!entry->tryProgram.isEmpty() && placeOf(entry->tryProgram, searchPath_).isEmpty()))
            return {};
        if (entry->program.isEmpty())
            return entry->isActivatable ? QStringList(path) : QStringList();
        const QString program = placeOf(entry->program, searchPath_);
        return program.isEmpty() ? QStringList() : QStringList(program);
    }
    return {};
}
