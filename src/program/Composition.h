#pragma once

#include "activity/FDAService.h"
#include "activity/HistoryService.h"
#include "apps/AppService.h"
#include "cleanup/CleanupViewModel.h"
#include "disk/DiskService.h"
#include "duplicates/DuplicateService.h"
#include "filesystem/FileSystemService.h"
#include "filesystem/SizeProbes.h"
#include "platform/Appearance.h"
#include "platform/Platform.h"
#include "program/EditCommands.h"
#include "program/FrameWatch.h"
#include "program/QuitPaths.h"
#include "shell/ContentView.h"
#include "shell/MainContentView.h"
#include "shell/MenuBarView.h"
#include "shell/SheetsView.h"
#include "shell/SidebarView.h"

#include <QQmlApplicationEngine>

#include <memory>

class FallbackPanel;
class QQuickWindow;

/// What a start of the program anew needs.
struct Relaunch
{
    QString executable;          ///< absolute path of the running program
    std::function<void()> letGo; ///< gives up what a second process would take for a running one
};

/// Puts the program together: which service is handed what, which model belongs to which screen, and the window that
/// shows them. It is the one place that calls `shared()`. One a process; main thread.
class Composition
{
public:
    /// All of these outlive the composition. `exitNow` ends the process and does not return.
    Composition(const Platform &platform, Appearance &appearance, feedback::Program program,
                const std::function<void()> &exitNow, Relaunch relaunch = {});
    ~Composition();
    Composition(const Composition &) = delete;
    Composition &operator=(const Composition &) = delete;

    // Services, each made at its first use.
    SizeProbes &sizeProbes();
    FileSystemService &fileSystem();
    DiskService &disk();
    DuplicateService &duplicates();
    CleanupViewModel &cleanup();
    AppService &apps();
    HistoryService &history();
    FDAService &access();

    // The window's models.
    ContentView &content() { return content_; }
    SidebarView &sidebar() { return sidebar_; }
    MainContentView &main() { return main_; }
    QuitPaths &quit() { return quit_; }

    /// Shows the window. False when its QML can't be loaded.
    bool show();

    /// Lets the program's own panels be shown in the window, which is there by then. `panel` outlives the composition.
    void attach(FallbackPanel &panel);

    QQmlEngine &engine() { return engine_; }

    /// Null before `show`.
    QQuickWindow *window() const { return window_; }

    /// Brings the window to the front, with the token by which another program's start asks for it.
    void activate(const QByteArray &token);

private:
    MainContentView::Screens screens();
    MainContentView::Screen upcoming(SidebarItem item);
    void pictureShown();
    void windowAppeared();
    void makeWay();

    const Platform &platform_;
    Appearance &appearance_;
    const Relaunch relaunch_;
    ContentView content_;
    QuitPaths quit_;
    SidebarView sidebar_;
    MainContentView main_;
    SheetsView sheets_;
    MenuBarView menuBar_;
    EditCommands editCommands_;
    QQmlApplicationEngine engine_;
    QQuickWindow *window_ = nullptr;
    FallbackPanel *panel_ = nullptr;
    std::unique_ptr<FrameWatch> frames_; // of the window
    bool hasAppeared_ = false;           // the window
};
