#pragma once

#include "StandInService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

#include <optional>

/// The desktop portal's panels. Each test decides when and how it answers.
class StandInPanelPortal
{
public:
    explicit StandInPanelPortal(const QDBusConnection &bus);

    /// The answer to the latest request, as the portal's own signal.
    void respond(uint code, const QStringList &addresses);

    /// True once there is a request.
    bool waitForRequest() const;

    const QList<QDBusMessage> &calls() const { return service_.calls; }

    bool namesItsOwnPath = false;      // passes over the caller's wish for the path of its request
    std::optional<uint> immediateCode; // answers with it before the call returns
    bool isLate = false;               // the caller hears that nobody answered, and then it does

    // Of the latest request.
    QString requestPath;
    QString title;
    QVariantMap options;

    QStringList closed; // paths of the requests that were taken back

private:
    QDBusMessage take(const QDBusMessage &call);

    QDBusConnection bus_;
    StandInService service_;
};
