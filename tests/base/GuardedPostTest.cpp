#include "base/GuardedPost.h"

#include "support/SteppedQueues.h"

#include <QObject>

#include <memory>

#include <gtest/gtest.h>

namespace {

struct CountingModel : QObject, std::enable_shared_from_this<CountingModel>
{
    int calls = 0;
};

} // namespace

TEST(GuardedPost, runsItsBlockOnTheOwner)
{
    SteppedMainQueue queue;
    CountingModel model;
    guarded::post(queue, QPointer(&model), [](CountingModel &owner) { ++owner.calls; });
    EXPECT_EQ(model.calls, 0);
    queue.run();
    EXPECT_EQ(model.calls, 1);
}

TEST(GuardedPost, dropsTheBlockWhenTheOwnerHasGone)
{
    SteppedMainQueue queue;
    auto model = std::make_unique<CountingModel>();
    int calls = 0;
    guarded::post(queue, QPointer(model.get()), [&calls](CountingModel &) { ++calls; });
    guarded::postAfter(queue, 1, QPointer(model.get()), [&calls](CountingModel &) { ++calls; });
    model.reset();
    queue.run();
    queue.advance(2);
    EXPECT_EQ(calls, 0);
}

TEST(GuardedPost, waitsForItsTime)
{
    SteppedMainQueue queue;
    CountingModel model;
    guarded::postAfter(queue, 2, QPointer(&model), [](CountingModel &owner) { ++owner.calls; });
    queue.advance(1.9);
    EXPECT_EQ(model.calls, 0);
    queue.advance(0.1);
    EXPECT_EQ(model.calls, 1);
}

TEST(LaterCommand, beginsInALaterTurn)
{
    SteppedMainQueue queue;
    const auto model = std::make_shared<CountingModel>();
    guarded::runLater(queue, *model, [](CountingModel &owner) { ++owner.calls; });
    EXPECT_EQ(model->calls, 0);
    queue.run();
    EXPECT_EQ(model->calls, 1);
}

TEST(LaterCommand, keepsItsModelUntilItHasEnded)
{
    SteppedMainQueue queue;
    auto model = std::make_shared<CountingModel>();
    const std::weak_ptr<CountingModel> weak = model;
    bool wasThere = false;
    guarded::runLater(queue, *model, [&](CountingModel &owner) {
        model.reset(); // another screen was chosen from within
        wasThere = !weak.expired();
        ++owner.calls;
    });
    queue.run();
    EXPECT_TRUE(wasThere);
    EXPECT_TRUE(weak.expired());
}

TEST(LaterCommand, doesNotBeginForAModelThatHasGone)
{
    SteppedMainQueue queue;
    auto model = std::make_shared<CountingModel>();
    int calls = 0;
    guarded::runLater(queue, *model, [&calls](CountingModel &) { ++calls; });
    model.reset();
    queue.run();
    EXPECT_EQ(calls, 0);
}

TEST(LaterCommand, endsADebugBuildForAModelThatNothingCanKeep)
{
#ifdef QT_NO_DEBUG
    GTEST_SKIP() << "assertions are built without";
#endif
    SteppedMainQueue queue;
    CountingModel model;
    EXPECT_DEATH(guarded::runLater(queue, model, [](CountingModel &) {}), "weak_from_this");
}
