#pragma once

#include "apps/ghosts/GhostApp.h"
#include "apps/screen/IdentifiedRows.h"

#include <QObject>

#include <optional>

/// The detail pane of one ghost, with its files. It keeps what it shows, also when a scan has made other records of it. Main
/// thread.
class GhostDetail final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString bundleID READ bundleID NOTIFY changed)
    Q_PROPERTY(bool looksInstalled READ looksInstalled NOTIFY changed)
    Q_PROPERTY(QString badgeText READ badgeText NOTIFY changed)
    Q_PROPERTY(QString badgeNote READ badgeNote NOTIFY changed)
    Q_PROPERTY(QString filesFigure READ filesFigure NOTIFY changed)
    Q_PROPERTY(QString categoriesFigure READ categoriesFigure NOTIFY changed)
    Q_PROPERTY(QString totalFigure READ totalFigure NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *categories READ categories CONSTANT)
    Q_PROPERTY(QAbstractItemModel *files READ files CONSTANT)
    Q_PROPERTY(bool hasTicked READ hasTicked NOTIFY changed)
    Q_PROPERTY(QString removeText READ removeText NOTIFY changed)

public:
    explicit GhostDetail(const QString &home);

    const std::optional<GhostApp> &ghost() const { return ghost_; }
    void show(const std::optional<GhostApp> &ghost);
    const AssociatedFile *fileAt(int row) const; ///< null where there is no such row

    QString name() const;
    QString bundleID() const;
    bool looksInstalled() const { return ghost_ && ghost_->looksInstalled; }
    QString badgeText() const;
    QString badgeNote() const;
    QString filesFigure() const;
    QString categoriesFigure() const;
    QString totalFigure() const;
    /// Rows: label, symbol, sizeText, share (of the total, 0 to 1); in the order in which they occur among the files.
    QAbstractItemModel *categories() { return &categories_; }
    /// Rows: see appfiles::roles.
    QAbstractItemModel *files() { return files_.model(); }
    bool hasTicked() const;
    QString removeText() const; ///< of what is ticked

    // The ticks of its files; the owner of the list takes them over (`ticksChanged`).
    void toggle(int row);
    void selectAll(bool isSelected);

signals:
    void changed();
    void ticksChanged();

private:
    struct Category
    {
        QString name;
        qint64 size = 0;
        qint64 total = 0;
    };

    std::vector<Category> categoriesOf(const GhostApp &ghost) const;

    std::optional<GhostApp> ghost_;
    RecordListModel<Category> categories_;
    IdentifiedRows<AssociatedFile> files_;
};
