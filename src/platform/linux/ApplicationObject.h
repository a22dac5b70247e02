#pragma once

#include <QByteArray>
#include <QDBusVirtualObject>

#include <functional>

/// The program on the session's bus: org.freedesktop.Application, whose Activate asks for the window. The
/// program takes no files and has no named actions, so the interface's other calls activate it as well.
class ApplicationObject final : public QDBusVirtualObject
{
public:
    /// The interface and its names of the activation token, the newer one first.
    static constexpr QLatin1StringView interface {
        "org.freedesktop.Application"
    };
    static constexpr QLatin1StringView tokenKey{"activation-token"};
    static constexpr QLatin1StringView startupIdKey{"desktop-startup-id"};

    explicit ApplicationObject(std::function<void(const QByteArray &token)> activate);

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    const std::function<void(const QByteArray &token)> activate_;
};
