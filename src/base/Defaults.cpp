#include "base/Defaults.h"

#include <cmath>
#include <utility>

namespace {

bool isInteger(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return true;
    case QMetaType::Double: {
        // A store without integers gives whole numbers back as doubles. Both bounds are exact as doubles.
        const double number = value.toDouble();
        return number == std::trunc(number) && number >= -0x1p63 && number < 0x1p63;
    }
    default:
        return false;
    }
}

} // namespace

void Defaults::registerDefaults(const QVariantMap &values)
{
    registered_.insert(values);
}

QVariant Defaults::value(const QString &key) const
{
    const QVariant own = stored(key);
    return own.isValid() ? own : registered_.value(key);
}

bool Defaults::boolean(const QString &key) const
{
    const QVariant found = value(key);
    return found.typeId() == QMetaType::Bool && found.toBool();
}

qint64 Defaults::integer(const QString &key) const
{
    return integerIfAny(key).value_or(0);
}

std::optional<qint64> Defaults::integerIfAny(const QString &key) const
{
    const QVariant found = value(key);
    if (!isInteger(found))
        return std::nullopt;
    // Not by toLongLong, which rounds doubles by adding a half and so misses odd ones from 2^52 on.
    return found.typeId() == QMetaType::Double ? static_cast<qint64>(found.toDouble()) : found.toLongLong();
}

std::optional<QStringList> Defaults::texts(const QString &key) const
{
    const QVariant found = value(key);
    if (found.typeId() != QMetaType::QVariantList && found.typeId() != QMetaType::QStringList)
        return std::nullopt;
    QStringList texts;
    const QVariantList values = found.toList();
    for (const QVariant &each : values) {
        if (each.typeId() != QMetaType::QString)
            return std::nullopt;
        texts << each.toString();
    }
    return texts;
}

void Defaults::set(const QString &key, const QVariant &newValue)
{
    const QVariant before = value(key);
    // As a store gives it back, so that the same list set again is no change.
    const bool isTexts = newValue.typeId() == QMetaType::QStringList;
    store(key, isTexts ? QVariant(newValue.toList()) : newValue);
    tellOfChange(key, before);
}

void Defaults::remove(const QString &key)
{
    const QVariant before = value(key);
    erase(key);
    tellOfChange(key, before);
}

void Defaults::observe(const QString &key, QObject *owner, std::function<void()> changed)
{
    changes_.observe(key, owner, [changed = std::move(changed)](const QVariant &) { changed(); });
}

void Defaults::tellOfChange(const QString &key, const QVariant &before)
{
    if (value(key) != before)
        changes_.post(key);
}

QVariant Defaults::stored(const QString &key) const
{
    return memory_.value(key);
}

void Defaults::store(const QString &key, const QVariant &value)
{
    memory_.insert(key, value);
}

void Defaults::erase(const QString &key)
{
    memory_.remove(key);
}
