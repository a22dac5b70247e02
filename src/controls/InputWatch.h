#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Sees each key and each click, wherever they go: a tooltip goes at them, and menu titles show their letters while Alt is
/// down. Takes nothing from anyone. Main thread.
class InputWatch final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isAltDown READ isAltDown NOTIFY isAltDownChanged)

public:
    /// Watches the whole application from here on.
    explicit InputWatch(QObject *parent = nullptr);

    bool isAltDown() const { return isAltDown_; }
    Q_INVOKABLE bool isButtonDown() const { return isButtonDown_; } ///< of the mouse

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void acted(); ///< a key or a button has gone down; it may come more than once for one of them
    void isAltDownChanged();

private:
    void setAltDown(bool isDown);

    bool isAltDown_ = false;
    bool isButtonDown_ = false;
};
