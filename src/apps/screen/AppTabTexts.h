#pragma once

#include "platform/KeyStyle.h"

#include <QObject>
#include <QString>

/// Those texts of the App Manager's screen that each of its tabs has of its own.
class AppTabTexts
{
    Q_GADGET
    Q_PROPERTY(QString rescanTip MEMBER rescanTip CONSTANT)
    Q_PROPERTY(QString exportTip MEMBER exportTip CONSTANT)
    Q_PROPERTY(QString scanning MEMBER scanning CONSTANT)
    Q_PROPERTY(QString paneTitle MEMBER paneTitle CONSTANT)
    Q_PROPERTY(QString paneText MEMBER paneText CONSTANT)

public:
    static AppTabTexts ofInstalled(KeyStyle keys);
    static AppTabTexts ofGhosts(KeyStyle keys);

    QString rescanTip;
    QString exportTip;
    QString scanning;
    QString paneTitle; ///< while nothing is selected
    QString paneText;
};
