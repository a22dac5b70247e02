#include "LayerRules.h"
#include "SourceFile.h"
#include "support/TempHome.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// No folder builds on another of its floor.
const layers::BuildsOn featuresBuildOn = {};

std::string joined(const QStringList &lines)
{
    return lines.join(u'\n').toStdString();
}

const std::vector<SourceFile> &realTree()
{
    static const std::vector<SourceFile> files =
        SourceFile::allBelow(QStringLiteral(QUILLMERE_SOURCE_DIR "/src"));
    return files;
}

/// A tree with one file of that content.
std::vector<SourceFile> treeOf(const TempHome &temp, const QString &path, const QByteArray &content)
{
    temp.file(path, content);
    return SourceFile::allBelow(temp.path());
}

/// What is wrong with one include of one file.
QStringList objections(const QString &path, const QString &included, const layers::BuildsOn &buildsOn = {})
{
    const TempHome temp;
    const QByteArray line = "#include \"" + included.toUtf8() + "\"\n";
    return layers::brokenIncludes(treeOf(temp, path, line), buildsOn);
}

} // namespace

TEST(Layers, includesPointDown)
{
    const QStringList broken = layers::brokenIncludes(realTree(), featuresBuildOn);
    EXPECT_TRUE(broken.isEmpty()) << joined(broken);
}

TEST(Layers, filesIncludeEachOtherInNoCircle)
{
    const QStringList circle = layers::circle(layers::includeGraph(realTree()));
    EXPECT_TRUE(circle.isEmpty()) << joined(circle);
}

TEST(Layers, servicesKnowNoScreens)
{
    const QStringList broken = layers::servicesThatKnowScreens(realTree());
    EXPECT_TRUE(broken.isEmpty()) << joined(broken);
}

TEST(Layers, onlyPlatformIsConditionalOnTheSystem)
{
    QStringList found = layers::platformConditions(realTree());
    found += layers::platformConditions(SourceFile::allBelow(QStringLiteral(QUILLMERE_SOURCE_DIR "/tools")));
    EXPECT_TRUE(found.isEmpty()) << joined(found);
}

TEST(Layers, areCheckedOnTheWholeTree)
{
    for (const QString &path : {u"base/Paths.cpp"_s, u"platform/linux/LinuxPlatform.h"_s,
                                u"disk/DiskService.h"_s, u"program/main.cpp"_s}) {
        const auto file = std::ranges::find(realTree(), path, &SourceFile::path);
        ASSERT_NE(file, realTree().end()) << path.toStdString();
        EXPECT_FALSE(file->includes().empty()) << path.toStdString();
    }
}

TEST(LayerRules, findQuotedIncludesWithTheirLines)
{
    const TempHome temp;
    const auto files =
        treeOf(temp, u"base/A.cpp"_s,
               "// #include \"shell/No.h\"\n#include <vector>\n  #  include \"base/B.h\" // why\n"
               "#include \"base/C.h\"\r\n");
    ASSERT_EQ(files.size(), 1U);
    const auto includes = files.front().includes();
    ASSERT_EQ(includes.size(), 2U);
    EXPECT_EQ(includes[0].path, u"base/B.h"_s);
    EXPECT_EQ(includes[0].line, 3);
    EXPECT_EQ(includes[1].path, u"base/C.h"_s);
}

TEST(LayerRules, lookAtSourcesOfAllKindsAndNothingElse)
{
    const TempHome temp;
    for (const QString &path :
         {u"base/A.h"_s, u"base/deep/B.cpp"_s, u"platform/macos/C.mm"_s, u"shell/D.qml"_s})
        temp.file(path, "#include \"base/X.h\"\n");
    const auto files = SourceFile::allBelow(temp.path());
    ASSERT_EQ(files.size(), 3U);
    EXPECT_EQ(files[0].path, u"base/A.h"_s);
    EXPECT_EQ(files[1].path, u"base/deep/B.cpp"_s);
    EXPECT_EQ(files[2].path, u"platform/macos/C.mm"_s);
}

TEST(LayerRules, letIncludesPointDown)
{
    const std::vector<std::pair<QString, QString>> allowed = {
        {u"base/A.h"_s, u"base/B.h"_s},
        {u"platform/A.h"_s, u"base/B.h"_s},
        {u"platform/linux/A.h"_s, u"platform/B.h"_s},
        {u"platform/linux/A.h"_s, u"platform/linux/B.h"_s},
        {u"common/A.h"_s, u"platform/B.h"_s},
        {u"controls/A.h"_s, u"base/B.h"_s},
        {u"filesystem/A.h"_s, u"common/B.h"_s},
        {u"disk/A.h"_s, u"filesystem/B.h"_s},
        {u"disk/A.h"_s, u"controls/B.h"_s},
        {u"shell/A.h"_s, u"disk/B.h"_s},
        {u"shell/A.h"_s, u"common/B.h"_s},
        {u"program/main.cpp"_s, u"platform/linux/B.h"_s},
        {u"program/main.cpp"_s, u"platform/macos/B.h"_s},
    };
    for (const auto &[from, to] : allowed)
        EXPECT_EQ(objections(from, to), QStringList()) << from.toStdString();
}

TEST(LayerRules, refuseIncludesThatPointUp)
{
    const std::vector<std::pair<QString, QString>> refused = {
        {u"base/A.h"_s, u"platform/B.h"_s},       {u"platform/A.h"_s, u"common/B.h"_s},
        {u"platform/A.h"_s, u"filesystem/B.h"_s}, {u"platform/linux/A.h"_s, u"disk/B.h"_s},
        {u"common/A.h"_s, u"disk/B.h"_s},         {u"controls/A.h"_s, u"shell/B.h"_s},
        {u"filesystem/A.h"_s, u"disk/B.h"_s},     {u"disk/A.h"_s, u"shell/B.h"_s},
        {u"browser/A.h"_s, u"shell/B.h"_s},       {u"activity/A.h"_s, u"disk/B.h"_s},
        {u"common/A.h"_s, u"controls/B.h"_s},     {u"shell/A.h"_s, u"program/B.h"_s},
    };
    for (const auto &[from, to] : refused)
        EXPECT_EQ(objections(from, to), QStringList(u"%1:1 includes %2: above it"_s.arg(from, to)));
}

TEST(LayerRules, refuseIncludesBetweenFoldersOfOneHeight)
{
    for (const auto &[from, to] :
         std::vector<std::pair<QString, QString>>{{u"disk/A.h"_s, u"duplicates/B.h"_s},
                                                  {u"duplicates/A.h"_s, u"disk/B.h"_s},
                                                  {u"platform/linux/A.h"_s, u"common/B.h"_s}})
        EXPECT_EQ(objections(from, to), QStringList(u"%1:1 includes %2: beside it"_s.arg(from, to)));
}

TEST(LayerRules, letAFeatureIncludeWhatItIsToldToBuildOn)
{
    const layers::BuildsOn buildsOn = {{u"browser"_s, {u"search"_s}}};
    EXPECT_EQ(objections(u"browser/A.h"_s, u"search/B.h"_s, buildsOn), QStringList());
    EXPECT_EQ(objections(u"search/A.h"_s, u"browser/B.h"_s, buildsOn).size(), 1);
    EXPECT_EQ(objections(u"browser/A.h"_s, u"disk/B.h"_s, buildsOn).size(), 1);
    EXPECT_EQ(objections(u"base/A.h"_s, u"browser/B.h"_s, {{u"base"_s, {u"browser"_s}}}).size(), 1)
        << "no list makes an include that points up right";
}

TEST(LayerRules, refuseASystemsAdaptersElsewhereThanAtTheEntry)
{
    for (const QString &from : {u"platform/A.h"_s, u"program/Composition.cpp"_s, u"disk/A.h"_s, u"base/A.h"_s,
                                u"platform/macos/A.h"_s, u"program/main.h"_s})
        EXPECT_EQ(objections(from, u"platform/linux/B.h"_s),
                  QStringList(u"%1:1 includes platform/linux/B.h: a system's adapters"_s.arg(from)));
}

TEST(LayerRules, refuseIncludesByOtherThanTheFullPath)
{
    for (const QString &to :
         {u"B.h"_s, u"../base/B.h"_s, u"disk/../shell/B.h"_s, u"other/B.h"_s, u"./base/B.h"_s})
        EXPECT_EQ(objections(u"disk/A.h"_s, to),
                  QStringList(u"disk/A.h:1 includes %1: no folder of the plan"_s.arg(to)));
    EXPECT_EQ(objections(u"other/A.h"_s, u"base/B.h"_s).size(), 1);
}

TEST(LayerRules, refuseAServiceThatIncludesAScreenModel)
{
    const TempHome temp;
    temp.file(u"disk/DiskService.cpp"_s,
              "#include \"disk/DiskService.h\"\n#include \"disk/TreemapView.h\"\n");
    temp.file(u"cleanup/CleanupViewModel.h"_s, "#include \"cleanup/SmartCleanupView.h\"\n");
    temp.file(u"disk/TreemapView.cpp"_s,
              "#include \"disk/TreemapView.h\"\n#include \"disk/DiskService.h\"\n");
    const QStringList expected = {u"cleanup/CleanupViewModel.h:1 includes cleanup/SmartCleanupView.h"_s,
                                  u"disk/DiskService.cpp:2 includes disk/TreemapView.h"_s};
    EXPECT_EQ(layers::servicesThatKnowScreens(SourceFile::allBelow(temp.path())), expected);
}

TEST(LayerRules, findACircleOfFiles)
{
    const TempHome temp;
    temp.file(u"base/A.h"_s, "#include \"base/B.h\"\n");
    temp.file(u"base/B.h"_s, "#include \"base/D.h\"\n#include \"base/C.h\"\n");
    temp.file(u"base/C.h"_s, "#include \"base/B.h\"\n");
    temp.file(u"base/D.h"_s, "");
    EXPECT_EQ(layers::circle(layers::includeGraph(SourceFile::allBelow(temp.path()))),
              QStringList({u"base/B.h"_s, u"base/C.h"_s, u"base/B.h"_s}));
}

TEST(LayerRules, findAFileThatIncludesItself)
{
    const TempHome temp;
    EXPECT_EQ(layers::circle(layers::includeGraph(treeOf(temp, u"base/A.h"_s, "#include \"base/A.h\"\n"))),
              QStringList({u"base/A.h"_s, u"base/A.h"_s}));
}

TEST(LayerRules, takeTwoWaysToOneFileForNoCircle)
{
    const layers::BuildsOn diamond = {{u"a"_s, {u"b"_s, u"c"_s}}, {u"b"_s, {u"d"_s}}, {u"c"_s, {u"d"_s}}};
    EXPECT_EQ(layers::circle(diamond), QStringList());
}

TEST(LayerRules, findConditionsOnTheSystem)
{
    for (const QByteArray &line :
         {QByteArray("#ifdef Q_OS_LINUX"), QByteArray("  # if defined(Q_OS_MACOS) && 1"),
          QByteArray("#ifndef __linux__"), QByteArray("#elif defined __APPLE__"),
          QByteArray("#if A || \\\n    defined(Q_OS_WIN)"), QByteArray("#if TARGET_OS_MAC")}) {
        const TempHome temp;
        const auto files = treeOf(temp, u"base/A.h"_s, "\n" + line + "\n#endif\n");
        const QStringList found = layers::platformConditions(files);
        ASSERT_EQ(found.size(), 1) << line.toStdString();
        EXPECT_TRUE(found.first().startsWith(u"base/A.h:2 #")) << found.first().toStdString();
    }
}

TEST(LayerRules, allowConditionsOnTheSystemInPlatformAndOthersEverywhere)
{
    const TempHome temp;
    temp.file(u"platform/linux/A.cpp"_s, "#ifdef __linux__\n#endif\n");
    temp.file(u"base/B.h"_s,
              "#if QT_VERSION >= 0x060500\n#endif // Q_OS_LINUX\n#ifndef linuxLocations\n#endif\n");
    EXPECT_EQ(layers::platformConditions(SourceFile::allBelow(temp.path())), QStringList());
}
