#pragma once

#include "base/Error.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>

/// The system's Trash: what goes there can be taken back by the user. Both operations only report what the
/// system said; whether an item is really gone is for the caller to look at. Safe from any thread.
class Recycler
{
public:
    struct Result
    {
        /// From each moved path, as it was given, to its place in the Trash; an empty text where the system
        /// doesn't tell the place.
        std::map<QString, QString> moved;
        std::optional<Error> error; ///< of the first item that could not be moved
    };
    using Completion = std::function<void(Result)>;

    /// What an administrator's move came to, when it failed.
    struct AdminFailure
    {
        bool wasConstructed = true;     ///< false: the move could not even be put into the system's words
        std::optional<int> number = {}; ///< `cancelled`, or the system's; none when there is no number
        std::optional<QString> message = {}; ///< for the user; none when the system gave no text
    };

    /// The number of a move that the user called off in the password dialog.
    static constexpr int cancelled = -128;

    Recycler() = default;
    Recycler(const Recycler &) = delete;
    Recycler &operator=(const Recycler &) = delete;
    virtual ~Recycler() = default;

    /// Moves items into the Trash and returns at once. A link goes itself, never what it leads to. Goes on
    /// after an item that can't be moved. `completion` runs exactly once, on a thread of its own, or
    /// inside the call where none can be started, and may outlive this object.
    virtual void recycle(const QStringList &paths, Completion completion) = 0;

    /// Moves one item into the user's Trash with an administrator's permissions, for which the system asks
    /// with a dialog of its own. Blocks for as long as that stands; never on the main thread. None: success
    /// was reported.
    virtual std::optional<AdminFailure> moveToTrashAsAdministrator(const QString &path) = 0;

    /// Removes for good what lies in the Trash, links themselves and never what they lead to. `trash` is the folder of
    /// the trashed items (one of Locations::trash). With an item directly in it goes what the Trash keeps of it; what
    /// lies inside one goes alone. Anything else is refused, and all where the Trash is a link. Goes on after what can't be removed, and then throws Error
    /// with the first failure. Blocks.
    virtual void removeForGood(const QStringList &items, const QString &trash) = 0;
};
