#include "platform/linux/JsonDefaults.h"

#include "platform/linux/JsonSettingsFile.h"

JsonDefaults::JsonDefaults(QString path)
    : path_(std::move(path))
{
}

JsonDefaults::~JsonDefaults() = default;

QVariant JsonDefaults::stored(const QString &key) const
{
    QSettings *settings = file();
    return settings ? settings->value(key) : Defaults::stored(key);
}

void JsonDefaults::store(const QString &key, const QVariant &value)
{
    QSettings *settings = file();
    if (!settings) {
        Defaults::store(key, value);
        return;
    }
    settings->setValue(key, value);
    writeThrough(*settings);
}

void JsonDefaults::erase(const QString &key)
{
    QSettings *settings = file();
    if (!settings) {
        Defaults::erase(key);
        return;
    }
    settings->remove(key);
    writeThrough(*settings);
}

QSettings *JsonDefaults::file() const
{
    if (!isOpened_ && jsonsettings::moveAsideIfDamaged(path_))
        file_ = std::make_unique<QSettings>(path_, jsonsettings::format());
    isOpened_ = true;
    return file_.get();
}

void JsonDefaults::writeThrough(QSettings &settings)
{
    // The write reads the file again for what other processes have changed, and would replace one that has been
    // damaged since.
    if (!jsonsettings::moveAsideIfDamaged(path_))
        return;
    jsonsettings::clearStaleLock(path_);
    settings.sync();
}
