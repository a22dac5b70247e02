#include "base/Paths.h"
#include "support/TempHome.h"

#include <QRegularExpression>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString wholeText(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return QString::fromStdString(std::string(std::istreambuf_iterator<char>(file), {}));
}

std::set<QString> found(const QString &text, const QString &pattern)
{
    std::set<QString> all;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();)
        all.insert(matches.next().captured(1));
    return all;
}

/// The types that QML is told of, and those written in it, outside of `controls/`.
std::set<QString> typesOutsideControls(const std::filesystem::path &root)
{
    std::set<QString> types;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::filesystem::path &path = entry.path();
        if (path.lexically_relative(root).string().starts_with("controls/"))
            continue;
        if (path.extension() == ".qml")
            types.insert(QString::fromStdString(path.stem().string()));
        else if (path.filename().string().ends_with("QmlTypes.h"))
            types.merge(found(wholeText(path), u"QML_FOREIGN\\((\\w+)\\)"_s));
    }
    return types;
}

/// The uses of such types by a control, a line each.
QStringList strangersInControls(const std::filesystem::path &root)
{
    const std::set<QString> strangers = typesOutsideControls(root);
    QStringList uses;
    for (const auto &entry : std::filesystem::directory_iterator(root / "controls")) {
        if (entry.path().extension() != ".qml")
            continue;
        const QString code = wholeText(entry.path()).remove(QRegularExpression(u"//[^\n]*"_s));
        for (const QString &word : found(code, u"\\b([A-Z]\\w*)"_s)) {
            if (strangers.contains(word))
                uses << QString::fromStdString(entry.path().filename().string()) + u" knows "_s + word;
        }
    }
    uses.sort();
    return uses;
}

} // namespace

TEST(ControlTypes, controlsKnowNoModelAndNoScreen)
{
    const std::filesystem::path root = QUILLMERE_SOURCE_DIR "/src";
    EXPECT_TRUE(typesOutsideControls(root).contains(u"DiskAnalyzerView"_s));
    EXPECT_TRUE(typesOutsideControls(root).contains(u"DiskAnalyzerScreen"_s));
    const QStringList uses = strangersInControls(root);
    EXPECT_TRUE(uses.isEmpty()) << uses.join(u'\n').toStdString();
}

TEST(ControlTypes, findAControlThatKnowsOne)
{
    const TempHome temp;
    temp.file(u"disk/DiskQmlTypes.h"_s, "    QML_FOREIGN(DiskView)\n");
    temp.file(u"disk/DiskCard.qml"_s, "Item { }\n");
    temp.file(u"controls/Plain.qml"_s, "// for a DiskView\nItem { }\n");
    temp.file(u"controls/Knowing.qml"_s,
              "Plain {\n    required property DiskView view\n    DiskCard { }\n}\n");
    EXPECT_EQ(strangersInControls(paths::toBytes(temp.path()).toStdString()),
              (QStringList{u"Knowing.qml knows DiskCard"_s, u"Knowing.qml knows DiskView"_s}));
}
