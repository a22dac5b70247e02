#include "base/PropertyList.h"

#include "makers/PropertyLists.h"

#include <QJsonArray>
#include <QJsonObject>

#include <random>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList askedKeys = {u"CFBundleName"_s, u"CFBundleIdentifier"_s};
constexpr int changesOfEach = 4000;

QJsonObject sample()
{
    QJsonArray types;
    for (int i = 0; i < 8; ++i)
        types.append(
            QJsonObject{{u"Extensions"_s, QJsonArray{u"tide"_s, u"sea"_s, i}}, {u"Öffnet"_s, i % 2 == 0}});
    return {{u"CFBundleName"_s, u"Tide Tables"_s},
            {u"CFBundleIdentifier"_s, u"com.example.tides"_s},
            {u"Types"_s, types},
            {u"Long"_s, QString(300, u'x')}};
}

/// Lists that were changed at random, the same in each run. Gives how many of them still told all texts.
int readChanged(const QByteArray &list, unsigned seed)
{
    std::mt19937 random(seed);
    const auto below = [&random](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(end));
    };
    int whole = 0;
    for (int i = 0; i < changesOfEach; ++i) {
        QByteArray changed = list;
        for (qsizetype flips = 1 + below(4); flips > 0; --flips)
            changed[below(changed.size())] = static_cast<char>(random());
        if (i % 8 == 0)
            changed.truncate(below(changed.size()));
        else if (i % 8 == 1)
            changed.insert(below(changed.size()), list.sliced(below(list.size()), 1));
        const auto texts = propertylist::texts(changed, askedKeys);
        EXPECT_LE(texts.size(), 2);
        whole += texts.size() == 2 ? 1 : 0;
    }
    return whole;
}

} // namespace

// Most changes hit a value that nobody asks for: were no such list read, the damage would never get past the first look.
TEST(PropertyListFuzz, neitherEndsNorHangsOnAChangedXmlList)
{
    const int whole = readChanged(propertylists::xml(sample()), 1);
    EXPECT_GT(whole, 100);
    EXPECT_LT(whole, changesOfEach);
}

TEST(PropertyListFuzz, neitherEndsNorHangsOnAChangedBinaryList)
{
    const int whole = readChanged(propertylists::binary(sample()), 2);
    EXPECT_GT(whole, 100);
    EXPECT_LT(whole, changesOfEach);
}

TEST(PropertyListFuzz, readsEachBeginningOfAList)
{
    for (const QByteArray &list : {propertylists::xml(sample()), propertylists::binary(sample())}) {
        for (qsizetype size = 0; size < list.size(); ++size)
            EXPECT_LE(propertylist::texts(list.first(size), askedKeys).size(), 2);
        EXPECT_EQ(propertylist::texts(list, askedKeys).size(), 2);
    }
}
