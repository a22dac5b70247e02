#pragma once

#include "platform/linux/StandInService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariant>

#include <optional>

/// The desktop portal's settings. Each test decides what it tells and when.
class StandInSettingsPortal
{
public:
    /// Takes the portal's name on the bus. `scheme` is what it answers; none leaves its callers waiting.
    explicit StandInSettingsPortal(const QDBusConnection &bus, const std::optional<QVariant> &scheme);

    /// Tells of a change, as the portal does to all.
    void tell(const QVariant &scheme);
    void tell(const QString &group, const QString &key, const QVariant &value);

    /// Tells of a change as no portal should: with these arguments as they stand.
    void tellBadly(const QVariantList &arguments);

    /// Waits for so many questions.
    bool waitForCalls(int count) const;
    const QList<QDBusMessage> &calls() const { return service_.calls; }

    /// Answers the question of that number, which waits since.
    void answer(int call, const QVariant &scheme);

private:
    QDBusConnection bus_;
    StandInService service_;
};
