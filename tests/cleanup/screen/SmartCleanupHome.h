#pragma once

#include "../CleanupServices.h"
#include "cleanup/screen/SmartCleanupView.h"
#include "support/Rows.h"

#include <QAbstractItemModelTester>

#include <chrono>
#include <memory>

#include <gtest/gtest.h>

/// Smart Cleanup's screen over a home with four categories. Each place takes 100 KB, so they stand in this order:
///
///     logs           Library/Logs/one (1 byte), two (2)
///     old-downloads  Downloads/old (10)
///     trash          .Trash/three (3)
///     empty-folders  Downloads/Hollow, Documents/Bare
struct SmartCleanupHome : public testing::Test
{
    CleanupServices services;
    TestPlatform &test = services.test;
    CleanupViewModel &cleanup = *services.cleanup;
    std::shared_ptr<SmartCleanupView> view;
    std::unique_ptr<QAbstractItemModelTester> tester; ///< of the view's rows

    void SetUp() override
    {
        test.clock.set(std::chrono::system_clock::now() + std::chrono::days(31));
        test.useDu("printf '100\\t'\n");
        services.file(QStringLiteral("Library/Logs/one"), "1");
        services.file(QStringLiteral("Library/Logs/two"), "22");
        services.file(QStringLiteral("Downloads/old"), "0123456789");
        services.file(QStringLiteral(".Trash/three"), "333");
        services.folder(QStringLiteral("Downloads/Hollow"));
        services.folder(QStringLiteral("Documents/Bare"));
        make();
    }

    /// The screen, as choosing it in the sidebar makes it.
    void make()
    {
        close();
        view = std::make_shared<SmartCleanupView>(test.platform, cleanup, services.fileSystem, test.access);
        tester = std::make_unique<QAbstractItemModelTester>(
            view->rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }
    void close()
    {
        tester.reset();
        view.reset();
    }

    /// The screen is seen, and its scan ends.
    void appear()
    {
        view->appear();
        test.settle();
    }

    /// Opens or closes the preview of a category, and lets it load.
    void openPreview(const QString &name) const
    {
        view->togglePreview(rowOf(name));
        test.settle();
    }

    /// The row with that title; -1 where there is none.
    int rowOf(const QString &title) const
    {
        return static_cast<int>(columnTexts(view->rows(), "title").indexOf(title));
    }
    /// The first row of that kind from `start` on; -1 where there is none.
    int kindAt(const QString &kind, int start = 0) const
    {
        return static_cast<int>(columnTexts(view->rows(), "kind").indexOf(kind, start));
    }

    QString titles() const { return columnTexts(view->rows(), "title").join(u'|'); }
    QString kinds() const { return columnTexts(view->rows(), "kind").join(u' '); }
    QString text(int row, const QByteArray &role) const
    {
        return rowValue(view->rows(), row, role).toString();
    }
    QString text(const QString &title, const QByteArray &role) const { return text(rowOf(title), role); }
    bool flag(const QString &title, const QByteArray &role) const
    {
        return rowValue(view->rows(), rowOf(title), role).toBool();
    }

    QString at(const QString &relative) const { return services.inHome(relative); }

    /// So many files of logs beside the two, of rising size.
    void makeLogs(int count) const
    {
        for (int i = 0; i < count; ++i)
            services.file(QStringLiteral("Library/Logs/log-%1").arg(i), QByteArray(i % 1000, 'l'));
    }

    void unlock(const QString &name) const
    {
        const QString id = cleanup.categories()[static_cast<size_t>(headNumber(name))].id;
        cleanup.setReviewed(id, true);
    }

private:
    qsizetype headNumber(const QString &name) const
    {
        QStringList names;
        for (const CleanupCategory &category : cleanup.categories())
            names << category.name;
        return names.indexOf(name);
    }
};
