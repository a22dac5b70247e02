#pragma once

#include "activity/HistoryView.h"
#include "shell/ContentView.h"

#include <QObject>

#include <functional>
#include <memory>

/// Makes the model of the sheet on view, anew when the sheet opens. There is one at a time. Main thread.
class SheetsView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(HistoryView *history READ history NOTIFY historyChanged)

public:
    using MakeHistory = std::function<std::unique_ptr<HistoryView>()>;

    SheetsView(const ContentView &content, MakeHistory makeHistory);
    ~SheetsView() override;

    /// Null while the sheet is down or waits for another.
    HistoryView *history() const { return history_.get(); }

signals:
    void historyChanged();

private:
    void follow();

    const ContentView &content_;
    const MakeHistory makeHistory_;
    std::unique_ptr<HistoryView> history_;
};
