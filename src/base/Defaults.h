#pragma once

#include "base/NotificationCenter.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <functional>
#include <optional>

/// The user's settings: values by key, with registered values in the place of what was never set. Read at the
/// point of use, so that a change takes effect at its next read. This class keeps them in memory; a system's
/// own store derives from it. Main thread only.
class Defaults
{
public:
    Defaults() = default;
    Defaults(const Defaults &) = delete;
    Defaults &operator=(const Defaults &) = delete;
    virtual ~Defaults() = default;

    /// What a read gives for a key without a stored value. Not stored itself.
    void registerDefaults(const QVariantMap &values);

    /// The stored value, else the registered one, else an invalid one.
    QVariant value(const QString &key) const;

    /// False for a missing key and for a value that is no boolean.
    bool boolean(const QString &key) const;

    /// 0 for a missing key and for a value that is no whole number of 64 bits.
    qint64 integer(const QString &key) const;

    /// The same, with none in those cases, for who has a value of its own to fall back on.
    std::optional<qint64> integerIfAny(const QString &key) const;

    /// The list of texts under a key; none for a missing key and for a value that is anything else, a list with one
    /// value of another type included.
    std::optional<QStringList> texts(const QString &key) const;

    /// Stores a boolean, a number, a text, a list of texts, or a list or map of these. Written through before the call
    /// returns.
    void set(const QString &key, const QVariant &value);

    /// Takes the stored value away, which brings the registered one back.
    void remove(const QString &key);

    /// Runs `changed` at each `set` and `remove` of this process that makes a read of `key` give another value, inside
    /// the call, for as long as `owner` lives. Any number of observers may watch a key.
    void observe(const QString &key, QObject *owner, std::function<void()> changed);

protected:
    virtual QVariant stored(const QString &key) const;
    virtual void store(const QString &key, const QVariant &value);
    virtual void erase(const QString &key);

private:
    void tellOfChange(const QString &key, const QVariant &before);

    NotificationCenter changes_;
    QVariantMap registered_;
    QVariantMap memory_;
};
