#pragma once

#include "activity/HistorySamples.h"
#include "activity/HistoryService.h"
#include "activity/HistoryView.h"
#include "support/LocaleGuard.h"
#include "support/Rows.h"
#include "support/TestPlatform.h"

#include <memory>

#include <gtest/gtest.h>

/// The sheet of the activity log over a log in a temporary home, in German.
class HistorySheet : public ::testing::Test
{
protected:
    static constexpr int allChip = 0;
    static constexpr int undoChip = 6;

    void record(const HistoryEntry &entry)
    {
        history.record(entry);
        test.mainQueue.run();
    }
    void open() { view = std::make_unique<HistoryView>(test.platform, history); }
    QVariant value(int row, const QByteArray &role) const { return rowValue(view->rows(), row, role); }
    QString textOf(int row, const QByteArray &role) const { return value(row, role).toString(); }
    QString titles() const { return columnTexts(view->rows(), "entryTitle").join(u' '); }

    const LocaleGuard berlin{"de_DE", "Europe/Berlin"};
    TestPlatform test;
    HistoryService history{test.platform};
    std::unique_ptr<HistoryView> view;
};
