#pragma once

#include "base/Paths.h"
#include "disk/DiskAnalyzerView.h"
#include "filesystem/FileSystemService.h"
#include "support/Rows.h"
#include "support/TestPlatform.h"

#include <functional>
#include <memory>

#include <gtest/gtest.h>

/// The screen over a small home: "Documents" with the folder "Deep", which lies at the depth limit and is measured
/// only, and "notes.txt". What a probe measures is set by the test.
class DiskAnalyzerHome : public ::testing::Test
{
protected:
    void SetUp() override
    {
        inHome("Documents/report.pdf", 600);
        inHome("Documents/Deep/inside.txt", 250);
        inHome("notes.txt", 200);
        probe = [](const QString &path) { return qint64(path.endsWith(QStringLiteral("/Deep")) ? 400 : 0); };
    }

    void inHome(const QString &relative, qint64 size) const
    {
        test.temp.sparseFile(QStringLiteral("home/") + relative, size);
    }
    void inHome(const char *relative, qint64 size) const { inHome(QString::fromUtf8(relative), size); }
    QString path(const char *relative) const { return paths::join(test.home, QString::fromUtf8(relative)); }

    void make() { view = std::make_unique<DiskAnalyzerView>(test.platform, disk, fileSystem, test.access); }
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
    std::function<qint64(const QString &)> probe;
    FileSystemService fileSystem{test.platform, [this](const QString &path) { return probe(path); }};
    DiskService disk{test.platform, fileSystem, test.access};
    std::unique_ptr<DiskAnalyzerView> view;
};
