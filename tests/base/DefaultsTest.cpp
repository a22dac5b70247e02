#include "base/Defaults.h"

#include <cmath>
#include <limits>
#include <optional>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"key"_s;

Defaults &with(Defaults &defaults, const QVariant &value)
{
    defaults.set(key, value);
    return defaults;
}

/// A store beneath the defaults, as a system's own is.
class WatchedDefaults final : public Defaults
{
public:
    QStringList calls;

protected:
    QVariant stored(const QString &name) const override { return name == u"own" ? QVariant(7) : QVariant(); }
    void store(const QString &name, const QVariant &value) override
    {
        calls << u"store %1 %2"_s.arg(name, value.toString());
    }
    void erase(const QString &name) override { calls << u"erase "_s + name; }
};

} // namespace

TEST(Defaults, giveZeroValuesForAMissingKey)
{
    const Defaults defaults;
    EXPECT_FALSE(defaults.value(key).isValid());
    EXPECT_FALSE(defaults.boolean(key));
    EXPECT_EQ(defaults.integer(key), 0);
}

TEST(Defaults, keepTheTypesOfWhatIsStored)
{
    Defaults defaults;
    EXPECT_TRUE(with(defaults, true).boolean(key));
    EXPECT_FALSE(with(defaults, false).boolean(key));
    EXPECT_EQ(with(defaults, 12).integer(key), 12);
    EXPECT_EQ(with(defaults, 12U).integer(key), 12);
    EXPECT_EQ(with(defaults, u"text"_s).value(key), QVariant(u"text"_s));
    const QVariantList list = {u"a"_s, 1, true};
    EXPECT_EQ(with(defaults, list).value(key), QVariant(list));
    const QVariantMap map = {{u"name"_s, u"Home"_s}};
    EXPECT_EQ(with(defaults, map).value(key), QVariant(map));
}

TEST(Defaults, giveFalseForAValueThatIsNoBoolean)
{
    Defaults defaults;
    for (const QVariant &value : {QVariant(1), QVariant(1.0), QVariant(u"true"_s),
                                  QVariant(QVariantList{true}), QVariant(QVariantMap{})})
        EXPECT_FALSE(with(defaults, value).boolean(key)) << value.typeName();
}

TEST(Defaults, giveZeroForAValueThatIsNoInteger)
{
    Defaults defaults;
    for (const QVariant &value : {QVariant(true), QVariant(u"5"_s), QVariant(2.5), QVariant(QVariantList{5}),
                                  QVariant(QVariantMap{}), QVariant(std::nan("")), QVariant(INFINITY)})
        EXPECT_EQ(with(defaults, value).integer(key), 0) << value.typeName();
}

TEST(Defaults, giveNoIntegerForAMissingKeyOrAValueThatIsNone)
{
    Defaults defaults;
    EXPECT_EQ(defaults.integerIfAny(key), std::nullopt);
    for (const QVariant &value :
         {QVariant(true), QVariant(u"5"_s), QVariant(2.5), QVariant(0x1p63), QVariant(QVariantList{5}),
          QVariant(QVariantMap{}), QVariant(std::nan("")), QVariant(-INFINITY)})
        EXPECT_EQ(with(defaults, value).integerIfAny(key), std::nullopt) << value.typeName();
}

TEST(Defaults, tellAZeroFromNoInteger)
{
    Defaults defaults;
    EXPECT_EQ(with(defaults, 0).integerIfAny(key), 0);
    EXPECT_EQ(with(defaults, 0.0).integerIfAny(key), 0);
    EXPECT_EQ(with(defaults, -0.0).integerIfAny(key), 0);
}

TEST(Defaults, giveTheIntegerWhereThereIsOne)
{
    Defaults defaults;
    defaults.registerDefaults({{key, 102400}});
    EXPECT_EQ(defaults.integerIfAny(key), 102400);
    for (const qint64 number : {std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min(),
                                qint64(-1), (qint64(1) << 53) + 1})
        EXPECT_EQ(with(defaults, number).integerIfAny(key), number);
    EXPECT_EQ(with(defaults, 5.0).integerIfAny(key), 5);
    EXPECT_EQ(with(defaults, -0x1p63).integerIfAny(key), std::numeric_limits<qint64>::min());
    EXPECT_EQ(with(defaults, u"text"_s).integerIfAny(key), std::nullopt) << "not the registered one";
}

TEST(Defaults, giveIntegersBeyondTheWholeNumbersOfADouble)
{
    Defaults defaults;
    for (const qint64 number : {(qint64(1) << 53) + 1, -(qint64(1) << 53) - 1,
                                std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min()})
        EXPECT_EQ(with(defaults, number).integer(key), number);
}

TEST(Defaults, giveAWholeDoubleAsTheIntegerThatItIs)
{
    Defaults defaults;
    for (const double number : {5.0, -5.0, 4503599627370497.0, -4503599627370497.0, 9007199254740991.0,
                                -9007199254740991.0, 0x1p62, -0x1p63})
        EXPECT_EQ(with(defaults, number).integer(key), static_cast<qint64>(number)) << number;
}

TEST(Defaults, giveZeroForADoubleBeyond64Bits)
{
    Defaults defaults;
    EXPECT_EQ(with(defaults, 0x1p63).integer(key), 0);
    EXPECT_EQ(with(defaults, -0x1p64).integer(key), 0);
}

TEST(Defaults, giveRegisteredValuesInThePlaceOfMissingOnes)
{
    Defaults defaults;
    defaults.registerDefaults({{u"a"_s, 1}, {u"b"_s, true}});
    defaults.registerDefaults({{u"a"_s, 2}});
    EXPECT_EQ(defaults.integer(u"a"_s), 2);
    EXPECT_TRUE(defaults.boolean(u"b"_s));
}

TEST(Defaults, preferAStoredValueToTheRegisteredOne)
{
    Defaults defaults;
    defaults.set(key, false);
    defaults.registerDefaults({{key, true}});
    EXPECT_FALSE(defaults.boolean(key));
}

TEST(Defaults, bringTheRegisteredValueBackOnRemove)
{
    Defaults defaults;
    defaults.registerDefaults({{key, 5}});
    defaults.set(key, 60);
    EXPECT_EQ(defaults.integer(key), 60);
    defaults.remove(key);
    EXPECT_EQ(defaults.integer(key), 5);
    defaults.remove(key); // and once more, of what is not there
    EXPECT_EQ(defaults.integer(key), 5);
}

TEST(Defaults, doNotFallBackToTheRegisteredValueForAWrongType)
{
    Defaults defaults;
    defaults.registerDefaults({{key, 5}});
    EXPECT_EQ(with(defaults, u"soon"_s).integer(key), 0);
}

TEST(Defaults, giveListsOfTextsBack)
{
    Defaults defaults;
    const QString odd = u"/a/"_s + QChar(0xDCFF);
    EXPECT_EQ(defaults.texts(key), std::nullopt);
    EXPECT_EQ(with(defaults, QStringList{u"b"_s, odd, QString()}).texts(key),
              QStringList({u"b"_s, odd, QString()}));
    EXPECT_EQ(with(defaults, QStringList()).texts(key), QStringList());
    EXPECT_EQ(with(defaults, QVariantList{u"a"_s}).texts(key), QStringList({u"a"_s}));
    defaults.registerDefaults({{u"other"_s, QStringList{u"c"_s}}});
    EXPECT_EQ(defaults.texts(u"other"_s), QStringList({u"c"_s}));
}

TEST(Defaults, giveNoTextsForAListWithAnythingElse)
{
    Defaults defaults;
    for (const QVariant &value :
         {QVariant(u"a"_s), QVariant(1), QVariant(QVariantList{u"a"_s, 1}),
          QVariant(QVariantList{QVariant()}), QVariant(QVariantMap{{u"a"_s, u"b"_s}})})
        EXPECT_EQ(with(defaults, value).texts(key), std::nullopt) << value.typeName();
}

TEST(Defaults, tellOfEachChangeOfAKey)
{
    Defaults defaults;
    defaults.registerDefaults({{key, 5}});
    QObject owner;
    std::vector<qint64> seen;
    defaults.observe(key, &owner, [&] { seen.push_back(defaults.integer(key)); });
    defaults.set(key, 5); // as it stood
    defaults.set(u"other"_s, 1);
    EXPECT_TRUE(seen.empty());
    defaults.set(key, 6);
    defaults.set(key, 6);
    defaults.remove(key);
    defaults.remove(key);
    EXPECT_EQ(seen, (std::vector<qint64>{6, 5}));
}

TEST(Defaults, tellOfAListOnlyWhenItIsAnother)
{
    Defaults defaults;
    QObject owner;
    int changes = 0;
    defaults.set(key, QVariantList{u"a"_s});
    defaults.observe(key, &owner, [&] { ++changes; });
    defaults.set(key, QStringList{u"a"_s});
    EXPECT_EQ(changes, 0);
    defaults.set(key, QStringList{u"a"_s, u"b"_s});
    EXPECT_EQ(changes, 1);
}

TEST(Defaults, tellNobodyWhoHasGone)
{
    Defaults defaults;
    int changes = 0;
    {
        QObject owner;
        defaults.observe(key, &owner, [&] { ++changes; });
        defaults.set(key, 1);
    }
    defaults.set(key, 2);
    EXPECT_EQ(changes, 1);
}

TEST(Defaults, writeThroughToTheSystemsStoreAtOnce)
{
    WatchedDefaults defaults;
    defaults.registerDefaults({{u"own"_s, 1}, {u"other"_s, 2}});
    EXPECT_EQ(defaults.calls, QStringList());
    defaults.set(u"a"_s, 3);
    defaults.remove(u"a"_s);
    EXPECT_EQ(defaults.calls, QStringList({u"store a 3"_s, u"erase a"_s}));
    EXPECT_EQ(defaults.integer(u"own"_s), 7);
    EXPECT_EQ(defaults.integer(u"other"_s), 2);
}
