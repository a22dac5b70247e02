#include "apps/catalogue/Bundles.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "makers/MadeBundle.h"
#include "makers/PropertyLists.h"
#include "support/TempHome.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class BundlesTest : public testing::Test
{
protected:
    /// The bundles below the root, by their paths from there, in order of their names.
    QStringList found(bundles::Links links = bundles::Links::insideRoot) const
    {
        QStringList all;
        for (const QString &path : bundles::find(temp.at(u"root"_s), links))
            all << path.mid(temp.at(u"root/"_s).size());
        all.sort();
        return all;
    }

    QString bundle(const QString &relative) const { return temp.folder(u"root/"_s + relative); }

    /// What a bundle tells whose property list is that one.
    Bundle told(const QJsonObject &description, MadeBundle::Form form = MadeBundle::Form::xml) const
    {
        const MadeBundle made{temp.at(u"Some File.app"_s), description, form};
        made.make();
        return bundles::read(made.path).value_or(Bundle());
    }

    TempHome temp;
};

} // namespace

TEST_F(BundlesTest, areFoundInTheRootAndInFoldersDirectlyInside)
{
    bundle(u"One.app"_s);
    bundle(u"Utilities/Two.app"_s);
    bundle(u"Utilities/Tools/Three.app"_s);
    bundle(u"Not one"_s);
    bundle(u"Four.APP"_s);
    EXPECT_EQ(found(), (QStringList{u"One.app"_s, u"Utilities/Two.app"_s}));
}

TEST_F(BundlesTest, areFoundInTheOrderOfTheListing)
{
    for (const QString &name : {u"c.app"_s, u"a.app"_s, u"b/two.app"_s, u"b/one.app"_s, u"d.app"_s})
        bundle(name);
    QStringList expected;
    const auto names = files::list(temp.at(u"root"_s));
    for (const QString &name : *names) {
        const QString path = temp.at(u"root/"_s + name);
        if (name.endsWith(u".app")) {
            expected << path;
            continue;
        }
        const auto inner = files::list(path);
        for (const QString &innerName : *inner)
            expected << paths::join(path, innerName);
    }
    EXPECT_EQ(bundles::find(temp.at(u"root"_s), bundles::Links::insideRoot), expected);
}

TEST_F(BundlesTest, areNotLookedForInAHiddenFolder)
{
    bundle(u".hidden/One.app"_s);
    bundle(u".Two.app"_s);
    EXPECT_EQ(found(), QStringList(u".Two.app"_s));
}

TEST_F(BundlesTest, areNotLookedForInsideAnother)
{
    bundle(u"One.app/Inner.app"_s);
    bundle(u"Folder/Two.app/Inner.app"_s);
    EXPECT_EQ(found(), (QStringList{u"Folder/Two.app"_s, u"One.app"_s}));
}

TEST_F(BundlesTest, areFoundThroughALinkThatStaysBelowTheRoot)
{
    bundle(u"Utilities/One.app"_s);
    temp.folder(u"elsewhere/Two.app"_s);
    temp.link(u"root/Tools"_s, u"Utilities"_s);
    temp.link(u"root/Away"_s, temp.at(u"elsewhere"_s));
    temp.link(u"root/Round"_s, u"."_s);
    temp.link(u"root/Nowhere"_s, u"missing"_s);
    temp.link(u"root/Linked.app"_s, temp.at(u"elsewhere/Two.app"_s));
    EXPECT_EQ(found(), (QStringList{u"Linked.app"_s, u"Tools/One.app"_s, u"Utilities/One.app"_s}));
}

TEST_F(BundlesTest, areFoundThroughAnyLinkWhereThatIsAskedFor)
{
    bundle(u"Utilities/One.app"_s);
    temp.folder(u"elsewhere/Two.app"_s);
    temp.folder(u"elsewhere/Deep/Three.app"_s);
    temp.link(u"root/Tools"_s, u"Utilities"_s);
    temp.link(u"root/Away"_s, temp.at(u"elsewhere"_s));
    temp.link(u"root/.Hidden"_s, temp.at(u"elsewhere"_s));
    temp.link(u"root/Round"_s, u"."_s);
    temp.link(u"root/Nowhere"_s, u"missing"_s);
    bundle(u"Four.app"_s);
    EXPECT_EQ(found(bundles::Links::all), (QStringList{u"Away/Two.app"_s, u"Four.app"_s, u"Round/Four.app"_s,
                                                       u"Tools/One.app"_s, u"Utilities/One.app"_s}));
}

TEST_F(BundlesTest, areNoneWhereNothingCanBeListed)
{
    EXPECT_EQ(found(), QStringList());
    temp.file(u"root"_s);
    EXPECT_EQ(found(), QStringList());
}

TEST_F(BundlesTest, haveNamesInAnyBytes)
{
    const QString name = paths::fromBytes("\xff and \n.app");
    bundle(name);
    EXPECT_EQ(found(), QStringList(name));
    EXPECT_EQ(bundles::read(temp.at(u"root/"_s + name))->name, paths::fromBytes("\xff and \n"));
}

TEST_F(BundlesTest, tellWhatTheirPropertyListTellsInEitherForm)
{
    const QJsonObject description = {{u"CFBundleName"_s, u"Tides"_s},
                                     {u"CFBundleDisplayName"_s, u"Tide Tables"_s},
                                     {u"CFBundleShortVersionString"_s, u"2.1"_s},
                                     {u"CFBundleIdentifier"_s, u"com.Example.Tides"_s},
                                     {u"CFBundleIconFile"_s, u"AppIcon"_s}};
    const Bundle expected{u"Tides"_s, u"2.1"_s, u"com.Example.Tides"_s,
                          temp.at(u"Some File.app/Contents/Resources/AppIcon.icns"_s)};
    EXPECT_EQ(told(description), expected);
    EXPECT_EQ(told(description, MadeBundle::Form::binary), expected);
}

TEST_F(BundlesTest, areCalledByTheShortNameFirstAndTheirFileLast)
{
    EXPECT_EQ(told({{u"CFBundleDisplayName"_s, u"Tide Tables"_s}}).name, u"Tide Tables");
    EXPECT_EQ(told({{u"CFBundleVersion"_s, u"7"_s}}).name, u"Some File");
    EXPECT_EQ(told({{u"CFBundleName"_s, u""_s}, {u"CFBundleDisplayName"_s, u"Tide Tables"_s}}).name, u"");
}

TEST_F(BundlesTest, passOverValuesThatAreNoTexts)
{
    const Bundle expected{u"Tide Tables"_s, std::nullopt, std::nullopt, std::nullopt};
    EXPECT_EQ(told({{u"CFBundleName"_s, 5},
                    {u"CFBundleDisplayName"_s, u"Tide Tables"_s},
                    {u"CFBundleShortVersionString"_s, 2.5},
                    {u"CFBundleIdentifier"_s, QJsonArray{u"com.example.tides"_s}},
                    {u"CFBundleIconFile"_s, true}}),
              expected);
}

TEST_F(BundlesTest, tellNothingButTheirFilesNameWhereTheListIsDamaged)
{
    const Bundle bare{u"Some File"_s, std::nullopt, std::nullopt, std::nullopt};
    const QJsonObject description = {{u"CFBundleName"_s, u"Tides"_s},
                                     {u"CFBundleIdentifier"_s, u"com.example"_s}};
    EXPECT_EQ(told({}), bare);
    for (const QByteArray &list : {propertylists::xml(description), propertylists::binary(description)}) {
        temp.file(u"Some File.app/Contents/Info.plist"_s, list.first(list.size() / 2));
        EXPECT_EQ(bundles::read(temp.at(u"Some File.app"_s)), bare);
    }
    temp.sparseFile(u"Some File.app/Contents/Info.plist"_s, qint64(1) << 40);
    EXPECT_EQ(bundles::read(temp.at(u"Some File.app"_s)), bare);
}

TEST_F(BundlesTest, tellOfThemselvesWhereATelephonesDo)
{
    const QByteArray list =
        propertylists::binary(QJsonObject{{u"CFBundleName"_s, u"Pocket"_s},
                                          {u"CFBundleIdentifier"_s, u"com.example.pocket"_s},
                                          {u"CFBundleIconFile"_s, u"Icon.png"_s}});
    temp.file(u"Flat.app/Info.plist"_s, list);
    temp.file(u"Wrapped.app/Wrapper/Pocket.app/Info.plist"_s, list);
    temp.link(u"Wrapped.app/WrappedBundle"_s, u"Wrapper/Pocket.app"_s);
    EXPECT_EQ(bundles::read(temp.at(u"Flat.app"_s)),
              (Bundle{u"Pocket"_s, std::nullopt, u"com.example.pocket"_s, temp.at(u"Flat.app/Icon.png"_s)}));
    EXPECT_EQ(bundles::read(temp.at(u"Wrapped.app"_s)),
              (Bundle{u"Pocket"_s, std::nullopt, u"com.example.pocket"_s,
                      temp.at(u"Wrapped.app/WrappedBundle/Icon.png"_s)}));
}

TEST_F(BundlesTest, haveNoPictureOutsideTheFolderForPictures)
{
    for (const QString &name :
         {u""_s, u"."_s, u".."_s, u"/etc/passwd"_s, u"../../other.icns"_s, u"a/b.icns"_s})
        EXPECT_EQ(told({{u"CFBundleIconFile"_s, name}}).picture, std::nullopt) << name.toStdString();
}

TEST_F(BundlesTest, areFolders)
{
    EXPECT_EQ(bundles::read(temp.file(u"File.app"_s)), std::nullopt);
    EXPECT_EQ(bundles::read(temp.at(u"Missing.app"_s)), std::nullopt);
    temp.folder(u"Real.app"_s);
    EXPECT_EQ(bundles::read(temp.link(u"Linked.app"_s, u"Real.app"_s))->name, u"Linked");
}
