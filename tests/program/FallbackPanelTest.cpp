#include "program/FallbackPanel.h"

#include "program/Popups.h"
#include "support/TempHome.h"

#include <QLibraryInfo>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>
#include <QVersionNumber>

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 10'000; // milliseconds; each wait ends as soon as it may

/// What is drawn below `item` and passes `isWanted`; null when nothing does.
QQuickItem *findVisible(QQuickItem *item, const std::function<bool(QQuickItem *)> &isWanted)
{
    if (!item->isVisible())
        return nullptr;
    if (isWanted(item))
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = findVisible(child, isWanted))
            return found;
    }
    return nullptr;
}

/// The windows on view. Before Qt 6.8 the toolkit's dialogs are drawn in the program's window, from there on in
/// one of their own.
std::vector<QQuickWindow *> shownWindows()
{
    std::vector<QQuickWindow *> windows;
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (auto *drawn = qobject_cast<QQuickWindow *>(window); drawn && drawn->isVisible())
            windows.push_back(drawn);
    }
    return windows;
}

/// What is drawn in any window and passes `isWanted`; null when nothing does.
QQuickItem *findShown(const std::function<bool(QQuickItem *)> &isWanted)
{
    for (const QQuickWindow *window : shownWindows()) {
        if (QQuickItem *found = findVisible(window->contentItem(), isWanted))
            return found;
    }
    return nullptr;
}

/// The toolkit's own dialogs, in windows that nobody sees.
class FallbackPanelTest : public ::testing::Test
{
public:
    ~FallbackPanelTest() override
    {
        panel_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // dialogs before their engine
    }

protected:
    static void SetUpTestSuite()
    {
        if (QQuickWindow::graphicsApi() != QSGRendererInterface::Software)
            QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }

    FallbackPanelTest()
    {
        window_ = std::make_unique<QQuickWindow>();
        window_->resize(900, 700);
        window_->show();
        window_->requestActivate(); // or it gets no keys
        panel_ = std::make_unique<FallbackPanel>();
        panel_->attach(engine_, *window_, home_.path());
    }
    Workspace::PathChosen taker()
    {
        return [this](const std::optional<QString> &path) {
            ++answers_;
            path_ = path;
        };
    }

    /// Waits for a button to be drawn, and clicks it.
    bool click(const QString &text)
    {
        const auto isButton = [&](QQuickItem *item) {
            return item->inherits("QQuickAbstractButton") && item->property("text") == text
                   && item->isEnabled();
        };
        QQuickItem *button = nullptr;
        if (!waitFor([&] { return (button = findShown(isButton)) != nullptr; }))
            return false;
        QTest::mouseClick(button->window(), Qt::LeftButton, {},
                          button->mapToScene({button->width() / 2, button->height() / 2}).toPoint());
        return true;
    }

    /// True once a text is to be read in a label, a title or a field.
    bool shows(const QString &text) const
    {
        return waitFor([&] { return isOnView(text); });
    }
    bool isOnView(const QString &text) const
    {
        const std::vector<QQuickWindow *> windows = shownWindows();
        return std::any_of(windows.begin(), windows.end(),
                           [&](const QQuickWindow *window) { return window->title() == text; })
               || findShown([&](QQuickItem *item) { return item->property("text") == text; });
    }

    /// Types over the file's name in the panel for saving. A question that is on its way out may still take keys, so what
    /// is not in the field then is typed again, as a person would.
    bool typeName(const QString &name) const
    {
        return waitFor([&] {
            QQuickItem *field =
                findShown([](QQuickItem *item) { return item->objectName() == u"fileNameTextField"_s; });
            if (!field)
                return false;
            field->forceActiveFocus();
            QMetaObject::invokeMethod(field, "selectAll");
            for (const QChar character : name)
                QTest::keyClick(field->window(), character.toLatin1());
            return field->property("text") == name;
        });
    }

    bool waitForAnswer() const
    {
        return waitFor([this] { return answers_ > 0; });
    }
    static bool waitFor(const std::function<bool()> &isTrue) { return QTest::qWaitFor(isTrue, patience); }

    TempHome home_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    std::unique_ptr<FallbackPanel> panel_;
    int answers_ = 0;
    std::optional<QString> path_;
};

} // namespace

TEST_F(FallbackPanelTest, savesUnderTheSuggestedNameInTheFolderToBeginWith)
{
    panel_->chooseSavePath({u"Export"_s, u"a b%.csv"_s, home_.folder(u"out"_s)}, taker());
    ASSERT_TRUE(shows(u"Export"_s));
    EXPECT_TRUE(shows(u"a b%.csv"_s));
    EXPECT_EQ(answers_, 0);
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"out/a b%.csv"_s));
}

TEST_F(FallbackPanelTest, savesInTheHomeFolderWhereNoneIsNamed)
{
    panel_->chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, taker());
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"a.csv"_s));
}

TEST_F(FallbackPanelTest, givesNoPathWhenSavingIsCancelled)
{
    panel_->chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, taker());
    ASSERT_TRUE(click(u"Cancel"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, std::nullopt);
}

TEST_F(FallbackPanelTest, replacesAFileOnlyOnceTheUserAgrees)
{
    home_.file(u"a.csv"_s, "old");
    panel_->chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, taker());
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(shows(u"“a.csv” already exists."_s));
    EXPECT_EQ(answers_, 0);
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"a.csv"_s));
}

TEST_F(FallbackPanelTest, asksForAnotherNameWhenTheUserKeepsTheFile)
{
    home_.file(u"a.csv"_s, "old");
    panel_->chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, taker());
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(shows(u"“a.csv” already exists."_s));
    ASSERT_TRUE(click(u"Cancel"_s));
    ASSERT_TRUE(shows(u"a.csv"_s));
    EXPECT_EQ(answers_, 0);
    ASSERT_TRUE(typeName(u"b #1? 5%.csv"_s));
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"b #1? 5%.csv"_s));
}

TEST_F(FallbackPanelTest, goesIntoAFolderWhoseNameIsTyped)
{
    home_.folder(u"inner"_s);
    panel_->chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, taker());
    ASSERT_TRUE(shows(u"a.csv"_s));
    ASSERT_TRUE(typeName(u"inner"_s));
    ASSERT_TRUE(click(u"Save"_s));
    // From Qt 6.8 on the toolkit goes there itself and keeps what was typed; before, we offer the name again.
    if (QLibraryInfo::version() < QVersionNumber(6, 8)) {
        ASSERT_TRUE(shows(u"a.csv"_s));
    }
    EXPECT_EQ(answers_, 0);
    ASSERT_TRUE(typeName(u"b.csv"_s));
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"inner/b.csv"_s));
}

TEST_F(FallbackPanelTest, givesTheFolderHighlightedInTheOneToBeginWith)
{
    home_.folder(u"start/inner"_s);
    panel_->chooseFolder({u"Choose a folder"_s, home_.at(u"start"_s)}, taker());
    ASSERT_TRUE(shows(u"Choose a folder"_s));
    ASSERT_TRUE(click(u"Open"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"start/inner"_s)); // the toolkit highlights the first one in it
}

TEST_F(FallbackPanelTest, offersHiddenFoldersOnlyWhereTheyAreAskedFor)
{
    home_.folder(u"start/.hidden"_s);
    home_.folder(u"start/seen"_s);
    panel_->chooseFolder({u"Seen"_s, home_.at(u"start"_s)}, taker());
    ASSERT_TRUE(shows(u"seen"_s));
    EXPECT_FALSE(isOnView(u".hidden"_s));
    panel_->chooseFolder({u"All"_s, home_.at(u"start"_s), true}, taker());
    EXPECT_TRUE(shows(u".hidden"_s));
}

TEST_F(FallbackPanelTest, offersAPackageAsTheFolderThatItIs)
{
    home_.folder(u"start/Photos.photoslibrary/originals"_s);
    panel_->chooseFolder({u"Choose"_s, home_.at(u"start/Photos.photoslibrary"_s), true}, taker());
    ASSERT_TRUE(shows(u"originals"_s));
    ASSERT_TRUE(click(u"Open"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"start/Photos.photoslibrary/originals"_s));
}

TEST_F(FallbackPanelTest, givesNoFolderWhenItIsCancelled)
{
    panel_->chooseFolder({u"Choose"_s, {}}, taker());
    ASSERT_TRUE(click(u"Cancel"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, std::nullopt);
}

TEST_F(FallbackPanelTest, putsASecondPanelInThePlaceOfTheFirst)
{
    panel_->chooseFolder({u"First"_s, {}}, [](const auto &) { ADD_FAILURE() << "The first one answered."; });
    ASSERT_TRUE(shows(u"First"_s));
    panel_->chooseSavePath({u"Second"_s, u"a.csv"_s, {}}, taker());
    ASSERT_TRUE(shows(u"Second"_s));
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(waitForAnswer());
    EXPECT_EQ(path_, home_.at(u"a.csv"_s));
    EXPECT_EQ(answers_, 1);
}

TEST_F(FallbackPanelTest, asksNothingMoreOnceItGivesUp)
{
    home_.file(u"a.csv"_s, "old");
    panel_->chooseSavePath({u"Export"_s, u"a.csv"_s, {}}, taker());
    ASSERT_TRUE(click(u"Save"_s));
    ASSERT_TRUE(shows(u"“a.csv” already exists."_s));
    panel_->giveUp();
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, std::nullopt);
    popups::closeAll(*window_);
    EXPECT_TRUE(waitFor([this] { return !isOnView(u"“a.csv” already exists."_s); }));
    EXPECT_FALSE(isOnView(u"a.csv"_s)); // the panel for another name
    EXPECT_EQ(answers_, 1);
}

TEST_F(FallbackPanelTest, givesUpNothingWhereNothingIsAsked)
{
    panel_->giveUp();
    EXPECT_EQ(answers_, 0);
}

TEST_F(FallbackPanelTest, givesNoPathBeforeThereIsAWindow)
{
    FallbackPanel early;
    early.chooseFolder({u"Choose"_s, {}}, taker());
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, std::nullopt);
}
