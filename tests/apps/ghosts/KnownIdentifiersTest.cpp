#include "apps/ghosts/KnownIdentifiers.h"

#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A system that knows some applications and writes down what it is asked.
struct System
{
    QSet<QString> known;
    QStringList asked = {};
    KnownIdentifiers identifiers{[this](const QString &identifier) {
        asked << identifier;
        return known.contains(identifier);
    }};
};

} // namespace

TEST(KnownIdentifiers, resolveAnIdentifierThatTheSystemKnows)
{
    System system{{u"com.example.tool"_s}};
    EXPECT_TRUE(system.identifiers.resolves(u"com.example.tool"_s));
    EXPECT_EQ(system.asked, QStringList{u"com.example.tool"_s});
}

TEST(KnownIdentifiers, goOnToShorterForms)
{
    struct Row
    {
        QString candidate;
        QStringList forms;
    };
    const std::vector<Row> table = {
        {u"com.example.tool-extra-2"_s,
         {u"com.example.tool-extra-2"_s, u"com.example.tool-extra"_s, u"com.example.tool"_s}},
        {u"com.example.app.helper"_s, {u"com.example.app.helper"_s, u"com.example.app"_s}},
        {u"com.example.app-b.helper-c"_s,
         {u"com.example.app-b.helper-c"_s, u"com.example.app-b.helper"_s, u"com.example.app-b"_s,
          u"com.example.app"_s}},
        {u"com.my-vendor.tool"_s, {u"com.my-vendor.tool"_s}},
        {u"com.example.-x"_s, {u"com.example.-x"_s, u"com.example."_s}},
        {u"com.example"_s, {}},
        {u"tool-extra"_s, {}},
        {QString(), {}},
    };
    for (const Row &row : table) {
        System system{{}};
        EXPECT_FALSE(system.identifiers.resolves(row.candidate));
        EXPECT_EQ(system.asked, row.forms) << row.candidate.toStdString();
    }
}

TEST(KnownIdentifiers, stopAtTheFirstFormThatIsKnown)
{
    System system{{u"com.example.tool-extra"_s, u"com.example.tool"_s}};
    EXPECT_TRUE(system.identifiers.resolves(u"com.example.tool-extra-2.helper"_s));
    EXPECT_EQ(system.asked, (QStringList{u"com.example.tool-extra-2.helper"_s, u"com.example.tool-extra-2"_s,
                                         u"com.example.tool-extra"_s}));
}

TEST(KnownIdentifiers, askForEachFormOnce)
{
    System system{{u"com.example.app"_s}};
    EXPECT_TRUE(system.identifiers.resolves(u"com.example.app.one"_s));
    EXPECT_TRUE(system.identifiers.resolves(u"com.example.app.two"_s));
    EXPECT_FALSE(system.identifiers.resolves(u"com.other.app.one"_s));
    EXPECT_FALSE(system.identifiers.resolves(u"com.other.app.two"_s));
    EXPECT_FALSE(system.identifiers.resolves(u"com.other.app.two"_s));
    EXPECT_EQ(system.asked,
              (QStringList{u"com.example.app.one"_s, u"com.example.app"_s, u"com.example.app.two"_s,
                           u"com.other.app.one"_s, u"com.other.app"_s, u"com.other.app.two"_s}));
}

TEST(KnownIdentifiers, askInTheCaseThatTheyAreGiven)
{
    System system{{u"com.Example.App"_s}};
    EXPECT_FALSE(system.identifiers.resolves(u"com.example.app"_s));
    EXPECT_TRUE(system.identifiers.resolves(u"com.Example.App"_s));
}
