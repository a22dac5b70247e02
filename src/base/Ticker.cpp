#include "base/Ticker.h"

struct Ticker::Run
{
    MainQueue &main;
    double period = 0;
    MainQueue::Block block;
};

Ticker::Ticker(MainQueue &main)
    : main_(main)
{
}

Ticker::~Ticker() = default;

void Ticker::start(double period, MainQueue::Block block)
{
    run_ = std::make_shared<Run>(Run{main_, period, std::move(block)});
    schedule(run_);
}

void Ticker::stop()
{
    run_.reset();
}

void Ticker::schedule(const std::shared_ptr<Run> &run)
{
    run->main.postAfter(run->period, [weak = std::weak_ptr<Run>(run)] {
        const std::shared_ptr<Run> alive = weak.lock();
        if (!alive)
            return;
        schedule(alive); // first, so that the block's own stop() is the last word
        alive->block();
    });
}
