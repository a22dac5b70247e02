#include "filesystem/WalkBounds.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(WalkBounds, letAWalkThroughALinkToAFolderInsideTheRoot)
{
    const TempHome temp;
    temp.folder(u"root/a/b"_s);
    temp.link(u"way"_s, u"root/a"_s);
    const WalkBounds bounds(temp.at(u"root"_s));
    EXPECT_TRUE(bounds.mayEnter(temp.link(u"root/link"_s, u"a/b"_s)));
    EXPECT_TRUE(bounds.mayEnter(temp.link(u"root/out and in again"_s, temp.at(u"way/b"_s))));
}

TEST(WalkBounds, keepAWalkInItsRoot)
{
    const TempHome temp;
    temp.folder(u"root"_s);
    temp.folder(u"root beside"_s);
    const WalkBounds bounds(temp.at(u"root"_s));
    for (const QString &target :
         {u"/"_s, u".."_s, u"../root beside"_s, temp.at(u"root beside"_s), u"../missing"_s})
        EXPECT_FALSE(bounds.mayEnter(temp.link(u"root/to "_s + QString(target).replace(u'/', u'_'), target)));
}

TEST(WalkBounds, keepAWalkFromGoingRound)
{
    const TempHome temp;
    temp.folder(u"root/a/b"_s);
    const WalkBounds bounds(temp.at(u"root"_s));
    for (const QString &target : {u"."_s, u".."_s, u"../.."_s, temp.at(u"root/a"_s)})
        EXPECT_FALSE(
            bounds.mayEnter(temp.link(u"root/a/b/to "_s + QString(target).replace(u'/', u'_'), target)));
}

TEST(WalkBounds, takeNoFileForAFolder)
{
    const TempHome temp;
    temp.file(u"root/file"_s);
    EXPECT_FALSE(WalkBounds(temp.at(u"root"_s)).mayEnter(temp.link(u"root/link"_s, u"file"_s)));
}

TEST(WalkBounds, holdForARootThatIsALinkAndOneThatIsMissing)
{
    const TempHome temp;
    temp.folder(u"root/a"_s);
    temp.link(u"root/link"_s, u"a"_s);
    temp.link(u"way"_s, u"root"_s);
    EXPECT_TRUE(WalkBounds(temp.at(u"way"_s)).mayEnter(temp.at(u"way/link"_s)));
    EXPECT_FALSE(WalkBounds(temp.at(u"missing"_s)).mayEnter(temp.at(u"root/link"_s)));
}
