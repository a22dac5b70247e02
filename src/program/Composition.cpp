#include "program/Composition.h"

#include "apps/screen/AppManagerView.h"
#include "cleanup/screen/SmartCleanupView.h"
#include "common/NotificationNames.h"
#include "common/SettingsKeys.h"
#include "controls/Pictures.h"
#include "disk/DiskAnalyzerView.h"
#include "duplicates/screen/DuplicateFinderView.h"
#include "program/AccessibleItems.h"
#include "program/FallbackPanel.h"
#include "program/PictureProvider.h"
#include "program/Popups.h"
#include "shell/UpcomingView.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(QuillmerePlugin)

namespace {

/// Registered ahead of everything that reads a setting when it is made.
const Platform &withRegisteredDefaults(const Platform &platform)
{
    platform.defaults.registerDefaults(settings::registeredDefaults());
    return platform;
}

} // namespace

Composition::Composition(const Platform &platform, Appearance &appearance, feedback::Program program,
                         const std::function<void()> &exitNow, Relaunch relaunch)
    : platform_(withRegisteredDefaults(platform))
    , appearance_(appearance)
    , relaunch_(std::move(relaunch))
    , content_(platform, std::move(program))
    , quit_(platform, content_, exitNow)
    , sidebar_(platform, disk(), content_)
    , main_(platform, content_, screens())
    , sheets_(content_, [this] { return std::make_unique<HistoryView>(platform_, history()); })
    , menuBar_(platform, main_, [this] { quit_.requestQuit(); })
    , editCommands_(menuBar_)
{
}

Composition::~Composition() = default;

SizeProbes &Composition::sizeProbes()
{
    return SizeProbes::shared(platform_);
}

FileSystemService &Composition::fileSystem()
{
    return FileSystemService::shared(platform_, sizeProbes());
}

DiskService &Composition::disk()
{
    return DiskService::shared(
        platform_, sizeProbes(), [this]() -> FileSystemService & { return fileSystem(); },
        [this]() -> FDAService & { return access(); });
}

DuplicateService &Composition::duplicates()
{
    return DuplicateService::shared(platform_, fileSystem(), access(),
                                    [this]() -> HistoryService & { return history(); });
}

CleanupViewModel &Composition::cleanup()
{
    return CleanupViewModel::shared(platform_, sizeProbes(), fileSystem(), access(),
                                    [this]() -> HistoryService & { return history(); });
}

AppService &Composition::apps()
{
    return AppService::shared(platform_, sizeProbes(), fileSystem(),
                              [this]() -> HistoryService & { return history(); });
}

FDAService &Composition::access()
{
    return FDAService::shared(platform_, {relaunch_.executable,
                                          [this] {
                                              if (relaunch_.letGo)
                                                  relaunch_.letGo();
                                          },
                                          [this] { quit_.requestQuit(); }});
}

HistoryService &Composition::history()
{
    return HistoryService::shared(platform_);
}

MainContentView::Screen Composition::upcoming(SidebarItem item)
{
    return {QStringLiteral("shell/UpcomingScreen.qml"),
            [item] { return std::make_shared<UpcomingView>(item); },
            {}};
}

MainContentView::Screens Composition::screens()
{
    MainContentView::Screens screens;
    for (const auto &[item, description] : UpcomingView::descriptions())
        screens.emplace(item, upcoming(item));
    screens[SidebarItem::diskAnalyzer] = {
        QStringLiteral("disk/DiskAnalyzerScreen.qml"),
        [this] { return std::make_shared<DiskAnalyzerView>(platform_, disk(), fileSystem(), access()); },
        {QStringLiteral("⌘R")},
    };
    screens[SidebarItem::duplicates] = {
        QStringLiteral("duplicates/screen/DuplicateFinderScreen.qml"),
        [this] {
            return std::make_shared<DuplicateFinderView>(platform_, duplicates(), fileSystem(), access());
        },
        {},
    };
    screens[SidebarItem::cleanup] = {
        QStringLiteral("cleanup/screen/SmartCleanupScreen.qml"),
        [this] { return std::make_shared<SmartCleanupView>(platform_, cleanup(), fileSystem(), access()); },
        {},
    };
    screens[SidebarItem::appManager] = {
        QStringLiteral("apps/screen/AppManagerScreen.qml"),
        [this] { return std::make_shared<AppManagerView>(platform_, apps(), sizeProbes(), fileSystem()); },
        {},
    };
    return screens;
}

bool Composition::show()
{
    accessibleitems::install();
    QFontDatabase::addApplicationFont(
        QStringLiteral(":/qt/qml/Quillmere/controls/symbols/QuillmereSymbols.ttf"));
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine_.addImageProvider(Pictures::provider, new PictureProvider);
    engine_.setInitialProperties({
        {QStringLiteral("content"), QVariant::fromValue(&content_)},
        {QStringLiteral("sidebar"), QVariant::fromValue(&sidebar_)},
        {QStringLiteral("main"), QVariant::fromValue(&main_)},
        {QStringLiteral("sheets"), QVariant::fromValue(&sheets_)},
        {QStringLiteral("commands"), QVariant::fromValue(&menuBar_)},
        {QStringLiteral("appearance"), QVariant::fromValue(&appearance_)},
        {QStringLiteral("quit"), QVariant::fromValue(&quit_)},
    });
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/shell/Main.qml")));
    if (engine_.rootObjects().isEmpty())
        return false;
    window_ = qobject_cast<QQuickWindow *>(engine_.rootObjects().constFirst());
    // What the appearance of the window and of each screen sets going waits for its first picture.
    frames_ = std::make_unique<FrameWatch>(*window_, [this] { pictureShown(); });
    QObject::connect(&main_, &MainContentView::screenChanged, frames_.get(), &FrameWatch::expect);
    QObject::connect(&quit_, &QuitPaths::requested, window_, [this] { makeWay(); });
    return true;
}

void Composition::attach(FallbackPanel &panel)
{
    panel_ = &panel;
    panel.attach(engine_, *window_, platform_);
}

void Composition::pictureShown()
{
    if (!std::exchange(hasAppeared_, true))
        windowAppeared();
    main_.appear();
}

void Composition::windowAppeared()
{
    content_.appear();
    sidebar_.appear();
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &sidebar_,
                     [this](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive)
                             return;
                         sidebar_.sceneActivated();
                         platform_.notifications.post(notifications::becameActive);
                     });
}

/// The program is about to end: nothing asks for anything any more, and another start gets a window of its own.
void Composition::makeWay()
{
    if (panel_) // ahead of the rest, which would take its question alone away
        panel_->giveUp();
    popups::closeAll(*window_);
    if (relaunch_.letGo)
        relaunch_.letGo();
}

void Composition::activate(const QByteArray &token)
{
    if (!window_)
        return;
    // Wayland takes the token from the environment at the next request for the focus.
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    if (window_->visibility() == QWindow::Minimized)
        window_->showNormal();
    window_->raise();
    window_->requestActivate();
}
