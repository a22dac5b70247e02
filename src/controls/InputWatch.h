#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Sees each key and each click, wherever they go: a tooltip goes at them, and menu titles show their letters while Alt is
/// down. It tells besides what has brought the keyboard to where it is. Takes nothing from anyone. Main thread.
class InputWatch final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isAltDown READ isAltDown NOTIFY isAltDownChanged)
    Q_PROPERTY(bool isFocusByKey READ isFocusByKey NOTIFY isFocusByKeyChanged)

public:
    /// Watches the whole application from here on.
    explicit InputWatch(QObject *parent = nullptr);

    bool isAltDown() const { return isAltDown_; }
    /// Whether a key has brought the keyboard to where it is now: Tab, or a key that opened what is there. It is not so where
    /// a click did, and where a popup or another window has given it back. Told before the item learns that it has the focus.
    bool isFocusByKey() const { return isFocusByKey_; }
    Q_INVOKABLE bool isButtonDown() const { return isButtonDown_; } ///< of the mouse
    Q_INVOKABLE bool wasKeyLast() const { return wasKeyLast_; } ///< rather than a click: what was used last

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void acted(); ///< a key or a button has gone down; it may come more than once for one of them
    void isAltDownChanged();
    void isFocusByKeyChanged();

private:
    void setAltDown(bool isDown);
    void setFocusByKey(bool isByKey);

    bool isAltDown_ = false;
    bool isFocusByKey_ = false;
    bool wasKeyLast_ = false; // a key went down since the last button did
    bool isButtonDown_ = false;
};
