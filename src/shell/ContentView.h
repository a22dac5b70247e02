#pragma once

#include "platform/Platform.h"
#include "shell/FeedbackMail.h"
#include "shell/Sheet.h"
#include "shell/SidebarItem.h"

#include <QObject>

#include <optional>
#include <vector>

/// The state of the main window: which screen is selected and which sheet is up. Menus and screens reach it through
/// notifications. Main thread.
class ContentView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool showSettings READ showSettings NOTIFY sheetsChanged)
    Q_PROPERTY(bool showShortcuts READ showShortcuts NOTIFY sheetsChanged)
    Q_PROPERTY(bool showHistory READ showHistory NOTIFY sheetsChanged)
    Q_PROPERTY(bool showOnboarding READ showOnboarding NOTIFY sheetsChanged)

public:
    ContentView(const Platform &platform, feedback::Program program);

    SidebarItem selectedItem() const { return selectedItem_; }
    void setSelectedItem(SidebarItem item);

    bool showSettings() const { return isUp(Sheet::settings); }
    bool showShortcuts() const { return isUp(Sheet::shortcuts); }
    bool showHistory() const { return isUp(Sheet::history); }
    bool showOnboarding() const { return isUp(Sheet::onboarding); }
    void setSheet(Sheet sheet, bool isUp);

    /// The one sheet that is seen. Another that is asked for meanwhile waits until this one has gone.
    std::optional<Sheet> sheetOnView() const;

    bool onboardingCompleted() const;

    /// The window is there for the first time: the welcome tour follows unless it was seen to its end.
    void appear();

    Q_INVOKABLE void closeHistory();

    /// Takes every sheet down, as a request to quit does first.
    void dismissSheets();

signals:
    void selectedItemChanged();
    void screenOpened(); ///< also when it is the one on view already
    void sheetsChanged();

private:
    void observeNotifications();
    void showTour();
    bool isUp(Sheet sheet) const;
    void openMail(feedback::Kind kind);

    const Platform &platform_;
    const feedback::Program program_;
    SidebarItem selectedItem_ = SidebarItem::dashboard;
    std::vector<Sheet> sheets_; // those that are up, in the order in which they were asked for
};
