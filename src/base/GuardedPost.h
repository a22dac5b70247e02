#pragma once

#include "base/MainQueue.h"

#include <QPointer>

#include <memory>
#include <utility>

/// Ways onto the main queue for whoever may be gone by the time its block's turn comes: a screen that was left, a test's
/// service. The owner is looked at on the main thread only, so a worker may carry the pointer but not read it.
namespace guarded {

/// Posts `block`, which takes the owner, and drops it where the owner has gone meanwhile. Any thread.
template<typename Owner, typename Block>
void post(MainQueue &main, QPointer<Owner> owner, Block block)
{
    main.post([owner = std::move(owner), block = std::move(block)] {
        if (owner)
            block(*owner);
    });
}

/// The same no earlier than `seconds` from now.
template<typename Owner, typename Block>
void postAfter(MainQueue &main, double seconds, QPointer<Owner> owner, Block block)
{
    main.postAfter(seconds, [owner = std::move(owner), block = std::move(block)] {
        if (owner)
            block(*owner);
    });
}

/// Runs a command of a screen model in a later turn of the main loop, outside the click that asked for it, and keeps the
/// model until the command has ended. For every command that lets the loop turn while it waits, such as a move to the
/// Trash: another screen may be chosen from within, and neither the model nor what the command works on may go then.
/// `Model` is owned through std::shared_ptr, else the command would never run, and is
/// std::enable_shared_from_this. Main thread.
template<typename Model, typename Command>
void runLater(MainQueue &main, Model &model, Command command)
{
    Q_ASSERT(!model.weak_from_this().expired());
    main.post([weak = model.weak_from_this(), command = std::move(command)] {
        if (const auto held = weak.lock())
            command(*held);
    });
}

} // namespace guarded
