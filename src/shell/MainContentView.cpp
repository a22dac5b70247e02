#include "shell/MainContentView.h"

#include "common/KeySigns.h"

#include <utility>

namespace {
const QString searchKey = QStringLiteral("⌘K");
}

MainContentView::MainContentView(const Platform &platform, ContentView &content, Screens screens)
    : platform_(platform)
    , content_(content)
    , screens_(std::move(screens))
    , screen_(selected().make())
{
    connect(&content_, &ContentView::selectedItemChanged, this, &MainContentView::showSelected);
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

void MainContentView::openSearch()
{
    content_.setSelectedItem(SidebarItem::search);
}

void MainContentView::showSelected()
{
    std::unique_ptr<QObject> old = std::exchange(screen_, selected().make());
    emit screenChanged();
    // The old screen's QML goes in a later turn of the loop and still looks at its model until then.
    old.release()->deleteLater();
}
