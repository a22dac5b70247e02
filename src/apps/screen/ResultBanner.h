#pragma once

#include "apps/uninstall/UninstallResult.h"
#include "base/MainQueue.h"

#include <QObject>

#include <optional>

/// What the App Manager tells of a removal, over its lists. Main thread.
class ResultBanner final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isUp READ isUp NOTIFY changed)
    Q_PROPERTY(bool isSuccess READ isSuccess NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(bool hasRetry READ hasRetry NOTIFY changed)

public:
    explicit ResultBanner(MainQueue &mainQueue);

    const std::optional<UninstallResult> &result() const { return result_; }
    bool isUp() const { return result_.has_value(); }
    bool isSuccess() const { return result_ && result_->success; }
    QString title() const;
    QString detail() const;
    bool hasRetry() const
    {
        return result_ && result_->retryableApp;
    } ///< and may be shown in the file viewer

    /// Takes the place of an older one, and stays until something clears it.
    void show(UninstallResult result);
    /// The same for some seconds. What stands there then goes, also a newer one.
    void show(UninstallResult result, double seconds);
    void clear();

signals:
    void changed();

private:
    MainQueue &mainQueue_;
    std::optional<UninstallResult> result_;
};
