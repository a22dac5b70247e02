#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "base/Clock.h"
#include "base/RecordListModel.h"

#include <QObject>

#include <optional>

/// The detail pane of one application. It keeps what it shows, also when a scan has made other records of it. Main thread.
class AppDetail final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString versionText READ versionText NOTIFY changed)
    Q_PROPERTY(QString bundleID READ bundleID NOTIFY changed)
    Q_PROPERTY(QString path READ path NOTIFY changed)
    Q_PROPERTY(QString icon READ icon NOTIFY changed)
    Q_PROPERTY(QString lastUsedText READ lastUsedText NOTIFY changed)
    Q_PROPERTY(QString totalText READ totalText NOTIFY changed)
    Q_PROPERTY(QString uninstallText READ uninstallText NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *breakdown READ breakdown CONSTANT)

public:
    explicit AppDetail(const Clock &clock);

    const std::optional<RealInstalledApp> &app() const { return app_; }
    void show(const std::optional<RealInstalledApp> &app);

    QString name() const;
    QString versionText() const;
    QString bundleID() const;
    QString path() const;
    QString icon() const; ///< a key for who draws it; empty for none
    QString lastUsedText() const;
    QString totalText() const;
    QString uninstallText() const;
    /// Rows: label, sizeText, share (of the total, 0 to 1), isTotal.
    QAbstractItemModel *breakdown() { return &breakdown_; }

signals:
    void changed();

private:
    struct Part
    {
        QString label;
        qint64 size = 0;
        qint64 total = 0;
        bool isTotal = false;
    };

    const Clock &clock_;
    std::optional<RealInstalledApp> app_;
    RecordListModel<Part> breakdown_;
};
