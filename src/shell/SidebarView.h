#pragma once

#include "base/RecordListModel.h"
#include "base/Ticker.h"
#include "disk/DiskService.h"
#include "shell/ContentView.h"
#include "shell/Sheet.h"

#include <QObject>

/// The sidebar: the nine screens in their sections, and the widget that tells how full the disk is. Main thread.
class SidebarView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *items READ items CONSTANT)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged)
    Q_PROPERTY(QAbstractItemModel *footer READ footer CONSTANT)
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QString listName READ listName CONSTANT)
    Q_PROPERTY(QString diskName READ diskName CONSTANT)
    Q_PROPERTY(QString refreshTip READ refreshTip CONSTANT)
    Q_PROPERTY(QString volumeName READ volumeName NOTIFY diskUsageChanged)
    Q_PROPERTY(QString usedText READ usedText NOTIFY diskUsageChanged)
    Q_PROPERTY(QString freeText READ freeText NOTIFY diskUsageChanged)
    Q_PROPERTY(double usedShare READ usedShare NOTIFY diskUsageChanged)
    Q_PROPERTY(bool isNearlyFull READ isNearlyFull NOTIFY diskUsageChanged)
    Q_PROPERTY(bool isRefreshingDisk READ isRefreshingDisk NOTIFY isRefreshingDiskChanged)

public:
    /// Asks for the volume's usage at once, on the calling thread, so that the first picture has it.
    SidebarView(const Platform &platform, DiskService &diskService, ContentView &content);

    /// Rows: sectionTitle, itemTitle, symbol, badge (empty for none), isSelected.
    QAbstractItemModel *items() { return &rows_; }
    int selectedRow() const;

    // Names for assistive technology: of the whole, and of its parts.
    QString name() const { return QStringLiteral("Sidebar"); }
    QString listName() const { return QStringLiteral("Screens"); }
    QString diskName() const { return QStringLiteral("Disk usage"); }

    /// Rows: symbol, label, tip, isAvailable.
    QAbstractItemModel *footer() { return &footerRows_; }
    QString refreshTip() const { return QStringLiteral("Refresh disk usage"); }

    const DiskUsage &diskUsage() const { return diskUsage_; }
    QString volumeName() const;
    QString usedText() const; ///< "12 GB used"
    QString freeText() const; ///< "3.4 GB free"
    double usedShare() const; ///< 0 to 1
    bool isNearlyFull() const;
    bool isRefreshingDisk() const { return isRefreshingDisk_; }
    bool isTimerActive() const { return refreshTimer_.isActive(); }

    void appear();    ///< starts the timer; the value is fresh
    void disappear(); ///< stops it
    void sceneActivated();
    Q_INVOKABLE void refreshDiskUsage();
    Q_INVOKABLE void select(int row);
    Q_INVOKABLE void openSheet(int button); ///< what a button of the footer does

signals:
    void selectedRowChanged();
    void diskUsageChanged();
    void isRefreshingDiskChanged();

private:
    struct FooterButton
    {
        Sheet sheet;
        QString symbol;
        QString label; ///< its name for assistive technology
        QString tip;
    };

    void finishRefresh(const DiskUsage &usage);
    void markSelected();

    const Platform &platform_;
    DiskService &diskService_;
    ContentView &content_;
    RecordListModel<SidebarItem> rows_;
    RecordListModel<FooterButton> footerRows_;
    DiskUsage diskUsage_;
    Ticker refreshTimer_;
    bool isRefreshingDisk_ = false;
};
