#include "LoopVolume.h"

#include "base/Paths.h"
#include "ToolRun.h"

#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

LoopVolume::LoopVolume(const QString &mountPoint, int megabytes)
    : mountPoint_(mountPoint)
{
    const QString disk = temp_.sparseFile(u"disk"_s, qint64(megabytes) << 20);
    const QStringList commands[] = {
        {u"mkfs.ext4"_s, u"-q"_s, u"-m"_s, u"0"_s, u"-O"_s, u"^has_journal"_s, disk},
        {u"mount"_s, u"-o"_s, u"loop"_s, disk, mountPoint},
        {u"rmdir"_s, mountPoint + u"/lost+found"_s}};
    for (const QStringList &command : commands) {
        const ToolRun run = runTool(command);
        if (whyNot_.isEmpty() && run.exitCode != 0)
            whyNot_ = "No volume can be mounted here: " + run.errors.trimmed();
        if (!whyNot_.isEmpty())
            return;
    }
}

LoopVolume::~LoopVolume()
{
    if (whyNot_.isEmpty()) {
        // At once, though the desktop's services may still be looking at it.
        EXPECT_EQ(umount2(paths::toBytes(mountPoint_).constData(), MNT_DETACH), 0);
    }
}

void LoopVolume::fill(const QString &name) const
{
    const int file =
        open(paths::toBytes(mountPoint_ + u'/' + name).constData(), O_WRONLY | O_CREAT | O_SYNC, 0600);
    ASSERT_NE(file, -1);
    const QByteArray block(1 << 16, 'x');
    for (qsizetype size = block.size(); size > 0; size /= 2) {
        while (write(file, block.constData(), static_cast<size_t>(size)) > 0) {}
        EXPECT_EQ(errno, ENOSPC);
    }
    close(file);
}
