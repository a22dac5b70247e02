#include "base/PropertyList.h"

#include "base/PropertyListBounds.h"
#include "makers/PropertyLists.h"
#include "support/TempHome.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using Texts = QMap<QString, QString>;

const QStringList keys = {u"CFBundleName"_s, u"CFBundleIdentifier"_s, u"NSHumanReadableCopyright"_s};

const Texts described = {{u"CFBundleName"_s, u"Tide Tables"_s},
                         {u"CFBundleIdentifier"_s, u"com.example.tides"_s},
                         {u"NSHumanReadableCopyright"_s, u"© Öresund & <Sons> 🌊"_s}};

QJsonObject description()
{
    QJsonObject object = {
        {u"CFBundleDocumentTypes"_s,
         QJsonArray{QJsonObject{{u"CFBundleTypeExtensions"_s, QJsonArray{u"tide"_s, u"sea"_s}},
                                {u"CFBundleName"_s, u"the name of an inner one"_s}}}},
        {u"LSMinimumSystemVersion"_s, u"12.0"_s},
        {u"NSSupportsSuddenTermination"_s, true},
        {u"Number"_s, 5000000000.0},
        {u"Long text that takes a count of its own"_s, QString(100000, u'x')},
    };
    for (auto text = described.begin(); text != described.end(); ++text)
        object.insert(text.key(), text.value());
    return object;
}

/// Arrays inside arrays, that many, in a dictionary that also tells a name.
QByteArray deepXml(int depth)
{
    QByteArray list = propertylists::xml(QJsonObject{{u"CFBundleName"_s, u"Deep"_s}, {u"Inner"_s, u"@"_s}});
    return list.replace("<string>@</string>",
                        QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
}

QByteArray deepBinary(quint32 depth)
{
    std::vector<QByteArray> objects = {propertylists::binaryDictionary({1, 3}, {2, 4}),
                                       propertylists::binaryText("CFBundleName"),
                                       propertylists::binaryText("Deep"), propertylists::binaryText("Inner")};
    for (quint32 level = 1; level <= depth; ++level)
        objects.push_back(propertylists::binaryArray(level == depth ? std::vector<quint32>()
                                                                    : std::vector<quint32>{4 + level}));
    return propertylists::binaryOf(objects);
}

QString nameIn(const QByteArray &list)
{
    return propertylist::texts(list, {u"CFBundleName"_s}).value(u"CFBundleName"_s);
}

/// A binary list with a name, and under another key what the first of `objects` is, which have the places from 4 on.
QByteArray withInner(const std::vector<QByteArray> &objects)
{
    std::vector<QByteArray> all = {propertylists::binaryDictionary({1, 3}, {2, 4}),
                                   propertylists::binaryText("CFBundleName"),
                                   propertylists::binaryText("Named"), propertylists::binaryText("Inner")};
    all.insert(all.end(), objects.begin(), objects.end());
    return propertylists::binaryOf(all);
}

} // namespace

TEST(PropertyList, tellsTheTextsOfBothForms)
{
    EXPECT_EQ(propertylist::texts(propertylists::xml(description()), keys), described);
    EXPECT_EQ(propertylist::texts(propertylists::binary(description()), keys), described);
}

TEST(PropertyList, leavesOutWhatIsMissingAndWhatIsNoText)
{
    const QJsonObject object = {{u"CFBundleName"_s, 5},
                                {u"CFBundleIdentifier"_s, QJsonArray{u"com.example"_s}},
                                {u"NSHumanReadableCopyright"_s, u""_s}};
    const Texts onlyTheEmptyOne = {{u"NSHumanReadableCopyright"_s, u""_s}};
    EXPECT_EQ(propertylist::texts(propertylists::xml(object), keys), onlyTheEmptyOne);
    EXPECT_EQ(propertylist::texts(propertylists::binary(object), keys), onlyTheEmptyOne);
}

TEST(PropertyList, needsADictionaryAtTheTop)
{
    for (const QJsonValue &top : {QJsonValue(QJsonArray{description()}), QJsonValue(u"CFBundleName"_s)}) {
        EXPECT_EQ(propertylist::texts(propertylists::xml(top), keys), Texts());
        EXPECT_EQ(propertylist::texts(propertylists::binary(top), keys), Texts());
    }
}

TEST(PropertyList, tellsNothingOfWhatIsNone)
{
    for (const QByteArray &content :
         {QByteArray(), QByteArray("bplist00"), QByteArray("bplist"), QByteArray("<"), QByteArray("<plist>"),
          QByteArray("CFBundleName = Tides;"), QByteArray(1000, '\0'),
          QByteArray("bplist00") + QByteArray(64, '\xff'), QByteArray("<dict><key>CFBundleName</key>"),
          QByteArray("<!--"), QByteArray("<![CDATA[")})
        EXPECT_EQ(propertylist::texts(content, keys), Texts()) << content.toStdString();
}

TEST(PropertyList, passesOverAMarkOfTheByteOrderAndComments)
{
    QByteArray list = propertylists::xml(description());
    EXPECT_EQ(propertylist::texts("\xef\xbb\xbf" + list, keys), described);
    list.replace("<plist version=\"1.0\">\n<dict>",
                 "<plist version=\"1.0\">\n<dict><!-- \"</dict>\" <dict> -->");
    EXPECT_EQ(propertylist::texts(list, keys), described);
    list.replace("<string>Tide Tables</string>", "<string><![CDATA[Tide Tables]]></string>");
    EXPECT_EQ(propertylist::texts(list, keys), described);
}

TEST(PropertyList, readsNoDeeperThanItsBound)
{
    EXPECT_EQ(nameIn(deepXml(propertylistbounds::deepest - 1)), u"Deep");
    EXPECT_EQ(nameIn(deepXml(propertylistbounds::deepest)), QString());
    EXPECT_EQ(nameIn(deepXml(200000)), QString());
    EXPECT_EQ(nameIn(deepBinary(propertylistbounds::deepest)), u"Deep");
    EXPECT_EQ(nameIn(deepBinary(propertylistbounds::deepest + 1)), QString());
    EXPECT_EQ(nameIn(deepBinary(200000)), QString());
}

TEST(PropertyList, letsNoDepthHideBehindWhatIsNoElement)
{
    for (const QByteArray &hiding :
         {QByteArray("<array a=\"/>\">"), QByteArray("<array><string a=\"</array>\"></string>"),
          QByteArray("<array><?x </array>?>"), QByteArray("<array><!X </array>>"),
          QByteArray("<array><![CDATA[</array>]]>"), QByteArray("<array/ >"), QByteArray("<array\n>"),
          QByteArray("<array ><!-- </array> -->")}) {
        const QByteArray list = "<plist><dict><key>CFBundleName</key><string>Deep</string><key>Inner</key>"
                                + hiding.repeated(100000);
        EXPECT_FALSE(propertylistbounds::areKeptByXml(list)) << hiding.toStdString();
        EXPECT_EQ(nameIn(list), QString());
    }
}

TEST(PropertyList, followsNoCircle)
{
    EXPECT_EQ(nameIn(withInner({propertylists::binaryText("sound")})), u"Named");
    EXPECT_EQ(nameIn(withInner({propertylists::binaryArray({4})})), QString());
    EXPECT_EQ(nameIn(withInner({propertylists::binaryArray({0})})), QString());
    EXPECT_EQ(
        nameIn(withInner({propertylists::binaryArray({5, 5}), propertylists::binaryDictionary({3}, {4})})),
        QString());
}

TEST(PropertyList, takesNoListThatUnfoldsBeyondItsBound)
{
    std::vector<QByteArray> unfolding; // each level holds the next one twice
    for (quint32 level = 1; level <= 40; ++level)
        unfolding.push_back(propertylists::binaryArray({4 + level, 4 + level}));
    unfolding.push_back(propertylists::binaryText("end"));
    EXPECT_EQ(nameIn(withInner(unfolding)), QString());

    const std::vector<quint32> often(2000, 5); // a large text, again and again
    EXPECT_EQ(nameIn(withInner(
                  {propertylists::binaryArray(often), propertylists::binaryText(QByteArray(1000000, 'x'))})),
              QString());
    EXPECT_EQ(nameIn(withInner({propertylists::binaryArray(often), propertylists::binaryText("small")})),
              u"Named");
}

TEST(PropertyList, refusesReferencesAndCountsThatLeadOutOfTheList)
{
    EXPECT_EQ(nameIn(withInner({propertylists::binaryArray({5})})), QString());
    EXPECT_EQ(nameIn(withInner({propertylists::binaryArray({0xffffffff})})), QString());
    const QByteArray tooLong = propertylists::binaryText(QByteArray(100, 'x')).first(20);
    EXPECT_EQ(nameIn(withInner({tooLong})), QString());
    for (const char *object :
         {"\xaf", "\xaf\x12\xff\xff\xff\xff", "\xdf\x13\x7f\xff\xff\xff\xff\xff\xff\xff",
          "\xdf\x13\xff\xff\xff\xff\xff\xff\xff\xff", "\x5f\x13\xff\xff\xff\xff\xff\xff\xff\xff", "\x4f\x14",
          "\x6f\x50", "\x70", "\xb0", "\xef"})
        EXPECT_EQ(nameIn(withInner({object})), QString()) << QByteArray(object).toHex().toStdString();
}

TEST(PropertyList, readsAFileUpToItsBound)
{
    const TempHome temp;
    const QByteArray list = propertylists::xml(description());
    EXPECT_EQ(propertylist::textsOfFile(temp.file(u"list"_s, list), keys), described);
    const QByteArray filler(propertylist::largestFile - list.size(), '\n');
    EXPECT_EQ(propertylist::textsOfFile(temp.file(u"large"_s, list + filler), keys), described);
    EXPECT_EQ(propertylist::textsOfFile(temp.file(u"larger"_s, list + filler + '\n'), keys), Texts());
    EXPECT_EQ(propertylist::textsOfFile(temp.sparseFile(u"gigantic"_s, qint64(1) << 40), keys), Texts());
    EXPECT_EQ(propertylist::texts(list + filler + '\n', keys), Texts());
}

TEST(PropertyList, readsNothingButRegularFiles)
{
    const TempHome temp;
    EXPECT_EQ(propertylist::textsOfFile(temp.at(u"missing"_s), keys), Texts());
    EXPECT_EQ(propertylist::textsOfFile(temp.folder(u"folder"_s), keys), Texts());
    ASSERT_EQ(mkfifo(temp.at(u"pipe"_s).toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(propertylist::textsOfFile(temp.at(u"pipe"_s), keys), Texts());
}
