#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>

#include <functional>

/// A service on a message bus that keeps the calls that it gets and answers as a test wants it to.
class StandInService final : public QDBusVirtualObject
{
public:
    using Answer = std::function<QDBusMessage(const QDBusMessage &call)>;

    /// Takes `name` on the bus, with `path` and all paths below it. Without an answer each call gets an empty reply.
    StandInService(QDBusConnection bus, const QString &name, const QString &path, Answer answer = {})
        : bus_(std::move(bus))
        , name_(name)
        , path_(path)
        , answer_(std::move(answer))
    {
        bus_.registerVirtualObject(path_, this, QDBusConnection::SubPath);
        bus_.registerService(name_);
    }
    ~StandInService() override
    {
        bus_.unregisterService(name_);
        bus_.unregisterObject(path_, QDBusConnection::UnregisterTree);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &connection) override
    {
        calls.append(call);
        connection.send(answer_ ? answer_(call) : call.createReply());
        return true;
    }

    QList<QDBusMessage> calls;

private:
    QDBusConnection bus_;
    const QString name_;
    const QString path_;
    const Answer answer_;
};
