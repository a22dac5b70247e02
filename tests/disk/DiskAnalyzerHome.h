#pragma once

#include "base/Files.h"
#include "base/Paths.h"
#include "disk/DiskAnalyzerView.h"
#include "filesystem/FileSystemService.h"
#include "support/Rows.h"
#include "support/TestPlatform.h"

#include <memory>

#include <gtest/gtest.h>

/// The screen over a small home: "Documents" with the folder "Deep", which lies at the depth limit and is measured
/// only, and "notes.txt". Sizes are in KiB, which is what `du` tells.
class DiskAnalyzerHome : public ::testing::Test
{
protected:
    void SetUp() override
    {
        inHome("Documents/report.pdf", 600);
        inHome("Documents/Deep/inside.txt", 250);
        inHome("notes.txt", 200);
        useDuThatSays("*/Deep", "400");
    }

    void inHome(const QString &relative, qint64 size) const
    {
        test.temp.sparseFile(QStringLiteral("home/") + relative, size * 1024);
    }
    /// Of the paths that match a pattern of the shell's; of all others nothing. Writes down what it is asked for.
    void useDuThatSays(const QByteArray &pattern, const QByteArray &kibibytes)
    {
        test.useDu("printf '%s\\0' \"$2\" >>'" + paths::toBytes(test.temp.at("probed")) + "'\ncase \"$2\" in "
                   + pattern + ") printf '" + kibibytes + "\\t%s\\n' \"$2\";; esac\n");
    }
    /// What was measured, in that order.
    QStringList probed() const
    {
        QStringList measured;
        for (const QByteArray &path :
             files::readPrefix(test.temp.at("probed"), 1 << 20).value_or(QByteArray()).split('\0'))
            measured << paths::fromBytes(path);
        return measured.first(measured.size() - 1);
    }
    void inHome(const char *relative, qint64 size) const { inHome(QString::fromUtf8(relative), size); }
    QString path(const char *relative) const { return paths::join(test.home, QString::fromUtf8(relative)); }

    void make() { view = std::make_shared<DiskAnalyzerView>(test.platform, disk, fileSystem, test.access); }
    /// A screen with the whole home measured.
    void makeScanned()
    {
        make();
        view->appear();
        test.settle();
    }
    /// A click on the row or on the tile of that name.
    void open(const char *name) { view->openRow(rowOf(view->contents(), "entryName", name)); }
    void tapTile(const char *name)
    {
        view->treemap()->tap(rowOf(view->treemap()->tiles(), "tileName", name));
    }
    static int rowOf(const QAbstractItemModel *model, const char *role, const char *text)
    {
        return static_cast<int>(columnTexts(model, role).indexOf(QString::fromUtf8(text)));
    }
    QString names() const { return columnTexts(view->contents(), "entryName").join(u','); }
    QString crumbs() const { return columnTexts(view->breadcrumbs(), "entryName").join(u'/'); }

    TestPlatform test;
    FileSystemService fileSystem{test.platform, test.probes};
    DiskService disk{test.platform, test.probes, [this]() -> FileSystemService & { return fileSystem; },
                     [this]() -> FDAService & { return test.access; }};
    std::shared_ptr<DiskAnalyzerView> view;
};
