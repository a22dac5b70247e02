#pragma once

#include "base/Ticker.h"
#include "common/LastScannedPill.h"

#include <QObject>

#include <functional>

struct Platform;

/// The pill of a screen whose result is reused for a while: how old the result is, moved on every 30 seconds. It only
/// tells; nothing is scanned by its timer. The screen model that holds it says when the result or its run changes. Main
/// thread.
class AgePillView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(bool isStale READ isStale NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QList<QString> widestTexts READ widestTexts CONSTANT)
    Q_PROPERTY(QString tooltip READ tooltip NOTIFY changed)

public:
    /// `cacheLifetime` gives the seconds for which a result is reused, as the settings stand when it is asked.
    AgePillView(const Platform &platform, std::function<double()> cacheLifetime);

    /// The date of the result on view, none where there is none, and whether a scan runs that will replace it.
    void set(std::optional<Date> date, bool isScanning);

    /// With a result, while no scan runs; the screen tells of the scan in the pill's place.
    bool isShown() const { return pill().isShown() && !isScanning_; }
    bool isStale() const { return pill().isStale(); } ///< the result is no longer reused
    QString text() const { return pill().text(); }
    QList<QString> widestTexts() const { return LastScannedPill::widestTexts(); }
    QString tooltip() const { return pill().tooltip(); }

signals:
    void changed();

private:
    LastScannedPill pill() const { return {date_, cacheLifetime_(), now_}; }
    void moveOn();

    const Platform &platform_;
    const std::function<double()> cacheLifetime_;
    std::optional<Date> date_;
    bool isScanning_ = false;
    Date now_;
    Ticker ticker_;
};
