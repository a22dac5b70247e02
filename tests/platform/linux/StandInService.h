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

    /// Takes `name` on the bus, with `path` and all paths below it. Without a function each call gets an empty reply; a
    /// message of no type is none.
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
        const QDBusMessage answer = answer_ ? answer_(call) : call.createReply();
        if (answer.type() != QDBusMessage::InvalidMessage)
            connection.send(answer);
        return true;
    }

    QList<QDBusMessage> calls;

private:
    QDBusConnection bus_;
    const QString name_;
    const QString path_;
    const Answer answer_;
};
