#include "program/FrameWatch.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

constexpr int framePatience = 10'000; // milliseconds; each wait ends as soon as it may

/// A window that nobody sees, and how often it has drawn a frame.
struct FrameWatchTest : ::testing::Test
{
    static void SetUpTestSuite()
    {
        if (QQuickWindow::graphicsApi() != QSGRendererInterface::Software)
            QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }

    FrameWatchTest()
    {
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { ++frames; });
    }

    QQuickWindow window;
    int frames = 0;
    int told = 0;
    int framesAtLast = 0; // when it was told last
    FrameWatch watch{window, [this] {
                         ++told;
                         framesAtLast = frames;
                     }};
};

} // namespace

TEST_F(FrameWatchTest, tellsOnceWhenTheFirstFrameIsOnView)
{
    EXPECT_EQ(told, 0);
    window.show();
    EXPECT_EQ(told, 0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return told > 0; }, framePatience));
    EXPECT_GE(framesAtLast, 1);
    window.update();
    const int before = frames;
    ASSERT_TRUE(QTest::qWaitFor([&] { return frames > before; }, framePatience));
    EXPECT_EQ(told, 1);
}

TEST_F(FrameWatchTest, tellsOfAChangeOnlyOnceAFrameHasTakenItOver)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return told == 1; }, framePatience));
    const int before = frames;
    watch.expect();
    QCoreApplication::sendPostedEvents(); // what an earlier frame may still have to say
    EXPECT_EQ(told, 1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return told == 2; }, framePatience));
    EXPECT_GT(framesAtLast, before);
}

TEST_F(FrameWatchTest, passesAFrameOverThatBeganBeforeTheChange)
{
    // A change between a frame's taking over and its end, as another thread may see it.
    QObject::connect(
        &window, &QQuickWindow::afterSynchronizing, &window, [this] { watch.expect(); },
        static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection));
    window.show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return told > 0; }, framePatience));
    EXPECT_GE(framesAtLast, 2);
    EXPECT_EQ(told, 1);
}

TEST_F(FrameWatchTest, tellsNothingWhileTheWindowShowsNothing)
{
    watch.expect();
    for (int turn = 0; turn < 10; ++turn)
        QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
}
