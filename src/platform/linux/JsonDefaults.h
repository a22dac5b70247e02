#pragma once

#include "base/Defaults.h"

#include <map>

/// The user's settings in a JSON object in a file, which keeps the types of its values. Nothing touches the disk
/// before the first read or write. A file that can't be read as settings is moved aside to "{file}.damaged",
/// so that nothing in it is lost; where the file can't be written, values live until the program ends. Each write reads
/// the file anew, so that what another process has stored before stays, and is seen from then on. There is no lock between
/// the reading and the writing: of two processes that write at the same instant, one loses what it stored.
class JsonDefaults final : public Defaults
{
public:
    /// `path` is absolute. Folders above it that are missing are made at the first write.
    explicit JsonDefaults(QString path);

protected:
    QVariant stored(const QString &key) const override;
    void store(const QString &key, const QVariant &value) override;
    void erase(const QString &key) override;

private:
    void change(const QString &key, std::optional<QVariant> value);

    const QString path_;
    mutable std::optional<QVariantMap> values_; // none before the first use
    /// What could not be written yet; no value for a key that was removed.
    std::map<QString, std::optional<QVariant>> unwritten_;
};
