#pragma once

#include <QString>

#include <vector>

/// What the checks of the source look at in one C++ file: its preprocessor directives.
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
