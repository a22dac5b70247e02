#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// What the checks of the source look at in one C++ file.
struct SourceFile
{
    struct Directive
    {
        int line = 0;
        QString name; ///< "include", "ifdef"
        QString rest; ///< what stands behind the name
    };

    QString path; ///< relative to the root of the tree
    std::vector<Directive> directives;
    QString code; ///< without comments and without what stands in quotes

    /// The classes that the file declares with a body.
    QStringList declaredClasses() const;

    /// The classes that the file declares with a body, and those of which it defines a member.
    QStringList classes() const;

    /// True when the program starts in this file.
    bool isEntry() const;

    /// The paths that the file includes in quotes, each with its line.
    struct Include
    {
        int line = 0;
        QString path;
    };
    std::vector<Include> includes() const;

    /// The C++ files at and below `root`, by path.
    static std::vector<SourceFile> allBelow(const QString &root);
};
