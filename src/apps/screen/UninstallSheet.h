#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "apps/screen/IdentifiedRows.h"

#include <QObject>

#include <functional>
#include <optional>

/// The question before one application goes, with the list of its files, each of which may stay. The ticks are of the
/// question's own and go with it. Main thread.
class UninstallSheet final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isUp READ isUp NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *files READ files CONSTANT)
    Q_PROPERTY(bool hasFiles READ hasFiles NOTIFY changed)
    Q_PROPERTY(QString totalText READ totalText NOTIFY changed)
    Q_PROPERTY(QString confirmText READ confirmText NOTIFY changed)
    Q_PROPERTY(QList<QString> confirmLabels READ confirmLabels CONSTANT)

public:
    /// `confirmed` is what a confirmation sets going.
    UninstallSheet(const QString &home, std::function<void()> confirmed);

    bool isUp() const { return isUp_; }
    bool isBusy() const { return isBusy_; } ///< the removal runs: nothing may be changed, and the sheet stays
    QString title() const;
    /// Rows: see appfiles::roles.
    QAbstractItemModel *files() { return rows_.model(); }
    bool hasFiles() const { return !files_.empty(); }
    QString totalText() const; ///< size of the bundle and of what is ticked
    QString confirmText() const;
    QStringList confirmLabels() const; ///< all that it may read, so that its button keeps one width

    const std::optional<RealInstalledApp> &app() const { return app_; }
    const std::vector<AssociatedFile> &associatedFiles() const { return files_; }

    void ask(const RealInstalledApp &app);
    void setBusy(bool isBusy);
    void close();

    Q_INVOKABLE void cancel();
    Q_INVOKABLE void confirm();
    Q_INVOKABLE void toggle(int row);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void selectNone();

signals:
    void changed();

private:
    bool canChoose() const { return isUp_ && !isBusy_; }
    void tickAll(bool isSelected);

    const std::function<void()> confirmed_;
    bool isUp_ = false;
    bool isBusy_ = false;
    std::optional<RealInstalledApp> app_; // stays for a sheet that fades away
    std::vector<AssociatedFile> files_;
    IdentifiedRows<AssociatedFile> rows_;
};
