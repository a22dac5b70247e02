#pragma once

#include <QString>

#include <optional>

/// Which links a walk that looks through links may enter: those that lead to a folder inside its root, so that a walk on
/// whose word something is removed never leaves the folder it was given, and not those that lead to a folder in which they
/// lie themselves, which would go round in a circle.
class WalkBounds
{
public:
    /// Of a walk that begins at `root`, which may be a link itself.
    explicit WalkBounds(const QString &root);

    /// Asks the disk. False for a link that leads nowhere or to no folder as well.
    bool mayEnter(const QString &link) const;

private:
    std::optional<QString> root_; // without a link on the way
};
