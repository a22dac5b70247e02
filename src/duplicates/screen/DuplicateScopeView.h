#pragma once

#include "base/RecordListModel.h"
#include "duplicates/DuplicateService.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <vector>

/// The panel of the Duplicate Finder that says what a scan looks at: the folders, the rules that keep it out of some, and
/// the smallest file. Main thread.
class DuplicateScopeView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel *scanPaths READ scanPaths CONSTANT)
    Q_PROPERTY(QAbstractItemModel *rules READ rules CONSTANT)
    Q_PROPERTY(bool hasScanPaths READ hasScanPaths NOTIFY scopeChanged)
    Q_PROPERTY(bool canReset READ canReset NOTIFY scopeChanged)
    Q_PROPERTY(QStringList minSizeLabels READ minSizeLabels CONSTANT)
    Q_PROPERTY(int minSizeIndex READ minSizeIndex NOTIFY minSizeChanged)
    Q_PROPERTY(QString minSizeText READ minSizeText NOTIFY minSizeChanged)

public:
    /// A choice of the smallest file.
    struct MinSizeOption
    {
        QString label;
        qint64 bytes = 0;
    };

    DuplicateScopeView(const Platform &platform, DuplicateService &service, QObject *parent = nullptr);

    static const std::vector<MinSizeOption> &minSizeOptions();

    /// Rows: pathText.
    QAbstractItemModel *scanPaths() { return &scanPathRows_; }
    /// Rows: ruleText, symbol, hint (empty for a rule of the user's own), isOverridden, canBeRemoved.
    QAbstractItemModel *rules() { return &ruleRows_; }
    bool hasScanPaths() const { return !service_.scanPaths().isEmpty(); }
    bool canReset() const { return !service_.isScopeAsAtStart(); }
    QStringList minSizeLabels() const;
    int minSizeIndex() const;    ///< -1 where the setting is none of the choices
    QString minSizeText() const; ///< the choice, else the setting itself

    Q_INVOKABLE void addFolder();
    /// What the desktop dropped; those that are no folders are passed over.
    Q_INVOKABLE void dropFolders(const QList<QUrl> &urls);
    Q_INVOKABLE void changeScanPath(int row);
    Q_INVOKABLE void removeScanPath(int row);
    Q_INVOKABLE void addExclusion();
    Q_INVOKABLE void removeExclusion(int row);
    Q_INVOKABLE void resetToDefaults();
    Q_INVOKABLE void chooseMinSize(int index);

signals:
    void scopeChanged();
    void minSizeChanged();

private:
    void takeScope();
    QString ruleText(const QString &rule) const;
    QString ruleSymbol(const QString &rule) const;
    QString ruleHint(const QString &rule) const;
    bool canBeRemoved(const QString &rule) const;
    void chooseFolder(const QString &message, const QString &start,
                      const std::function<void(DuplicateService &service, const QString &folder)> &use);

    const Platform &platform_;
    DuplicateService &service_;
    RecordListModel<QString> scanPathRows_;
    RecordListModel<QString> ruleRows_;
};
