#include "PrivateJournal.h"

#include "base/ChildProcess.h"
#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"

#include <QElapsedTimer>
#include <QThread>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <thread>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString program = u"/lib/systemd/systemd-journald"_s;
const QString journalSocket = u"/run/systemd/journal/socket"_s;

std::string withReason(const char *what)
{
    return std::string(what) + ": " + strerror(errno);
}

bool writeFile(const char *path, const char *content)
{
    FILE *file = fopen(path, "w");
    return file && fputs(content, file) >= 0 && fclose(file) == 0;
}

/// Empty folders in the place of those that a journal uses, for this thread and what it starts.
std::string hideTheSystemsJournal()
{
    if (unshare(CLONE_NEWNS) == -1)
        return withReason("no mount namespace of one's own is allowed here");
    if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == -1)
        return withReason("mounts can't be made private");
    if (mount("tmpfs", "/run", "tmpfs", 0, "mode=755") == -1)
        return withReason("no file system can be mounted");
    if (files::isDirectory(u"/var/log/journal"_s)
        && mount("tmpfs", "/var/log/journal", "tmpfs", 0, nullptr) == -1)
        return withReason("no file system can be mounted");
    return {};
}

std::string prepare()
{
    if (access(paths::toBytes(program).constData(), X_OK) == -1)
        return "systemd-journald is not installed";
    if (std::string reason = hideTheSystemsJournal(); !reason.empty())
        return reason;
    for (const char *folder : {"/run/systemd", "/run/systemd/journal", "/run/systemd/journald.conf.d",
                               "/run/log", "/run/log/journal"}) {
        if (mkdir(folder, 0755) == -1)
            return withReason("no folder can be made");
    }
    // In memory, nothing of the kernel's, and every line however fast they come.
    if (!writeFile("/run/systemd/journald.conf.d/test.conf",
                   "[Journal]\nStorage=volatile\nReadKMsg=no\nAudit=no\nRateLimitBurst=0\n"))
        return withReason("the journal can't be configured");
    if (!writeFile("/run/machine-id", "0123456789abcdef0123456789abcdef\n")
        || mount("/run/machine-id", "/etc/machine-id", nullptr, MS_BIND, nullptr) == -1)
        return withReason("the machine can't be given an id");
    return {};
}

/// The journal makes its socket first and the file that it writes to later.
bool canBeRead()
{
    sd_journal *journal = nullptr;
    const bool hasFile = files::exists(journalSocket) && sd_journal_open(&journal, SD_JOURNAL_LOCAL_ONLY) >= 0
                         && sd_journal_has_runtime_files(journal) > 0;
    sd_journal_close(journal);
    return hasFile;
}

bool waitForStart(const ChildProcess &journal)
{
    QElapsedTimer timer;
    timer.start();
    while (!canBeRead()) {
        if (timer.elapsed() > 20'000 || !journal.isRunning())
            return false;
        QThread::msleep(1);
    }
    return true;
}

std::string runHere(const std::function<void()> &test)
{
    if (std::string reason = prepare(); !reason.empty())
        return reason;
    ChildProcess journal(program, {});
    try {
        journal.launch();
    } catch (const Error &error) {
        return "systemd-journald can't be started: " + error.description.toStdString();
    }
    if (!waitForStart(journal))
        return "systemd-journald doesn't come up";
    try {
        test();
    } catch (const Error &error) {
        ADD_FAILURE() << "Thrown: " << error.description.toStdString();
    }
    return {};
}

} // namespace

namespace privatejournal {

std::string run(const std::function<void()> &test)
{
    std::string reason;
    // A namespace is a thread's, and gone with it.
    std::thread([&] { reason = runHere(test); }).join();
    return reason;
}

} // namespace privatejournal
