#include "base/NotificationCenter.h"

#include <QStringList>

#include <memory>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Observers that write down what they are told.
class NotificationCenterTest : public testing::Test
{
protected:
    void observe(QObject *observer, const QString &name, const QString &as)
    {
        center.observe(name, observer,
                       [this, as](const QVariant &object) { told << as + u':' + object.toString(); });
    }

    NotificationCenter center;
    QObject owner;
    QStringList told;
};

} // namespace

TEST_F(NotificationCenterTest, tellsOnlyThoseWhoObserveTheName)
{
    observe(&owner, u"navigate"_s, u"first"_s);
    observe(&owner, u"newWindow"_s, u"second"_s);
    center.post(u"navigate"_s, u"search"_s);
    EXPECT_EQ(told, QStringList{u"first:search"_s});
    center.post(u"navigat"_s);
    center.post(u"Navigate"_s);
    EXPECT_EQ(told.size(), 1);
}

TEST_F(NotificationCenterTest, tellsObserversInTheOrderInWhichTheyCame)
{
    for (const QString &as : {u"a"_s, u"b"_s, u"c"_s})
        observe(&owner, u"name"_s, as);
    center.post(u"name"_s);
    EXPECT_EQ(told, QStringList({u"a:"_s, u"b:"_s, u"c:"_s}));
}

TEST_F(NotificationCenterTest, tellsWithinTheCallThatPosts)
{
    center.observe(u"name"_s, &owner, [this](const QVariant &) { told << u"told"_s; });
    told << u"before"_s;
    center.post(u"name"_s);
    told << u"after"_s;
    EXPECT_EQ(told, QStringList({u"before"_s, u"told"_s, u"after"_s}));
}

TEST_F(NotificationCenterTest, tellsOnceForEachPost)
{
    observe(&owner, u"name"_s, u"a"_s);
    center.post(u"name"_s, 1);
    center.post(u"name"_s, 2);
    EXPECT_EQ(told, QStringList({u"a:1"_s, u"a:2"_s}));
}

TEST_F(NotificationCenterTest, carriesNoObjectUnlessOneIsGiven)
{
    bool isValid = true;
    center.observe(u"name"_s, &owner, [&isValid](const QVariant &object) { isValid = object.isValid(); });
    center.post(u"name"_s);
    EXPECT_FALSE(isValid);
}

TEST_F(NotificationCenterTest, forgetsAnObserverThatIsGone)
{
    auto gone = std::make_unique<QObject>();
    observe(gone.get(), u"name"_s, u"gone"_s);
    observe(&owner, u"name"_s, u"left"_s);
    gone.reset();
    center.post(u"name"_s);
    EXPECT_EQ(told, QStringList{u"left:"_s});
}

TEST_F(NotificationCenterTest, bearsWithAnObserverThatIsDestroyedByItsOwnHandler)
{
    auto gone = std::make_unique<QObject>();
    const QString name = u"name"_s;
    center.observe(name, gone.get(), [this, &gone, text = u"still readable"_s](const QVariant &) {
        gone.reset();
        told << text;
    });
    observe(&owner, name, u"left"_s);
    center.post(name);
    center.post(name);
    EXPECT_EQ(told, QStringList({u"still readable"_s, u"left:"_s, u"left:"_s}));
}

TEST_F(NotificationCenterTest, doesNotTellAnObserverThatAnEarlierOneHasDestroyed)
{
    auto gone = std::make_unique<QObject>();
    center.observe(u"name"_s, &owner, [&gone](const QVariant &) { gone.reset(); });
    observe(gone.get(), u"name"_s, u"gone"_s);
    observe(&owner, u"name"_s, u"left"_s);
    center.post(u"name"_s);
    EXPECT_EQ(told, QStringList{u"left:"_s});
}

TEST_F(NotificationCenterTest, bearsWithAPostFromWithinAHandler)
{
    center.observe(u"outer"_s, &owner, [this](const QVariant &) { center.post(u"inner"_s, u"nested"_s); });
    observe(&owner, u"inner"_s, u"inner"_s);
    observe(&owner, u"outer"_s, u"outer"_s);
    center.post(u"outer"_s);
    EXPECT_EQ(told, QStringList({u"inner:nested"_s, u"outer:"_s}));
}

TEST_F(NotificationCenterTest, tellsAnObserverThatCameDuringAPostFromTheNextOneOn)
{
    center.observe(u"name"_s, &owner, [this](const QVariant &object) {
        if (object.toInt() == 1)
            observe(&owner, u"name"_s, u"late"_s);
    });
    center.post(u"name"_s, 1);
    EXPECT_EQ(told, QStringList());
    center.post(u"name"_s, 2);
    EXPECT_EQ(told, QStringList{u"late:2"_s});
}
