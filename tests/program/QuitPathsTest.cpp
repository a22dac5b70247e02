#include "program/QuitPaths.h"

#include "disk/DiskService.h"
#include "filesystem/FileSystemService.h"
#include "support/TestPlatform.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class QuitPathsTest : public ::testing::Test
{
protected:
    /// A key-down as any object of the program gets it.
    void press(int key, Qt::KeyboardModifiers modifiers, const QString &text,
               QEvent::Type type = QEvent::KeyPress)
    {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(&target, &event);
    }
    void putUpSheets()
    {
        for (const Sheet sheet : {Sheet::settings, Sheet::shortcuts, Sheet::history, Sheet::onboarding})
            content.setSheet(sheet, true);
    }

    TestPlatform test;
    ContentView content{test.platform, {}};
    QObject target;
    int exits = 0;
    QuitPaths quit{test.platform, content, [this] { ++exits; }};
};

} // namespace

TEST_F(QuitPathsTest, endTheProcessAtOnceByTheKey)
{
    press(Qt::Key_Q, Qt::ControlModifier, QStringLiteral("\x11"));
    EXPECT_EQ(exits, 1);
    EXPECT_EQ(test.mainQueue.waiting(), 0U);
}

TEST_F(QuitPathsTest, endTheProcessByTheKeyBeforeAnythingTakesItAsAShortcut)
{
    press(Qt::Key_Q, Qt::ControlModifier, QStringLiteral("q"), QEvent::ShortcutOverride);
    EXPECT_EQ(exits, 1);
}

TEST_F(QuitPathsTest, endTheProcessByTheKeyWithShift)
{
    press(Qt::Key_Q, Qt::ControlModifier | Qt::ShiftModifier, QStringLiteral("Q"));
    EXPECT_EQ(exits, 1);
}

TEST_F(QuitPathsTest, endTheProcessByTheKeyWithCapsLock)
{
    press(Qt::Key_unknown, Qt::ControlModifier, QStringLiteral("Q"));
    EXPECT_EQ(exits, 1);
}

TEST_F(QuitPathsTest, endTheProcessByTheKeyWhateverOtherModifiersAreDown)
{
    press(Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier | Qt::KeypadModifier, {});
    EXPECT_EQ(exits, 1);
}

TEST_F(QuitPathsTest, endTheProcessByTheKeyWithASheetOpenAndWithoutAQuestion)
{
    putUpSheets();
    press(Qt::Key_Q, Qt::ControlModifier, QStringLiteral("q"));
    EXPECT_EQ(exits, 1);
    EXPECT_TRUE(content.showSettings());
}

TEST_F(QuitPathsTest, endTheProcessByTheKeyDuringAScan)
{
    FileSystemService fileSystem(test.platform, test.probes);
    DiskService disk(
        test.platform, test.probes, [&]() -> FileSystemService & { return fileSystem; },
        [&]() -> FDAService & { return test.access; });
    disk.scanAnalyzer(test.home, true);
    test.mainQueue.run();
    ASSERT_TRUE(disk.isScanningAnalyzer());
    press(Qt::Key_Q, Qt::ControlModifier, QStringLiteral("q"));
    EXPECT_EQ(exits, 1);
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(QuitPathsTest, passOtherKeysOn)
{
    press(Qt::Key_Q, Qt::NoModifier, QStringLiteral("q"));
    press(Qt::Key_Q, Qt::ShiftModifier, QStringLiteral("Q"));
    press(Qt::Key_Q, Qt::AltModifier, QStringLiteral("q"));
    press(Qt::Key_W, Qt::ControlModifier, QStringLiteral("w"));
    press(Qt::Key_Control, Qt::ControlModifier, {});
    press(Qt::Key_Q, Qt::ControlModifier, QStringLiteral("q"), QEvent::KeyRelease);
    EXPECT_EQ(exits, 0);
}

TEST_F(QuitPathsTest, endTheProcessAtOnceOnTheSystemsRequest)
{
    putUpSheets();
    quit.handleQuitEvent();
    EXPECT_EQ(exits, 1);
    EXPECT_EQ(test.mainQueue.waiting(), 0U);
}

TEST_F(QuitPathsTest, tellOfARequestAtOnceAndOfAnEndInPlaceNever)
{
    const QSignalSpy requests(&quit, &QuitPaths::requested);
    quit.handleQuitEvent();
    press(Qt::Key_Q, Qt::ControlModifier, QStringLiteral("q"));
    EXPECT_EQ(requests.count(), 0);
    exits = 0;
    quit.requestQuit();
    EXPECT_EQ(requests.count(), 1);
    EXPECT_EQ(exits, 0);
}

TEST_F(QuitPathsTest, takeSheetsDownAndEndTheProcessHalfASecondAfterAnyOtherRequest)
{
    putUpSheets();
    quit.requestQuit();
    EXPECT_FALSE(content.showSettings() || content.showShortcuts() || content.showHistory()
                 || content.showOnboarding());
    test.mainQueue.advance(0.49);
    EXPECT_EQ(exits, 0);
    test.mainQueue.advance(0.02);
    EXPECT_EQ(exits, 1);
}
