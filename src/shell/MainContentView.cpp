#include "shell/MainContentView.h"

#include "common/Appearing.h"
#include "common/KeySigns.h"

#include <utility>

namespace {

const QString searchKey = QStringLiteral("⌘K");

/// Keeps the model of a screen that was left until its QML, which goes in a later turn of the loop, looks at it no more.
class LeftModel final : public QObject
{
public:
    explicit LeftModel(std::shared_ptr<QObject> model)
        : model_(std::move(model))
    {
        deleteLater();
    }

private:
    const std::shared_ptr<QObject> model_;
};

} // namespace

MainContentView::MainContentView(const Platform &platform, ContentView &content, Screens screens)
    : platform_(platform)
    , content_(content)
    , screens_(std::move(screens))
    , screen_(selected().make())
{
    connect(&content_, &ContentView::selectedItemChanged, this, &MainContentView::showSelected);
    connect(&content_, &ContentView::screenOpened, this, &MainContentView::screenOpened);
}

MainContentView::~MainContentView() = default;

const MainContentView::Screen &MainContentView::selected() const
{
    return screens_.at(content_.selectedItem());
}

QString MainContentView::screenSource() const
{
    return selected().source;
}

QString MainContentView::searchHint() const
{
    return keysigns::text(searchKey, platform_.keyStyle);
}

QString MainContentView::searchTip() const
{
    return keysigns::text(QStringLiteral("Open Search (⌘K)"), platform_.keyStyle);
}

QString MainContentView::searchSequence() const
{
    return keysigns::sequence(searchKey);
}

bool MainContentView::claimsKey(const QString &keySigns) const
{
    return selected().keys.contains(keySigns);
}

void MainContentView::appear()
{
    if (std::exchange(hasAppeared_, true))
        return;
    if (auto *model = dynamic_cast<Appearing *>(screen_.get()))
        model->appear();
}

void MainContentView::openSearch()
{
    content_.setSelectedItem(SidebarItem::search);
}

void MainContentView::showSelected()
{
    std::shared_ptr<QObject> old = std::exchange(screen_, selected().make());
    hasAppeared_ = false;
    emit screenChanged();
    // After the signal: what goes later goes in the order of the requests, and the QML is the first to go. A command of
    // the old model that is still under way keeps the model even longer.
    new LeftModel(std::move(old));
}
