#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>

/// Carries named notifications from whoever posts them to whoever observes them, without either knowing the
/// other. Main thread only; observers run inside the call that posts, in the order in which they came.
class NotificationCenter final : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<void(const QVariant &object)>;

    /// Tells every observer of `name`. `object` is what the notification is about; most carry none.
    void post(const QString &name, const QVariant &object = {});

    /// Runs `handler` at each post of `name` for as long as `owner` lives.
    void observe(const QString &name, QObject *owner, Handler handler);

signals:
    void posted(const QString &name, const QVariant &object);
};
