#include "base/Throttle.h"

#include <utility>

struct Throttle::State
{
    MainQueue::Block block;
    bool isDue = false;
};

Throttle::Throttle(MainQueue &main, double period, MainQueue::Block block)
    : main_(main)
    , period_(period)
    , state_(std::make_shared<State>(State{std::move(block), false}))
{
}

void Throttle::request()
{
    if (std::exchange(state_->isDue, true))
        return;
    main_.postAfter(period_, [weak = std::weak_ptr<State>(state_)] {
        const std::shared_ptr<State> alive = weak.lock();
        if (!alive)
            return;
        alive->isDue = false; // first, so that the block may request again
        alive->block();
    });
}
