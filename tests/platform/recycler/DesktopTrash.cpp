#include "DesktopTrash.h"

#include "base/Paths.h"
#include "ToolRun.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray scheme = "trash:///";

/// Runs the tool on a session bus made for this one run, with the desktop's service for the Trash.
ToolRun runDesktopTool(const QStringList &arguments)
{
    const QStringList command{u"-u"_s, u"GIO_USE_VFS"_s, u"dbus-run-session"_s, u"--"_s, u"gio"_s};
    ToolRun run = runTool(command + arguments);
    EXPECT_EQ(run.exitCode, 0) << run.errors.constData();
    return run;
}

/// The bytes of a path that the tool has printed: it writes a byte that is not plain as "\xfc".
QByteArray unescaped(const QByteArray &printed)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < printed.size(); ++i) {
        if (printed.sliced(i).startsWith("\\x")) {
            bytes += QByteArray::fromHex(printed.mid(i + 2, 2));
            i += 3;
        } else {
            bytes += printed[i];
        }
    }
    return bytes;
}

} // namespace

namespace desktoptrash {

QList<Entry> list()
{
    QList<Entry> entries;
    const QList<QByteArray> lines = runDesktopTool({u"trash"_s, u"--list"_s}).output.split('\n');
    for (const QByteArray &line : lines) {
        const auto tab = line.indexOf('\t');
        if (line.startsWith(scheme))
            entries.append({line.first(tab), unescaped(line.sliced(tab + 1)), line.contains("\\x")});
    }
    return entries;
}

bool restore(const Entry &entry)
{
    const QString address = QString::fromLatin1(entry.address);
    if (!entry.isEscaped)
        return runDesktopTool({u"trash"_s, u"--restore"_s, address}).exitCode == 0;
    return runDesktopTool({u"move"_s, u"-T"_s, u"-C"_s, address, paths::fromBytes(entry.original)}).exitCode
           == 0;
}

bool restoreOnlyOne()
{
    const QList<Entry> entries = list();
    EXPECT_EQ(entries.size(), 1);
    return entries.size() == 1 && restore(entries.first());
}

bool restorePath(const QString &path)
{
    for (const Entry &entry : list()) {
        if (entry.original == paths::toBytes(path))
            return restore(entry);
    }
    ADD_FAILURE() << "not in the Trash: " << path.toStdString();
    return false;
}

} // namespace desktoptrash
