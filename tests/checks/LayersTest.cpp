#include "LayerRules.h"
#include "SourceFile.h"
#include "support/TempHome.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// As the build tells them.
const QStringList tools = QStringLiteral(QUILLMERE_TOOL_FOLDERS).split(u' ');

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

/// The programs that stand beside src/.
std::vector<SourceFile> outerTree()
{
    std::vector<SourceFile> files = SourceFile::allBelow(QStringLiteral(QUILLMERE_SOURCE_DIR "/tools"));
    for (const SourceFile &file : SourceFile::allBelow(QStringLiteral(QUILLMERE_SOURCE_DIR "/benchmarks")))
        files.push_back(file);
    return files;
}

/// A tree with one file of that content.
std::vector<SourceFile> treeOf(const TempHome &temp, const QString &path, const QByteArray &content)
{
    temp.file(path, content);
    return SourceFile::allBelow(temp.path());
}

/// What is wrong with one include of one file.
QStringList objections(const QString &path, const QString &included)
{
    const TempHome temp;
    const QByteArray line = "#include \"" + included.toUtf8() + "\"\n";
    return layers::brokenIncludes(treeOf(temp, path, line),
                                  {u"disk"_s, u"duplicates"_s, u"search"_s, u"browser"_s});
}

} // namespace

TEST(Layers, includesPointDown)
{
    const QStringList broken = layers::brokenIncludes(realTree(), tools);
    EXPECT_TRUE(broken.isEmpty()) << joined(broken);
}

TEST(Layers, filesIncludeEachOtherInNoCircle)
{
    const QStringList circle = layers::circle(layers::includeGraph(realTree()));
    EXPECT_TRUE(circle.isEmpty()) << joined(circle);
}

TEST(Layers, programsBesideTheTreeIncludeItByFullPaths)
{
    const QStringList broken = layers::brokenOuterIncludes(outerTree(), tools);
    EXPECT_TRUE(broken.isEmpty()) << joined(broken);
}

TEST(Layers, onlyTheCompositionAsksForAServicesOneInstance)
{
    const QStringList found = layers::sharedElsewhere(realTree()) + layers::sharedElsewhere(outerTree());
    EXPECT_TRUE(found.isEmpty()) << joined(found);
}

TEST(Layers, everyToolOfTheBuildHasItsFolder)
{
    for (const QString &tool : tools) {
        EXPECT_TRUE(std::ranges::any_of(realTree(), [&tool](const SourceFile &file) {
            return file.path.startsWith(tool + u'/');
        })) << tool.toStdString();
    }
}

TEST(Layers, servicesKnowNoScreens)
{
    const QStringList broken = layers::servicesThatKnowScreens(realTree());
    EXPECT_TRUE(broken.isEmpty()) << joined(broken);
}

TEST(Layers, onlyPlatformIsConditionalOnTheSystem)
{
    const QStringList found =
        layers::platformConditions(realTree()) + layers::platformConditions(outerTree());
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
        {u"dashboard/A.h"_s, u"disk/B.h"_s},
        {u"dashboard/A.h"_s, u"duplicates/B.h"_s},
        {u"shell/A.h"_s, u"dashboard/B.h"_s},
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
        {u"disk/A.h"_s, u"dashboard/B.h"_s},      {u"dashboard/A.h"_s, u"shell/B.h"_s},
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
    temp.file(u"disk/DiskService.h"_s, "class DiskService final : public QObject\n{\n};\n");
    temp.file(u"disk/DiskComputations.cpp"_s,
              "#include \"disk/DiskService.h\"\n#include \"disk/Map.h\"\n\nint DiskService::sum()\n{\n}\n");
    temp.file(u"disk/Map.h"_s, "class TreemapView final\n    : public QObject\n{\n};\n");
    temp.file(u"disk/Other.cpp"_s, "#include \"disk/Map.h\"\n\nint other()\n{\n    DiskService::sum();\n}\n");
    temp.file(u"cleanup/CleanupViewModel.h"_s,
              "#include \"cleanup/SmartCleanupView.h\"\nclass CleanupViewModel : public QObject {\n};\n");
    temp.file(u"cleanup/SmartCleanupView.h"_s,
              "#include \"disk/DiskService.h\"\nclass CleanupViewModel;\nclass SmartCleanupView {\n};\n");
    const QStringList expected = {u"cleanup/CleanupViewModel.h:1 includes cleanup/SmartCleanupView.h"_s,
                                  u"disk/DiskComputations.cpp:2 includes disk/Map.h"_s};
    EXPECT_EQ(layers::servicesThatKnowScreens(SourceFile::allBelow(temp.path())), expected);
}

TEST(LayerRules, letProgramsBesideTheTreeIncludeAllOfItButAdaptersOutsideTheirEntries)
{
    const TempHome temp;
    temp.file(u"demo/main.cpp"_s, "#include \"Home.h\"\n#include \"platform/linux/A.h\"\n"
                                  "#include \"program/B.h\"\n\nint main(int argc)\n{\n}\n");
    temp.file(u"demo/Home.h"_s, "#include \"platform/linux/A.h\"\n#include \"../src/base/C.h\"\n");
    const QStringList expected = {u"demo/Home.h:1 includes platform/linux/A.h: a system's adapters"_s,
                                  u"demo/Home.h:2 includes ../src/base/C.h: no folder of the plan"_s};
    EXPECT_EQ(layers::brokenOuterIncludes(SourceFile::allBelow(temp.path()), {}), expected);
}

TEST(LayerRules, letProgramsBesideTheTreeIncludeWhatIsTheirsFromItsFolder)
{
    const TempHome temp;
    temp.file(u"demo/main.cpp"_s, "#include \"gallery/Own.h\"\n#include \"gallery/Gone.h\"\n");
    temp.file(u"demo/gallery/Own.h"_s, "");
    const QStringList expected = {u"demo/main.cpp:2 includes gallery/Gone.h: no folder of the plan"_s};
    EXPECT_EQ(layers::brokenOuterIncludes(SourceFile::allBelow(temp.path()), {}), expected);
}

TEST(LayerRules, refuseAServicesOneInstanceOutsideTheComposition)
{
    const TempHome temp;
    temp.file(u"disk/DiskService.cpp"_s, "DiskService &DiskService::shared(const Platform &)\n{\n}\n");
    temp.file(u"program/Composition.cpp"_s, "void f()\n{\n    DiskService::shared(platform);\n}\n");
    temp.file(u"driver/Verbs.cpp"_s, "// DiskService::shared(platform)\n\nint i = DiskService::shared(p).i;\n"
                                     "const char *text = \"DiskService::shared(\";\n");
    EXPECT_EQ(layers::sharedElsewhere(SourceFile::allBelow(temp.path())),
              QStringList(u"driver/Verbs.cpp:3 DiskService::shared("_s));
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
    const layers::Graph diamond = {{u"a"_s, {u"b"_s, u"c"_s}}, {u"b"_s, {u"d"_s}}, {u"c"_s, {u"d"_s}}};
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
