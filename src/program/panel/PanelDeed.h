#pragma once

#include "base/LatestQuestion.h"
#include "platform/Platform.h"

#include <QObject>

#include <functional>

/// What a command of the panel asks of the disk before it is done, one at a time. Main thread.
class PanelDeed final : public QObject
{
public:
    enum class Kind {
        none,
        save, ///< the look at what stands there already
        makeFolder,
    };
    using Outcome = std::function<void()>;

    /// `changed` tells of what is begun, slow or dropped. `platform` outlives it.
    PanelDeed(const Platform &platform, std::function<void()> changed);

    Kind kind() const { return kind_; }

    /// The disk has not answered for so long that this should be said.
    bool isSlow() const { return isSlow_; }

    /// `askDisk` runs on a worker; what it gives runs on the main thread, unless the deed is dropped or overtaken by then.
    void begin(Kind kind, std::function<Outcome()> askDisk);
    void drop();

private:
    const Platform &platform_;
    const std::function<void()> changed_;
    Kind kind_ = Kind::none;
    bool isSlow_ = false;
    LatestQuestion question_;
};
