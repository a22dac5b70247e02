#pragma once

#include <QString>

#include <optional>

/// What the machine and the system say of themselves. Safe from any thread.
class SystemInfo
{
public:
    /// The volume that holds "/".
    struct Volume
    {
        qint64 total = 0;            ///< bytes
        qint64 available = 0;        ///< bytes that the user may still fill
        std::optional<QString> name; ///< none when the volume has no name
    };

    struct Version
    {
        int major = 0;
        int minor = 0;
        int patch = 0;
    };

    SystemInfo() = default;
    SystemInfo(const SystemInfo &) = delete;
    SystemInfo &operator=(const SystemInfo &) = delete;
    virtual ~SystemInfo() = default;

    /// None when the query fails. Cheap enough for the main thread.
    virtual std::optional<Volume> rootVolume() const = 0;

    /// The machine's model; none when it can't be told.
    virtual std::optional<QString> hardwareModel() const = 0;

    /// The identifier of the user's locale, as "en_US".
    virtual QString localeIdentifier() const = 0;

    /// The system's version.
    virtual Version systemVersion() const = 0;
};
