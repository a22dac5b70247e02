#pragma once

#include <QObject>

/// Whether the desktop wants dark or light windows. Dark until the desktop says otherwise. Main thread.
class Appearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)

public:
    bool isDark() const { return isDark_; }

    void setDark(bool isDark)
    {
        if (isDark_ == isDark)
            return;
        isDark_ = isDark;
        emit isDarkChanged();
    }

signals:
    void isDarkChanged();

private:
    bool isDark_ = true;
};
