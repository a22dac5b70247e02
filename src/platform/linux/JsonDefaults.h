#pragma once

#include "base/Defaults.h"

#include <QSettings>

#include <memory>

/// The user's settings in a JSON object in a file, which keeps the types of its values. Nothing touches the disk
/// before the first read or write. A file that can't be read as settings is moved aside to "{file}.damaged",
/// so that nothing in it is lost; where the file can't be written, values live until the program ends.
class JsonDefaults final : public Defaults
{
public:
    /// `path` is absolute. Folders above it that are missing are made at the first write.
    explicit JsonDefaults(QString path);
    ~JsonDefaults() override;

protected:
    QVariant stored(const QString &key) const override;
    void store(const QString &key, const QVariant &value) override;
    void erase(const QString &key) override;

private:
    QSettings *file() const;
    void writeThrough(QSettings &settings);

    const QString path_;
    mutable bool isOpened_ = false;
    mutable std::unique_ptr<QSettings>
        file_; // null before the first use, and while the file is not ours to use
};
