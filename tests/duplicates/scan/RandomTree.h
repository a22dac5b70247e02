#pragma once

#include "support/TempHome.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <random>
#include <vector>

/// A tree of files that a duplicate scan has trouble with, the same one for the same seed.
class RandomTree
{
public:
    /// Below a new folder of its own. Large files are made in some trees only, and so are circles of links.
    explicit RandomTree(unsigned seed);

    const QString &root() const { return temp_.path(); }
    const QStringList &folders() const { return folders_; } ///< absolute; the root is the first
    const QStringList &files() const { return files_; }

    /// A whole number from 0 to `most`.
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

    bool chance(int percent) { return upTo(99) < percent; }

    template<typename List>
    typename List::value_type any(const List &list)
    {
        return list.at(static_cast<typename List::size_type>(upTo(static_cast<int>(list.size()) - 1)));
    }

private:
    void makeFolder(const QString &relative, int depth);
    void makeFiles(const QString &relative, int most); ///< at least half as many
    void makeLinks();
    QString newName(const QString &folder);
    QByteArray content();

    TempHome temp_;
    std::mt19937 random_;
    bool hasLargeFiles_;
    bool hasCircles_;
    QStringList folders_;
    QStringList files_;
    QStringList relativeFolders_;
};
