#include "shell/ContentView.h"

#include "base/GuardedPost.h"
#include "common/NotificationNames.h"
#include "common/SettingsKeys.h"

#include <algorithm>

namespace {
constexpr double tourDelay = 0.3; // seconds
}

ContentView::ContentView(const Platform &platform, feedback::Program program)
    : platform_(platform)
    , program_(std::move(program))
{
    observeNotifications();
}

void ContentView::observeNotifications()
{
    NotificationCenter &center = platform_.notifications;
    center.observe(notifications::openSettings, this,
                   [this](const QVariant &) { setSheet(Sheet::settings, true); });
    center.observe(notifications::openShortcuts, this,
                   [this](const QVariant &) { setSheet(Sheet::shortcuts, true); });
    center.observe(notifications::openHistory, this,
                   [this](const QVariant &) { setSheet(Sheet::history, true); });
    center.observe(notifications::openOnboarding, this, [this](const QVariant &) { showTour(); });
    center.observe(notifications::reportBug, this,
                   [this](const QVariant &) { openMail(feedback::Kind::bug); });
    center.observe(notifications::requestFeature, this,
                   [this](const QVariant &) { openMail(feedback::Kind::feature); });
    center.observe(notifications::navigate, this, [this](const QVariant &object) {
        if (object.typeId() == QMetaType::QString)
            setSelectedItem(sidebar::itemForKey(object.toString()));
    });
}

void ContentView::setSelectedItem(SidebarItem item)
{
    if (selectedItem_ != item) {
        selectedItem_ = item;
        emit selectedItemChanged();
    }
    emit screenOpened();
}

bool ContentView::onboardingCompleted() const
{
    return platform_.defaults.boolean(settings::onboardingCompleted);
}

void ContentView::appear()
{
    if (onboardingCompleted())
        return;
    guarded::postAfter(platform_.mainQueue, tourDelay, QPointer(this),
                       [](ContentView &self) { self.showTour(); });
}

/// The flag would stand for nothing while there is no tour, and keep what waits for it to fall.
void ContentView::showTour()
{
    if (isBuilt(Sheet::onboarding))
        setSheet(Sheet::onboarding, true);
}

void ContentView::closeHistory()
{
    setSheet(Sheet::history, false);
}

void ContentView::dismissSheets()
{
    sheets_.clear();
    emit sheetsChanged();
}

void ContentView::setSheet(Sheet sheet, bool isUp)
{
    if (this->isUp(sheet) == isUp)
        return;
    if (isUp)
        sheets_.push_back(sheet);
    else
        std::erase(sheets_, sheet);
    emit sheetsChanged();
}

bool ContentView::isUp(Sheet sheet) const
{
    return std::find(sheets_.begin(), sheets_.end(), sheet) != sheets_.end();
}

std::optional<Sheet> ContentView::sheetOnView() const
{
    return sheets_.empty() ? std::nullopt : std::optional(sheets_.front());
}

void ContentView::openMail(feedback::Kind kind)
{
    platform_.workspace.openAddress(feedback::mailAddress(kind, program_, platform_.systemInfo));
}
