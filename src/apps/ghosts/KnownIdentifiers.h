#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <utility>

/// Asks the system for applications by their identifiers, and for each identifier once only: the shorter forms of one turn
/// up in many entries. Lives as long as one scan, since applications come and go.
class KnownIdentifiers
{
public:
    /// True when the system knows an application under exactly this identifier, at a path that exists.
    using Lookup = std::function<bool(const QString &identifier)>;

    explicit KnownIdentifiers(Lookup lookup)
        : lookup_(std::move(lookup))
    {
    }

    /// True when an application is known under the candidate or a shorter form of it: without what stands behind a
    /// hyphen of its last component, without this component, and so on down to three components. False for fewer.
    bool resolves(const QString &candidate);

private:
    bool isKnown(const QString &identifier);

    Lookup lookup_;
    QHash<QString, bool> answers_;
};
