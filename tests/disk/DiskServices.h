#pragma once

#include "base/Files.h"
#include "base/Paths.h"
#include "disk/DiskService.h"
#include "filesystem/FileSystemService.h"
#include "support/TestPlatform.h"

/// The two services of the disk as the program wires them, over a platform of a test's own.
struct DiskServices
{
    TestPlatform test;
    SizeProbes &probes = test.probes;
    FileSystemService fileSystem{test.platform, probes};
    DiskService disk{test.platform, probes, [this]() -> FileSystemService & { return fileSystem; },
                     [this]() -> FDAService & { return test.access; }};

    void useDu(const QByteArray &lines) { test.useDu(lines); }

    /// A `du` that tells what the file itself says, in KiB, or the file "size" of a folder.
    /// Nothing there: no output.
    void useDuThatReadsSizes()
    {
        useDu("at=\"$2\"; [ -d \"$at\" ] && at=\"$at/size\"\n"
              "read -r size 2>/dev/null <\"$at\" && printf '%s\\t%s\\n' \"$size\" \"$2\"\n");
    }

    /// The real `du`, behind a script that writes a line for each run: the path that it measures.
    void countRuns()
    {
        useDu("echo \"$2\" >>'" + bytes(test.temp.at("runs")) + "'\nexec /usr/bin/du \"$@\"\n");
    }

    /// How many runs `countRuns` has seen.
    qsizetype runs() const
    {
        return files::readPrefix(test.temp.at("runs"), 1 << 20).value_or(QByteArray()).count('\n');
    }

    /// A place below the home folder.
    QString inHome(const QString &relative) const { return paths::join(test.home, relative); }

    static QByteArray bytes(const QString &path) { return paths::toBytes(path); }
};
