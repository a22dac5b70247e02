#pragma once

#include "duplicates/DuplicateServices.h"
#include "duplicates/screen/DuplicateFinderView.h"
#include "support/Rows.h"

#include <QAbstractItemModelTester>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

/// The Duplicate Finder's screen over a home with four groups of equal files. A scan finds them in this order, the first
/// row of each being its head:
///
///      0  a/photo.JPG, b/photo.png                 3000 bytes each
///      3  a/report.pdf, b/report.pdf, c/report.pdf 1000
///      7  a/pack.zip, b/pack.txt                   500, both of one date
///     10  a/song, b/song.mp3                       200
struct DuplicateFinderHome : public testing::Test
{
    DuplicateServices services;
    TestPlatform &test = services.test;
    DuplicateService &duplicates = services.duplicates;
    std::shared_ptr<DuplicateFinderView> view;
    std::unique_ptr<QAbstractItemModelTester> tester; ///< of the view's rows

    static constexpr int photoHead = 0;
    static constexpr int reportHead = 3;
    static constexpr int packHead = 7;
    static constexpr int songHead = 10;

    const QStringList asScanned = {
        QStringLiteral("3000: a/photo.JPG b/photo.png-"),
        QStringLiteral("1000: a/report.pdf b/report.pdf- c/report.pdf-"),
        QStringLiteral("500: a/pack.zip b/pack.txt-"),
        QStringLiteral("200: a/song b/song.mp3-"),
    };

    void SetUp() override
    {
        make("a/photo.JPG", 3000, 200);
        make("b/photo.png", 3000, 100);
        make("a/report.pdf", 1000, 100);
        make("b/report.pdf", 1000, 300);
        make("c/report.pdf", 1000, 200);
        make("a/pack.zip", 500, 100);
        make("b/pack.txt", 500, 100);
        make("a/song", 200, 100);
        make("b/song.mp3", 200, 200);
        duplicates.setMinFileSize(0);
        services.useScanPaths({"a", "b", "c"});
        services.useTrash();
        open();
    }

    /// A file below the home folder, the same in each that has its size, last modified so many seconds after a certain
    /// moment.
    void make(const QString &relative, int size, int seconds) const
    {
        const std::filesystem::path path =
            paths::toBytes(services.file(relative, QByteArray(size, 'x'))).toStdString();
        const std::filesystem::file_time_type epoch{};
        std::filesystem::last_write_time(path, epoch + std::chrono::seconds(seconds));
    }

    /// The screen, as choosing it in the sidebar makes it.
    void open()
    {
        close();
        view = std::make_shared<DuplicateFinderView>(test.platform, duplicates, services.fileSystem,
                                                     test.access);
        tester = std::make_unique<QAbstractItemModelTester>(
            view->rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }
    void close()
    {
        tester.reset();
        view.reset();
    }

    /// A scan by the screen's button, from its start to its end.
    void scan() const
    {
        view->scan();
        test.settle();
    }

    void choose(const QString &filter) const
    {
        view->chooseFilter(static_cast<int>(DuplicateFinderView::filters().indexOf(filter)));
    }

    /// A delete run as the user starts it.
    void deleteMarked() const
    {
        view->askToDelete();
        view->confirmation()->confirm();
        test.mainQueue.run();
    }

    /// From within each move to the Trash, before the file has gone.
    void duringTheRun(std::function<void()> action)
    {
        test.recycler.answers = [action = std::move(action)](const QStringList &paths,
                                                             const Recycler::Completion &done) {
            action();
            DuplicateServices::remove(paths.constFirst());
            done({});
        };
    }

    QString path(const QString &relative) const { return services.inHome(relative); }
    QString titles() const { return columnTexts(view->rows(), "title").join(u' '); }
    QString text(int row, const QByteArray &role) const
    {
        return rowValue(view->rows(), row, role).toString();
    }
};
