#pragma once

#include "base/LatestQuestion.h"
#include "base/RecordListModel.h"
#include "platform/Platform.h"
#include "program/panel/PanelPlaces.h"

#include <QObject>

/// The places beside the folder on view, less those that a look at the disk finds missing. Main thread.
class PlaceRows final : public QObject
{
public:
    /// `platform` outlives it.
    explicit PlaceRows(const Platform &platform);

    /// Rows: name, symbol, isHere (the folder on view), hereText.
    QAbstractItemModel &model() { return rows_; }

    /// Empty for a row that is not there.
    QString path(int row) const;

    /// That folder is on view now.
    void mark(const QString &folder);

    /// Looks at the disk which of them exist.
    void leaveOutMissing();

private:
    void leaveOut(const QString &missing);

    const Platform &platform_;
    RecordListModel<panelplaces::Place> rows_;
    LatestQuestion look_;
};
