#pragma once

#include <QSet>
#include <QString>

/// The names and identifiers of what is installed, for questions about entries. All of it is compared in lower case; what is asked
/// for is in its comparable form already (`ghostnames::comparable`).
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
    bool hasVendor(QStringView vendor) const { return vendors_.contains(vendor.toString()); }

    /// True when a name, or an identifier, contains the word. None contains the empty one.
    bool isInName(QStringView word) const;
    bool isInIdentifier(QStringView word) const;

    /// True when a name is part of the text. One that is empty is part of none: it would spare every entry there is.
    bool hasNameIn(const QString &text) const;

private:
    QSet<QString> names_;
    QSet<QString> identifiers_;
    QSet<QString> ancestors_; // "com.example" and "com" of "com.example.app"
    QSet<QString> vendors_;
    // All of them, one behind the other with what stands in no file's name in between: one search goes through all.
    QString allNames_;
    QString allIdentifiers_;
};
