#include "platform/linux/PanelPortal.h"

#include "base/Paths.h"
#include "PanelAnswer.h"
#include "StandInPanelPortal.h"
#include "WaitUntil.h"
#include "WorkspaceFixture.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

class PanelPortalTest : public WorkspaceFixture
{
};

} // namespace

TEST_F(PanelPortalTest, asksThePortalForAFolder)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose a folder"_s, home("start \xFF")}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    const QDBusMessage call = service.calls().first();
    EXPECT_EQ(call.interface(), u"org.freedesktop.portal.FileChooser"_s);
    EXPECT_EQ(call.member(), u"OpenFile"_s);
    EXPECT_EQ(call.signature(), u"ssa{sv}"_s);
    EXPECT_EQ(call.arguments().value(0), QVariant(QString()));
    EXPECT_EQ(service.title, u"Choose a folder"_s);
    EXPECT_EQ(service.options.value(u"directory"_s), QVariant(true));
    EXPECT_EQ(service.options.value(u"multiple"_s), QVariant(false));
    EXPECT_EQ(service.options.value(u"modal"_s), QVariant(true));
    EXPECT_EQ(service.options.value(u"current_folder"_s),
              QVariant(paths::toBytes(home("start \xFF")) + '\0'));
    EXPECT_EQ(answer.count, 0);
    service.respond(0, {QString::fromLatin1(addressOf("line\nbreak \xFF 🗂"))});
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, home("line\nbreak \xFF 🗂"));
    EXPECT_TRUE(panelRequests_.empty());
}

TEST_F(PanelPortalTest, leavesTheStartToTheDesktopWhenThereIsNone)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    EXPECT_FALSE(service.options.contains(u"current_folder"_s));
}

TEST_F(PanelPortalTest, givesNoFolderWhenThePanelIsCancelled)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    service.respond(1, {});
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, std::nullopt);
    EXPECT_TRUE(panelRequests_.empty());
}

TEST_F(PanelPortalTest, givesNoFolderForAnAnswerThatNamesNone)
{
    for (const QStringList &addresses :
         {QStringList(), QStringList{u"https://example.org/x"_s}, QStringList{u""_s}}) {
        StandInPanelPortal service(bus_.connect());
        PanelAnswer answer;
        workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
        ASSERT_TRUE(service.waitForRequest());
        service.respond(0, addresses);
        ASSERT_TRUE(answer.waitFor());
        EXPECT_EQ(answer.path, std::nullopt);
    }
}

TEST_F(PanelPortalTest, takesAnAnswerThatComesBeforeTheCallReturns)
{
    StandInPanelPortal service(bus_.connect());
    service.immediateCode = 0;
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    EXPECT_EQ(answer.count, 0);
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/at once"_s);
}

TEST_F(PanelPortalTest, followsAPortalThatNamesItsRequestItself)
{
    StandInPanelPortal service(bus_.connect());
    service.namesItsOwnPath = true;
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    const bool isAnswered = waitUntil([&] { // until we listen there
        service.respond(0, {u"file:///chosen"_s});
        return answer.count > 0;
    });
    ASSERT_TRUE(isAnswered);
    EXPECT_EQ(answer.path, u"/chosen"_s);
    EXPECT_EQ(answer.count, 1);
}

TEST_F(PanelPortalTest, showsTheFallbackPanelWithoutAPortal)
{
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, u"/start"_s, true}, answer.taker());
    EXPECT_EQ(answer.count, 0);
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/from the fallback"_s);
    ASSERT_EQ(panelRequests_.size(), 1U);
    EXPECT_EQ(panelRequests_[0].message, u"Choose"_s);
    EXPECT_EQ(panelRequests_[0].start, u"/start"_s);
    EXPECT_TRUE(panelRequests_[0].showsHidden);
}

TEST_F(PanelPortalTest, showsTheFallbackPanelWithoutABus)
{
    hasBus_ = false;
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    EXPECT_EQ(answer.count, 0) << "The answer comes in a later turn.";
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/from the fallback"_s);
}

TEST_F(PanelPortalTest, showsTheFallbackPanelWhenThePortalCantShowItsOwn)
{
    StandInPanelPortal service(bus_.connect());
    service.immediateCode = 2;
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/from the fallback"_s);
    EXPECT_EQ(panelRequests_.size(), 1U);
}

TEST_F(PanelPortalTest, closesAPanelThatComesOnceItsOwnIsShown)
{
    StandInPanelPortal service(bus_.connect());
    service.isLate = true;
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, u"/from the fallback"_s);
    ASSERT_TRUE(waitUntil([&] { return !service.closed.isEmpty(); }));
    EXPECT_EQ(service.closed, QStringList{service.requestPath});
    service.respond(0, {u"file:///late"_s});
    service.isLate = false;
    service.immediateCode = 0;
    PanelAnswer next; // travels behind the late answer
    workspace().chooseFolder({u"Next"_s, {}}, next.taker());
    ASSERT_TRUE(next.waitFor());
    EXPECT_EQ(answer.count, 1);
    EXPECT_EQ(next.path, u"/at once"_s);
}

TEST_F(PanelPortalTest, givesNoFolderWhenThePortalEndsWithItsPanelOpen)
{
    auto service = std::make_unique<StandInPanelPortal>(bus_.connect());
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    ASSERT_TRUE(service->waitForRequest());
    service.reset();
    ASSERT_TRUE(answer.waitFor());
    EXPECT_EQ(answer.path, std::nullopt);
}

TEST_F(PanelPortalTest, closesAnEarlierPanelForANewOne)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer first;
    PanelAnswer second;
    workspace().chooseFolder({u"First"_s, {}}, first.taker());
    ASSERT_TRUE(service.waitForRequest());
    const QString firstRequest = service.requestPath;
    workspace().chooseFolder({u"Second"_s, {}}, second.taker());
    ASSERT_TRUE(waitUntil([&] { return service.title == u"Second"_s; }));
    EXPECT_EQ(service.closed, QStringList{firstRequest});
    EXPECT_NE(service.requestPath, firstRequest);
    service.respond(0, {u"file:///second"_s});
    ASSERT_TRUE(second.waitFor());
    EXPECT_EQ(second.path, u"/second"_s);
    EXPECT_EQ(first.count, 0);
}

TEST_F(PanelPortalTest, answersNobodyAfterItsEnd)
{
    StandInPanelPortal service(bus_.connect());
    PanelAnswer answer;
    workspace().chooseFolder({u"Choose"_s, {}}, answer.taker());
    ASSERT_TRUE(service.waitForRequest());
    workspace_.reset();
    service.respond(0, {u"file:///late"_s});
    PanelAnswer next; // travels behind the late answer
    workspace().chooseFolder({u"Next"_s, {}}, next.taker());
    ASSERT_TRUE(waitUntil([&] { return service.title == u"Next"_s; }));
    EXPECT_EQ(answer.count, 0);
}
