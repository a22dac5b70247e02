#include "platform/linux/PortalAppearance.h"

#include "platform/linux/PrivateBus.h"
#include "platform/linux/WaitUntil.h"
#include "StandInSettingsPortal.h"

#include <QStringList>

#include <memory>
#include <optional>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uint none = 0;
constexpr uint dark = 1;
constexpr uint light = 2;

/// An appearance of a program's own and the desktop's settings portal, on a bus of theirs. What the desktop told comes in
/// the order in which it told it, so a test ends with two changes that must be seen and nothing before them.
class PortalAppearanceTest : public ::testing::Test
{
protected:
    PortalAppearanceTest()
    {
        QObject::connect(&appearance_, &Appearance::isDarkChanged, &appearance_,
                         [this] { changes_ << (appearance_.isDark() ? u"dark"_s : u"light"_s); });
    }

    /// The program starts.
    void follow(const QDBusConnection &bus)
    {
        follower_ = std::make_unique<PortalAppearance>(bus, appearance_);
    }
    void follow() { follow(bus_.connect()); }

    void startPortal(const std::optional<QVariant> &scheme)
    {
        portal_ = std::make_unique<StandInSettingsPortal>(bus_.connect(), scheme);
    }

    /// Both are up, and the portal has answered.
    void begin(uint scheme)
    {
        startPortal(scheme);
        follow();
        ASSERT_TRUE(portal_->waitForCalls(1));
        ASSERT_TRUE(waitFor(scheme == light ? QStringList{u"light"_s} : QStringList()));
        changes_.clear();
    }

    bool waitFor(const QStringList &changes)
    {
        return waitUntil([&] { return changes_.size() >= changes.size(); }) && changes_ == changes;
    }

    PrivateBus bus_;
    Appearance appearance_;
    QStringList changes_;
    std::unique_ptr<StandInSettingsPortal> portal_;
    std::unique_ptr<PortalAppearance> follower_;
};

} // namespace

TEST_F(PortalAppearanceTest, asksForTheColourSchemeAtTheStart)
{
    startPortal(QVariant(light));
    follow();
    EXPECT_TRUE(appearance_.isDark()) << "The answer is not waited for.";
    ASSERT_TRUE(waitFor({u"light"_s}));
    const QDBusMessage call = portal_->calls().first();
    EXPECT_EQ(call.interface(), u"org.freedesktop.portal.Settings"_s);
    EXPECT_EQ(call.member(), u"Read"_s);
    EXPECT_EQ(call.arguments(), QVariantList({u"org.freedesktop.appearance"_s, u"color-scheme"_s}));
}

// Nothing in this process has used the bus's own types before, as it is when the program starts: QtDBus finds no slot with
// one of them unless its name is known by then.
TEST_F(PortalAppearanceTest, hearsOfChangesFromTheStartOfTheProcessOn)
{
    follow();
    startPortal(std::nullopt);
    ASSERT_TRUE(portal_->waitForCalls(1));
    portal_->tell(light);
    ASSERT_TRUE(waitFor({u"light"_s}));
}

TEST_F(PortalAppearanceTest, followsEachChange)
{
    begin(dark);
    for (const uint scheme : {light, dark, light, none, light, 7U, light, 0xFFFFFFFFU})
        portal_->tell(scheme);
    EXPECT_TRUE(waitFor(
        {u"light"_s, u"dark"_s, u"light"_s, u"dark"_s, u"light"_s, u"dark"_s, u"light"_s, u"dark"_s}));
}

TEST_F(PortalAppearanceTest, leavesOtherSettingsAlone)
{
    begin(dark);
    portal_->tell(u"org.freedesktop.appearance"_s, u"contrast"_s, light);
    portal_->tell(u"org.gnome.desktop.interface"_s, u"color-scheme"_s, light);
    portal_->tell({}, {}, light);
    portal_->tell(dark);
    portal_->tell(light);
    EXPECT_TRUE(waitFor({u"light"_s}));
}

TEST_F(PortalAppearanceTest, takesNothingButANumberForALightScheme)
{
    begin(dark);
    for (const QVariant &value :
         {QVariant(u"2"_s), QVariant(2), QVariant(2LL), QVariant(2ULL), QVariant(2.0), QVariant(true),
          QVariant(QByteArray("2")), QVariant(QVariantMap{{u"color-scheme"_s, light}}),
          QVariant(QStringList(u"2"_s))})
        portal_->tell(value);
    portal_->tellBadly({u"org.freedesktop.appearance"_s, u"color-scheme"_s, light}); // without its variant
    portal_->tellBadly({u"org.freedesktop.appearance"_s, u"color-scheme"_s});
    portal_->tellBadly({});
    portal_->tell(dark);
    portal_->tell(light);
    EXPECT_TRUE(waitFor({u"light"_s}));
}

TEST_F(PortalAppearanceTest, takesNothingButANumberForADarkScheme)
{
    begin(light);
    for (const QVariant &value :
         {QVariant(u"1"_s), QVariant(u""_s), QVariant(0), QVariant(1ULL << 40), QVariant(0.5),
          QVariant(false), QVariant(QVariantMap()), QVariant(QStringList())})
        portal_->tell(value);
    portal_->tell(light);
    portal_->tell(dark);
    EXPECT_TRUE(waitFor({u"dark"_s}));
}

TEST_F(PortalAppearanceTest, takesNoAnswerOfAnotherKind)
{
    startPortal(QVariant(u"2"_s));
    follow();
    ASSERT_TRUE(portal_->waitForCalls(1));
    portal_->tell(dark);
    portal_->tell(light);
    EXPECT_TRUE(waitFor({u"light"_s}));
}

TEST_F(PortalAppearanceTest, takesNoAnswerThatComesAfterAChange)
{
    startPortal(std::nullopt);
    follow();
    ASSERT_TRUE(portal_->waitForCalls(1));
    portal_->tell(light);
    ASSERT_TRUE(waitFor({u"light"_s}));
    portal_->answer(0, dark);
    portal_->tell(light);
    portal_->tell(dark);
    EXPECT_TRUE(waitFor({u"light"_s, u"dark"_s}));
}

TEST_F(PortalAppearanceTest, takesTheAnswerThatComesAfterAChangeOfAnotherKind)
{
    startPortal(std::nullopt);
    follow();
    ASSERT_TRUE(portal_->waitForCalls(1));
    portal_->tell(u"nonsense"_s);
    portal_->answer(0, light);
    EXPECT_TRUE(waitFor({u"light"_s}));
}

TEST_F(PortalAppearanceTest, asksAPortalThatStartsLater)
{
    follow();
    startPortal(QVariant(light));
    EXPECT_TRUE(waitFor({u"light"_s}));
}

TEST_F(PortalAppearanceTest, keepsWhatAPortalSaidUntilTheNextOneStarts)
{
    begin(light);
    portal_.reset();
    startPortal(QVariant(dark));
    EXPECT_TRUE(waitFor({u"dark"_s}));
    EXPECT_TRUE(portal_->waitForCalls(1));
}

TEST_F(PortalAppearanceTest, hearsOfChangesWhereThePortalNeverAnswers)
{
    startPortal(std::nullopt);
    follow();
    portal_->tell(light);
    EXPECT_TRUE(waitFor({u"light"_s}));
}

TEST_F(PortalAppearanceTest, keepsWhatItKnowsWhenTheBusGoesAway)
{
    begin(light);
    QDBusConnection bus = bus_.connect();
    bus_.end();
    EXPECT_TRUE(waitUntil([&] { return !bus.isConnected(); }));
    EXPECT_FALSE(appearance_.isDark());
    follower_.reset();
    EXPECT_EQ(changes_, QStringList());
}

TEST_F(PortalAppearanceTest, keepsDarkWhenTheBusGoesAwayAheadOfTheAnswer)
{
    startPortal(std::nullopt);
    const QDBusConnection bus = bus_.connect();
    follow(bus);
    ASSERT_TRUE(portal_->waitForCalls(1));
    bus_.end();
    EXPECT_TRUE(waitUntil([&] { return !bus.isConnected(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(changes_, QStringList());
}

TEST_F(PortalAppearanceTest, staysDarkWithoutABus)
{
    follow(PrivateBus::none());
    QCoreApplication::processEvents();
    EXPECT_TRUE(appearance_.isDark());
}
