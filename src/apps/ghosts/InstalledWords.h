#pragma once

#include "apps/ghosts/WordParts.h"

#include <QSet>
#include <QString>

#include <set>

/// The names and identifiers of what is installed, for questions about entries. All of it is compared in lower case;
/// what is asked for is in its comparable form already (`ghostnames::comparable`).
class InstalledWords
{
public:
    /// Of an application: what it is called, and what its bundle's file is called without the ending.
    void addName(const QString &name);
    void addIdentifier(const QString &identifier);

    bool hasName(const QString &name) const { return names_.contains(name); }
    bool hasIdentifier(const QString &identifier) const { return identifiers_.contains(identifier); }

    /// True for a helper of what is installed, as "com.example.app.updater" is one of "com.example.app", and for what an
    /// installed helper belongs to.
    bool hasRelativeOf(const QString &identifier) const;

    /// True for "com.example" where an identifier "com.example.…" of at least three components is installed.
    bool hasVendor(const QString &vendor) const { return vendors_.contains(vendor); }

    /// True when a name, or an identifier, contains the word. None contains the empty one.
    bool isInName(QStringView word) const { return nameParts_.contains(word); }
    bool isInIdentifier(QStringView word) const { return identifierParts_.contains(word); }

    /// True when a name is part of the text. One that is empty is part of none: it would spare every entry there is.
    bool hasNameIn(const QString &text) const;

private:
    QSet<QString> names_;
    std::set<QString> identifiers_; // in order, so that those which begin alike stand together
    QSet<QString> vendors_;
    WordParts nameParts_;
    WordParts identifierParts_;
};
