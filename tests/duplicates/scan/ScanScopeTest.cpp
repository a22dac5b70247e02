#include "duplicates/scan/ScanScope.h"

#include "base/Paths.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool matches(const QStringList &rules, const QString &path)
{
    return scope::IgnoreRules(rules).match(path);
}

} // namespace

TEST(EffectiveRules, keepTheRulesThatDoNotBarTheRootInTheirOrder)
{
    const QStringList rules = {u"/home/me/Library"_s, u"node_modules"_s, u"/elsewhere"_s, u".git"_s};
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/me"_s), rules);
    EXPECT_EQ(scope::effectiveRules({}, u"/home/me"_s), QStringList());
}

TEST(EffectiveRules, dropAnAbsoluteRuleThatIsTheRootOrContainsIt)
{
    const QStringList rules = {u"/home/me/Library"_s, u"/home"_s, u"/home/me/Music"_s, u".git"_s};
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/me/Library"_s),
              QStringList({u"/home/me/Music"_s, u".git"_s}));
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/me/Library/Mail/V10"_s),
              QStringList({u"/home/me/Music"_s, u".git"_s}));
}

TEST(EffectiveRules, dropEachOfSeveralEqualRules)
{
    EXPECT_EQ(scope::effectiveRules({u"/a"_s, u"b"_s, u"/a"_s}, u"/a"_s), QStringList(u"b"_s));
}

TEST(EffectiveRules, keepAnAbsoluteRuleDeeperInsideTheRoot)
{
    const QStringList rules = {u"/home/me/Library/Caches"_s};
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/me/Library"_s), rules);
}

TEST(EffectiveRules, keepARuleOfWhichTheRootIsOnlyTheBeginningOfTheText)
{
    const QStringList rules = {u"/home/me/Library"_s};
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/me/Lib"_s), rules);
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/me/Library2"_s), rules);
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/me/Library.old/x"_s), rules);
}

TEST(EffectiveRules, neverDropABareRule)
{
    const QStringList rules = {u"node_modules"_s, u"home"_s};
    EXPECT_EQ(scope::effectiveRules(rules, u"/home/node_modules"_s), rules);
    EXPECT_EQ(scope::effectiveRules(rules, u"/node_modules/inside"_s), rules);
}

TEST(EffectiveRules, compareTheTextAsItStands)
{
    const QString root = u"/Home/caf\u00E9"_s;
    for (const QString &rule : {u"/home/caf\u00E9"_s, u"/Home/Caf\u00E9"_s, u"/Home/cafe\u0301"_s,
                                u"/Home/x/../caf\u00E9"_s, u"/Home//caf\u00E9"_s, u"/Home/./caf\u00E9"_s})
        EXPECT_EQ(scope::effectiveRules({rule}, root), QStringList(rule)) << rule.toStdString();
    EXPECT_EQ(scope::effectiveRules({root}, root), QStringList());
}

TEST(EffectiveRules, takeNoDotsAway)
{
    EXPECT_EQ(scope::effectiveRules({u"/a/x"_s}, u"/a/x/../b"_s), QStringList());
    EXPECT_EQ(scope::effectiveRules({u"/a/b"_s}, u"/a/x/../b"_s), QStringList(u"/a/b"_s));
}

TEST(EffectiveRules, takeASlashAtTheEndForAPartOfTheText)
{
    EXPECT_EQ(scope::effectiveRules({u"/a/b/"_s}, u"/a/b"_s), QStringList(u"/a/b/"_s));
    EXPECT_EQ(scope::effectiveRules({u"/a/b/"_s}, u"/a/b/c"_s), QStringList(u"/a/b/"_s));
    EXPECT_EQ(scope::effectiveRules({u"/a/b/"_s}, u"/a/b/"_s), QStringList());
    EXPECT_EQ(scope::effectiveRules({u"/a/b/"_s}, u"/a/b//c"_s), QStringList());
    EXPECT_EQ(scope::effectiveRules({u"/a/b"_s}, u"/a/b/"_s), QStringList());
}

TEST(EffectiveRules, dropTheRuleOfTheWholeDiskForThatRootOnly)
{
    EXPECT_EQ(scope::effectiveRules({u"/"_s}, u"/"_s), QStringList());
    EXPECT_EQ(scope::effectiveRules({u"/"_s}, u"/home"_s), QStringList(u"/"_s));
}

TEST(LiftedRule, isOneThatAScanPathEqualsOrLiesBelow)
{
    const QString rule = u"/home/me/Library"_s;
    EXPECT_TRUE(scope::isLifted(rule, {u"/home/me"_s, rule}));
    EXPECT_TRUE(scope::isLifted(rule, {u"/home/me/Library/Mail"_s}));
    EXPECT_FALSE(scope::isLifted(rule, {u"/home/me"_s, u"/home/me/Lib"_s, u"/home/me/Library2"_s}));
    EXPECT_FALSE(scope::isLifted(rule, {}));
}

TEST(LiftedRule, isNeverABareOne)
{
    EXPECT_FALSE(scope::isLifted(u"node_modules"_s, {u"/a/node_modules"_s, u"node_modules"_s}));
}

TEST(IgnoreRules, matchTheFolderOfAnAbsoluteRuleAndAllBelowIt)
{
    const QStringList rules = {u"/a/b"_s};
    EXPECT_TRUE(matches(rules, u"/a/b"_s));
    EXPECT_TRUE(matches(rules, u"/a/b/c/d"_s));
    EXPECT_FALSE(matches(rules, u"/a"_s));
    EXPECT_FALSE(matches(rules, u"/a/bc"_s));
    EXPECT_FALSE(matches(rules, u"/x/a/b"_s));
}

TEST(IgnoreRules, matchABareRuleAgainstTheLastNameOnly)
{
    const QStringList rules = {u"node_modules"_s};
    EXPECT_TRUE(matches(rules, u"/a/node_modules"_s));
    EXPECT_TRUE(matches(rules, u"/a/node_modules/"_s));
    EXPECT_FALSE(matches(rules, u"/a/node_modules/b"_s));
    EXPECT_FALSE(matches(rules, u"/a/node_modules2"_s));
    EXPECT_FALSE(matches(rules, u"/a/my_node_modules"_s));
    EXPECT_FALSE(matches(rules, u"/a/Node_Modules"_s));
}

TEST(IgnoreRules, takeARuleWithoutALeadingSlashForAName)
{
    EXPECT_FALSE(matches({u"a/b"_s}, u"/a/b"_s));
    EXPECT_FALSE(matches({u"*"_s, u"b*"_s, u""_s}, u"/a/b"_s));
    EXPECT_TRUE(matches({u"*"_s}, u"/a/*"_s));
}

TEST(IgnoreRules, compareNamesAsTheyStand)
{
    EXPECT_FALSE(matches({u"caf\u00E9"_s, u"/a/caf\u00E9"_s}, u"/a/cafe\u0301"_s));
    const QString name = paths::fromBytes("\xFF");
    EXPECT_TRUE(matches({name}, u"/a/"_s + name));
    EXPECT_FALSE(matches({paths::fromBytes("\xFE")}, u"/a/"_s + name));
}

TEST(IgnoreRules, matchNothingWhereThereAreNone)
{
    EXPECT_FALSE(matches({}, u"/a/b"_s));
    EXPECT_FALSE(matches({}, u"/"_s));
}

TEST(IgnoreRules, matchWhereAnyRuleDoes)
{
    const QStringList rules = {u"x"_s, u"/y"_s, u"b"_s, u"/z"_s};
    EXPECT_TRUE(matches(rules, u"/a/b"_s));
    EXPECT_TRUE(matches(rules, u"/z/b/c"_s));
    EXPECT_FALSE(matches(rules, u"/a/c"_s));
}
