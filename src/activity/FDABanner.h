#pragma once

#include "activity/FDAService.h"

#include <QObject>

/// The banner at the head of a tool's screen: that folders could not be read, or that they can be after a restart.
/// Main thread.
class FDABanner final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString buttonText READ buttonText NOTIFY changed)
    Q_PROPERTY(QString buttonSymbol READ buttonSymbol NOTIFY changed)
    Q_PROPERTY(QString buttonTip READ buttonTip NOTIFY changed)
    Q_PROPERTY(bool canBeHidden READ canBeHidden NOTIFY changed)
    Q_PROPERTY(QString hideTip READ hideTip CONSTANT)

public:
    /// `context` is the tool's name.
    FDABanner(FDAService &access, QString context, QObject *parent = nullptr);

    bool isShown() const { return isGranted() || access_.shouldShowBanner(context_); }
    QString title() const;
    QString text() const;
    QString symbol() const;
    QString buttonText() const;
    QString buttonSymbol() const; ///< empty for none
    QString buttonTip() const;    ///< empty for none
    bool canBeHidden() const { return !isGranted(); }
    QString hideTip() const { return QStringLiteral("Hide for this session"); }

    /// The screen around it has appeared.
    void appear();
    Q_INVOKABLE void act(); ///< the button: to the settings, or the restart
    Q_INVOKABLE void hide();

signals:
    void changed();

private:
    bool isGranted() const { return access_.grantedAfterPrompt(); }

    FDAService &access_;
    const QString context_;
};
