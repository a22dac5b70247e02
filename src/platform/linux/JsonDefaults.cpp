#include "platform/linux/JsonDefaults.h"

#include "platform/linux/JsonSettingsFile.h"

JsonDefaults::JsonDefaults(QString path)
    : path_(std::move(path))
{
}

QVariant JsonDefaults::stored(const QString &key) const
{
    if (!values_)
        values_ = jsonsettings::read(path_).value_or(QVariantMap());
    return values_->value(key);
}

void JsonDefaults::store(const QString &key, const QVariant &value)
{
    change(key, value);
}

void JsonDefaults::erase(const QString &key)
{
    change(key, std::nullopt);
}

void JsonDefaults::change(const QString &key, std::optional<QVariant> value)
{
    unwritten_[key] = std::move(value);
    const auto onDisk = jsonsettings::read(path_);
    QVariantMap values = onDisk ? *onDisk : values_.value_or(QVariantMap());
    for (const auto &[changedKey, changed] : unwritten_) {
        if (changed)
            values.insert(changedKey, *changed);
        else
            values.remove(changedKey);
    }
    if (onDisk && jsonsettings::write(path_, values))
        unwritten_.clear();
    values_ = std::move(values);
}
