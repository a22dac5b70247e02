#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// Where the controls get pictures from that lie on the disk: a provider of that name, which the window's engine has, reads
/// them off the main thread. Pure.
class Pictures final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    static const QString provider;

    /// The address of a picture by its key, which is a path and so may hold any byte; empty for no key.
    Q_INVOKABLE static QString address(const QString &key);

    /// The key again, of what follows the provider's name in an address.
    static QString keyOf(const QString &id);
};
