#include "common/AgePillView.h"

#include "platform/Platform.h"

#include <utility>

namespace {
constexpr double tickPeriod = 30; // seconds
}

AgePillView::AgePillView(const Platform &platform, std::function<double()> cacheLifetime)
    : platform_(platform)
    , cacheLifetime_(std::move(cacheLifetime))
    , now_(platform.clock.now())
    , ticker_(platform.mainQueue)
{
    ticker_.start(tickPeriod, [this] { moveOn(); });
}

void AgePillView::set(std::optional<Date> date, bool isScanning)
{
    date_ = date;
    isScanning_ = isScanning;
    moveOn();
}

void AgePillView::moveOn()
{
    now_ = platform_.clock.now();
    emit changed();
}
