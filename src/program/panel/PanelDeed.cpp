#include "program/panel/PanelDeed.h"

#include <utility>

namespace {

constexpr double briefDeed = 0.3; // seconds; what is done within needs no word

} // namespace

PanelDeed::PanelDeed(const Platform &platform, std::function<void()> changed)
    : platform_(platform)
    , changed_(std::move(changed))
{
}

void PanelDeed::begin(Kind kind, std::function<Outcome()> askDisk)
{
    kind_ = kind;
    isSlow_ = false;
    const LatestQuestion::Token token = question_.ask();
    platform_.workQueue.post(
        WorkPriority::userInitiated,
        [askDisk = std::move(askDisk), token, self = QPointer(this), &main = platform_.mainQueue] {
            token.answer(main, self, [outcome = askDisk()](PanelDeed &deed) {
                deed.drop();
                outcome();
            });
        });
    guarded::postAfter(platform_.mainQueue, briefDeed, QPointer(this), [token](PanelDeed &deed) {
        if (token.isUnwanted())
            return;
        deed.isSlow_ = true;
        deed.changed_();
    });
    changed_();
}

void PanelDeed::drop()
{
    question_.drop();
    kind_ = Kind::none;
    isSlow_ = false;
    changed_();
}
