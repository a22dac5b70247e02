#include "filesystem/SizeProbes.h"

#include "base/Error.h"
#include "base/Text.h"

#include <utility>

namespace {

/// The bytes that an output of `du -sk` tells: a count of KiB before the first tab. 0 for anything else, a count
/// of more than 64 bits of bytes included.
qint64 sizeFromOutput(const QByteArray &output)
{
    qsizetype start = 0;
    while (start < output.size() && output[start] == '\t')
        ++start;
    const qsizetype tab = output.indexOf('\t', start);
    const qsizetype end = tab < 0 ? output.size() : tab;
    const auto kibibytes = text::parseInteger(QByteArrayView(output).sliced(start, end - start));
    qint64 bytes = 0;
    if (!kibibytes || __builtin_mul_overflow(*kibibytes, qint64(1024), &bytes))
        return 0;
    return bytes;
}

} // namespace

SizeProbes::SizeProbes(const Platform &platform)
    : platform_(platform)
{
}

SizeProbes &SizeProbes::shared(const Platform &platform)
{
    static SizeProbes &instance = *new SizeProbes(platform);
    return instance;
}

qint64 SizeProbes::probeSize(const QString &path, ProbeContext context)
{
    const auto process =
        std::make_shared<ChildProcess>(platform_.programs.du, QStringList{QStringLiteral("-sk"), path});
    {
        const std::lock_guard lock(probeLock_);
        liveSizeProbes_[context].push_back(process);
    }
    qint64 size = 0;
    try {
        process->launch();
        process->waitUntilExit();
        // The exit status is not looked at: a tree with unreadable parts has a total and an error, and the total
        // counts. A probe that was ended has printed nothing.
        size = sizeFromOutput(process->readToEnd());
    } catch (const Error &) {
        // A `du` that can't be started measures 0, like an empty folder.
    }
    const std::lock_guard lock(probeLock_);
    // A cancel may have taken the process out, or the whole list.
    if (const auto live = liveSizeProbes_.find(context); live != liveSizeProbes_.end())
        std::erase(live->second, process);
    return size;
}

void SizeProbes::cancelProbes(std::optional<ProbeContext> context)
{
    Processes taken;
    {
        const std::lock_guard lock(probeLock_);
        if (context) {
            taken = std::exchange(liveSizeProbes_[*context], {});
        } else {
            for (const auto &[owner, processes] : std::exchange(liveSizeProbes_, {}))
                taken.insert(taken.end(), processes.begin(), processes.end());
        }
    }
    for (const auto &process : taken)
        process->terminate();
}

std::map<ProbeContext, SizeProbes::Processes> SizeProbes::liveSizeProbes() const
{
    const std::lock_guard lock(probeLock_);
    return liveSizeProbes_;
}
