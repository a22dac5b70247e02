#include "shell/SheetsView.h"

#include <utility>

SheetsView::SheetsView(const ContentView &content, MakeHistory makeHistory)
    : content_(content)
    , makeHistory_(std::move(makeHistory))
{
    connect(&content_, &ContentView::sheetsChanged, this, &SheetsView::follow);
}

SheetsView::~SheetsView() = default;

void SheetsView::follow()
{
    const bool isOnView = content_.sheetOnView() == Sheet::history;
    if (isOnView == (history_ != nullptr))
        return;
    std::unique_ptr<HistoryView> old =
        std::exchange(history_, isOnView ? makeHistory_() : std::unique_ptr<HistoryView>());
    emit historyChanged();
    // The sheet's QML goes in a later turn of the loop and still looks at its model until then.
    if (old)
        old.release()->deleteLater();
}
