#include "controls/InputWatch.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class InputWatchTest : public ::testing::Test
{
protected:
    void send(QEvent::Type type, int key)
    {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&target, &event);
    }
    void send(QEvent::Type type)
    {
        QMouseEvent event(type, {}, {}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&target, &event);
    }
    bool isByKey(Qt::FocusReason reason)
    {
        QFocusEvent event(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(&target, &event);
        return watch.isFocusByKey();
    }

    QObject target;
    InputWatch watch;
    QSignalSpy acts{&watch, &InputWatch::acted};
    QSignalSpy altChanges{&watch, &InputWatch::isAltDownChanged};
};

} // namespace

TEST_F(InputWatchTest, tellsOfKeysOfShortcutsAndOfClicksWhoeverGetsThem)
{
    send(QEvent::KeyPress, Qt::Key_A);
    EXPECT_EQ(acts.count(), 1);
    send(QEvent::ShortcutOverride, Qt::Key_R);
    EXPECT_EQ(acts.count(), 2);
    send(QEvent::MouseButtonPress);
    EXPECT_EQ(acts.count(), 3);
    send(QEvent::KeyRelease, Qt::Key_A);
    send(QEvent::MouseButtonRelease);
    send(QEvent::MouseMove);
    EXPECT_EQ(acts.count(), 3);
}

TEST_F(InputWatchTest, knowsWhetherAButtonIsDown)
{
    EXPECT_FALSE(watch.isButtonDown());
    send(QEvent::MouseButtonPress);
    EXPECT_TRUE(watch.isButtonDown());
    send(QEvent::MouseButtonRelease);
    EXPECT_FALSE(watch.isButtonDown());
}

TEST_F(InputWatchTest, knowsWhetherAltIsDown)
{
    send(QEvent::KeyPress, Qt::Key_Alt);
    send(QEvent::KeyPress, Qt::Key_Alt);
    send(QEvent::KeyRelease, Qt::Key_A);
    EXPECT_TRUE(watch.isAltDown());
    EXPECT_EQ(altChanges.count(), 1);
    send(QEvent::KeyRelease, Qt::Key_Alt);
    EXPECT_FALSE(watch.isAltDown());
}

TEST_F(InputWatchTest, takesAltForUpOnceAnotherProgramHasTheKeys)
{
    send(QEvent::KeyPress, Qt::Key_Alt);
    emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_FALSE(watch.isAltDown());
}

TEST_F(InputWatchTest, knowsWhetherAKeyHasBroughtTheFocus)
{
    EXPECT_TRUE(isByKey(Qt::TabFocusReason));
    EXPECT_FALSE(isByKey(Qt::MouseFocusReason));
    EXPECT_TRUE(isByKey(Qt::BacktabFocusReason));
    EXPECT_FALSE(isByKey(Qt::OtherFocusReason));
    send(QEvent::KeyPress, Qt::Key_Return);
    EXPECT_TRUE(isByKey(Qt::OtherFocusReason));
    send(QEvent::MouseButtonPress);
    EXPECT_FALSE(isByKey(Qt::OtherFocusReason));
}

TEST_F(InputWatchTest, takesTheKeyThatClosesAMenuForNoneThatBringsTheFocus)
{
    send(QEvent::KeyPress, Qt::Key_Escape);
    EXPECT_FALSE(isByKey(Qt::PopupFocusReason));
    EXPECT_FALSE(isByKey(Qt::ActiveWindowFocusReason));
}
