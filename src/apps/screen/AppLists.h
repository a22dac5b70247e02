#pragma once

#include "apps/AppService.h"
#include "apps/screen/GhostList.h"
#include "apps/screen/IdentifiedRows.h"
#include "apps/screen/InstalledList.h"
#include "apps/screen/SelectionTexts.h"

#include <QObject>

/// The two lists of the App Manager as its screen shows them: what the search leaves of the service's, in the reader's order,
/// with what they add up to. They follow the service row by row. Main thread.
class AppLists final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *installed READ installed CONSTANT)
    Q_PROPERTY(QAbstractItemModel *ghosts READ ghosts CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY changed)
    Q_PROPERTY(QList<QString> sortLabels READ sortLabels CONSTANT)
    Q_PROPERTY(int sortBy READ sortBy NOTIFY changed)
    Q_PROPERTY(QString installedFigure READ installedFigure NOTIFY changed)
    Q_PROPERTY(QString totalFigure READ totalFigure NOTIFY changed)
    Q_PROPERTY(QString ghostFigure READ ghostFigure NOTIFY changed)

public:
    AppLists(const Clock &clock, AppService &service);

    /// Rows: see installedlist::roles, and isInPane (it is in the pane).
    QAbstractItemModel *installed() { return installed_.model(); }
    /// Rows: see ghostlist::roles, and isInPane.
    QAbstractItemModel *ghosts() { return ghosts_.model(); }
    int installedCount() const { return installed_.count(); }
    int ghostCount() const { return ghosts_.count(); }

    const QString &searchText() const { return searchText_; }
    void setSearchText(const QString &text);
    QStringList sortLabels() const { return installedlist::sortLabels(); }
    int sortBy() const { return static_cast<int>(sortBy_); }
    Q_INVOKABLE void chooseSort(int option);

    // Over all, whatever the search leaves.
    QString installedFigure() const;
    QString totalFigure() const;
    QString ghostFigure() const;
    const selectiontexts::SelectedApps &selectedApps() const { return selectedApps_; }
    const ghostlist::Pending &selectedGhosts() const { return selectedGhosts_; }

    // Of a row; null where there is none.
    const RealInstalledApp *appAt(int row) const;
    const GhostApp *ghostAt(int row) const;

    /// What is in the panes; null ids for nothing.
    void setCurrentApp(const QUuid &id) { installed_.setCurrent(id); }
    void setCurrentGhost(const QUuid &id) { ghosts_.setCurrent(id); }

signals:
    void changed();
    void rowsWillChange(); ///< a list is about to show others, from its top
    void appsReplaced();   ///< by those of another scan
    void ghostsReplaced();

private:
    void observeService();
    void showInstalled();
    void showGhosts();
    void addUp();

    AppService &service_;
    QString searchText_;
    installedlist::SortOption sortBy_ = installedlist::SortOption::size;
    // Taken at each change, as they are read by many.
    selectiontexts::SelectedApps selectedApps_;
    ghostlist::Pending selectedGhosts_;
    qint64 totalSize_ = 0;
    IdentifiedRows<installedlist::Row> installed_;
    IdentifiedRows<ghostlist::Row> ghosts_;
};
