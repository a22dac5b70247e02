#pragma once

#include "apps/screen/AppManagerView.h"
#include "apps/uninstall/UninstallHome.h"
#include "base/Files.h"
#include "makers/PropertyLists.h"
#include "support/LocaleGuard.h"
#include "support/Rows.h"

#include <QAbstractItemModelTester>
#include <QJsonObject>
#include <QTimer>

#include <memory>

#include <gtest/gtest.h>

/// The App Manager's screen over a home of the Mac's shape, where each place takes the KB that its `du` tells:
///
///     Alpha  100 KB, with Caches/net.first.alpha (10 KB) and Preferences/net.first.alpha.plist (3000 bytes)
///     Beta   50 KB
///     Gamma  20 KB, its bundle belongs to another user
///
/// and two ghosts: org.vanished.tool (Caches, 30 KB; WebKit, 5 KB) and org.departed.thing (Caches, 8 KB).
struct AppManagerHome : public testing::Test
{
    const LocaleGuard locale;
    UninstallHome home;
    TestPlatform &test = home.test;
    std::unique_ptr<AppService> service;
    std::shared_ptr<AppManagerView> view;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> testers; ///< of the view's rows

    void SetUp() override
    {
        test.useDu("case \"$2\" in */Alpha.app) s=100;; */Beta.app) s=50;; */Gamma.app) s=20;;\n"
                   "*Caches/net.first.alpha) s=10;; */Caches/org.vanished.tool) s=30;; */WebKit/*) s=5;; *) "
                   "s=8;; esac\n"
                   "printf \"$s\\t$2\\n\"\n");
        test.clock.set(std::chrono::system_clock::now());
        bundle(QStringLiteral("Alpha"), QStringLiteral("net.first.alpha"));
        bundle(QStringLiteral("Beta"), QStringLiteral("net.second.beta"));
        bundle(QStringLiteral("Gamma"), QStringLiteral("net.third.gamma"));
        home.refused << at(QStringLiteral("Gamma"));
        home.file(QStringLiteral("Caches/net.first.alpha/data"));
        test.temp.file(QStringLiteral("home/Library/Preferences/net.first.alpha.plist"),
                       QByteArray(3000, 'p'));
        home.file(QStringLiteral("Caches/org.vanished.tool/data"));
        home.file(QStringLiteral("WebKit/org.vanished.tool/data"));
        home.file(QStringLiteral("Caches/org.departed.thing/data"));
        service =
            std::make_unique<AppService>(test.platform, test.probes, home.fileSystem, home.tools().history);
        make();
    }
    void TearDown() override { close(); }

    void bundle(const QString &name, const QString &identifier) const
    {
        test.temp.file(QStringLiteral("Applications/%1.app/Contents/Info.plist").arg(name),
                       propertylists::xml(QJsonObject{
                           {QStringLiteral("CFBundleName"), name},
                           {QStringLiteral("CFBundleIdentifier"), identifier},
                           {QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.0")}}));
    }

    /// The screen, as choosing it in the sidebar makes it.
    void make()
    {
        close();
        view = std::make_shared<AppManagerView>(test.platform, *service, test.probes, home.fileSystem);
        for (QAbstractItemModel *model : {view->lists()->installed(), view->lists()->ghosts(),
                                          view->sheet()->files(), view->appDetail()->breakdown(),
                                          view->ghostDetail()->files(), view->ghostDetail()->categories()})
            testers.push_back(std::make_unique<QAbstractItemModelTester>(
                model, QAbstractItemModelTester::FailureReportingMode::Fatal));
    }
    void close()
    {
        testers.clear();
        view.reset();
    }

    /// The screen is seen, and its scan ends.
    void appear()
    {
        view->appear();
        test.settle();
    }
    /// The same, and the ghosts' tab is opened.
    void appearWithGhosts()
    {
        appear();
        view->chooseTab(1);
        test.settle();
    }

    /// The rows that are shown, by their names.
    QStringList installed() const { return columnTexts(view->lists()->installed(), "appName"); }
    QStringList ghosts() const { return columnTexts(view->lists()->ghosts(), "bundleID"); }
    QString ofApp(const QString &name, const QByteArray &role) const
    {
        return rowValue(view->lists()->installed(), row(name), role).toString();
    }
    QString ofGhost(const QString &key, const QByteArray &role) const
    {
        return rowValue(view->lists()->ghosts(), row(key), role).toString();
    }
    /// Of the list on view; -1 for none.
    int row(const QString &name) const
    {
        return static_cast<int>((view->isGhostTab() ? ghosts() : installed()).indexOf(name));
    }

    QString at(const QString &name) const { return home.inApplications(name + QStringLiteral(".app")); }
    bool isThere(const QString &path) const { return UninstallHome::isThere(path); }

    /// Asks for an application's end and confirms it; the removal has yet to run.
    void startUninstall(const QString &name) const
    {
        view->select(row(name));
        view->askToUninstall();
        view->sheet()->confirm();
    }
    void uninstall(const QString &name)
    {
        startUninstall(name);
        test.settle();
    }
    /// Ticks these, asks and confirms. The jobs that a run waits for are done while it turns the event loop.
    void removeSelected(const QStringList &names)
    {
        for (const QString &name : names)
            view->toggleTick(row(name));
        view->askToRemoveSelected();
        (view->isGhostTab() ? view->ghostQuestion() : view->bulkQuestion())->confirm();
        QTimer worker;
        QObject::connect(&worker, &QTimer::timeout, &worker, [this] { test.workQueue.run(); });
        worker.start(0);
        test.mainQueue.run();
    }
};
