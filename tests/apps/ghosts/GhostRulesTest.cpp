#include "apps/ghosts/GhostRules.h"

#include "apps/ghosts/InstalledWords.h"
#include "apps/ghosts/KnownIdentifiers.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

InstalledWords withIdentifiers(const QStringList &identifiers)
{
    InstalledWords words;
    for (const QString &identifier : identifiers)
        words.addIdentifier(identifier);
    return words;
}

InstalledWords withNames(const QStringList &names, const QStringList &identifiers = {})
{
    InstalledWords words = withIdentifiers(identifiers);
    for (const QString &name : names)
        words.addName(name);
    return words;
}

/// What an entry is judged against, and what comes of it.
struct HeldRow
{
    QString entry;
    QStringList identifiers; ///< installed
    bool isHeld = true;
};

void expectHeld(const std::vector<HeldRow> &table)
{
    for (const HeldRow &row : table) {
        KnownIdentifiers nothing([](const QString &) { return false; });
        EXPECT_EQ(ghostrules::isHeld(row.entry, withIdentifiers(row.identifiers), nothing), row.isHeld)
            << row.entry.toStdString() << " with " << row.identifiers.join(u' ').toStdString();
    }
}

struct NameRow
{
    QString entry;
    QStringList names; ///< installed
    QStringList identifiers;
    bool isTaken = true;
};

struct LooksRow
{
    QString key;
    QString inferredName;
    QStringList names; ///< installed
    QStringList identifiers;
    bool looksInstalled = true;
};

} // namespace

TEST(Held, isTheEntryOfAnInstalledApplication)
{
    expectHeld({
        {u"com.ab.app"_s, {u"com.ab.app"_s}},
        {u"com.AB.App"_s, {u"COM.ab.aPP"_s}},
        {u"ABCDE12345.com.ab.app"_s, {u"com.ab.app"_s}},
        {u"group.com.ab.app"_s, {u"com.ab.app"_s}},
        {u"com.ab.app.binarycookies"_s, {u"com.ab.app"_s}},
        {u"com.cafe\u0301.app"_s, {u"com.caf\u00E9.app"_s}},
        {u"com.ab.app"_s, {}, false},
        {u"com.ab.app"_s, {u"org.ab.app"_s, u"com.abc.app"_s}, false},
    });
}

TEST(Held, isWhatAnInstalledOneHelpsOrIsHelpedBy)
{
    expectHeld({
        {u"com.ab.app.helper"_s, {u"com.ab.app"_s}},
        {u"ab.app.helper.tool"_s, {u"ab.app"_s}},
        {u"ab.app.helper"_s, {u"ab.app.helper.tool"_s}},
        {u"ab.application.helper"_s, {u"ab.app"_s}, false},
        {u"ab.app.helper"_s, {u"ab.app.helpers"_s}, true}, // by its vendor, "ab.app"
        {u"a.b"_s, {u"a.b.c"_s}},
        {u"a"_s, {u"a.b.c"_s}},
        {u"a.b"_s, {u"a.bc.d"_s}, false},
    });
}

TEST(Held, isAllOfAVendorOfWhomOneIsInstalled)
{
    expectHeld({
        {u"com.vendor.tool-beta"_s, {u"com.vendor.other"_s}},
        {u"com.ab.tool"_s, {u"com.ab.other"_s}},
        {u"com.ab.tool"_s, {u"com.ab"_s}}, // its owner
        {u"com.xy.tool"_s, {u"com.ab.other"_s}, false},
        {u"com.ab"_s, {u"com.ab"_s}},
        {u"ab.tool"_s, {u"ab.other"_s}, false}, // two components have no vendor
        {u"com.ab.tool"_s, {u"com.ab2.other"_s}, false},
    });
}

TEST(Held, isWhatNamesAVendorThatAnInstalledIdentifierContains)
{
    expectHeld({
        {u"org.acme.tool"_s, {u"com.acmesoft.editor"_s}},
        {u"org.acme.tool"_s, {u"com.maker.acme-reader"_s}},
        {u"org.acm.tool"_s, {u"com.acmsoft.editor"_s}, false}, // three characters are too few
        {u"org.acmesoft.tool"_s, {u"com.acme.editor"_s}, false},
        {u"acme.tool"_s, {u"com.acme.editor"_s}, false},     // no identifier
        {u"com.tool.acme"_s, {u"org.acme.editor"_s}, false}, // not the second component
        {u"org.\u00E9t\u00E9s.tool"_s, {u"com.e\u0301te\u0301s-soft.editor"_s}},
        {u"org.e\u0301te\u0301.tool"_s, {u"com.\u00E9t\u00E9-soft.editor"_s}, false}, // three characters
    });
}

TEST(Held, isWhatTheSystemKnowsInEitherCase)
{
    struct Row
    {
        QString entry;
        QString known;
        bool isHeld = true;
    };
    const std::vector<Row> table = {
        {u"com.Ab.Tool-extra"_s, u"com.Ab.Tool"_s},
        {u"com.Ab.Tool-extra"_s, u"com.ab.tool"_s},
        {u"com.ab.tool.helper"_s, u"com.ab.tool"_s},
        {u"ABCDE12345.com.ab.tool"_s, u"com.ab.tool"_s},
        {u"com.ab.tool.binarycookies"_s, u"com.ab.tool"_s},
        {u"com.ab.tool"_s, u"com.Ab.Tool"_s, false},
        {u"com.ab"_s, u"com.ab"_s, false},
        {u"com.ab.tool"_s, u"com.ab.tool-extra"_s, false},
    };
    for (const Row &row : table) {
        KnownIdentifiers known([&row](const QString &identifier) { return identifier == row.known; });
        EXPECT_EQ(ghostrules::isHeld(row.entry, {}, known), row.isHeld) << row.entry.toStdString();
    }
}

TEST(Held, asksForALowerCaseEntryOnce)
{
    int asked = 0;
    KnownIdentifiers nothing([&asked](const QString &) {
        ++asked;
        return false;
    });
    EXPECT_FALSE(ghostrules::isHeld(u"com.ab.tool"_s, {}, nothing));
    EXPECT_EQ(asked, 1);
}

TEST(NameTaken, isANameThatSomethingInstalledResembles)
{
    const std::vector<NameRow> table = {
        {u"Photo Works"_s, {u"photo works"_s}, {}},
        {u"Photo"_s, {u"My Photo Works"_s}, {}},
        {u"Photo Works Plugins"_s, {u"Photo Works"_s}, {}},
        {u"Old-Works"_s, {u"Networks"_s}, {}}, // by the piece "works"
        {u"Acme"_s, {}, {u"com.acme.editor"_s}},
        {u"Acme Data"_s, {}, {u"com.acmesoft.editor"_s}},
        {u"my_acme\u00A0x"_s, {}, {u"com.acme.editor"_s}},
        {u"tools.acme"_s, {}, {u"com.acme.editor"_s}, false}, // a dot parts no pieces
        {u"Ab Cd"_s, {u"Abcd"_s}, {u"com.abcd.x"_s}, false},  // pieces of two characters
        {u"Abc Xyz"_s, {}, {u"com.abc.app"_s}},               // one of three
        {u"Cafe\u0301 Old"_s, {u"Caf\u00E9"_s}, {}},
        {u"Gone App"_s, {u"Other"_s}, {u"com.maker.editor"_s}, false},
        {u"-- __"_s, {u"Other"_s}, {u"com.maker.editor"_s}, false}, // leaves no piece
        {u"Gone App"_s, {}, {}, false},
    };
    for (const NameRow &row : table)
        EXPECT_EQ(ghostrules::isNameTaken(row.entry, withNames(row.names, row.identifiers)), row.isTaken)
            << row.entry.toStdString();
}

TEST(NameTaken, isNotByAnApplicationWithoutAName)
{
    EXPECT_FALSE(ghostrules::isNameTaken(u"Gone App"_s, withNames({QString()}, {QString()})));
}

TEST(NameTaken, isNotByTwoNamesThatStandBesideEachOther)
{
    EXPECT_FALSE(ghostrules::isNameTaken(u"editorreader"_s, withNames({u"myeditor"_s, u"readerx"_s})));
}

TEST(LooksInstalled, isWhatResemblesSomethingInstalled)
{
    const std::vector<LooksRow> table = {
        {u"com.ab.legacy"_s, u"Legacy"_s, {u"legacy"_s}, {}},
        {u"com.ab.foo"_s, u"Foo"_s, {u"FOO"_s}, {}}, // the very name, however short
        {u"com.ab.legacy"_s, u"Legacy"_s, {}, {u"com.ab.legacy"_s}},
        {u"com.ab.legacy"_s, u"Legacy"_s, {u"Legacy Player"_s}, {}},
        {u"com.ab.my-legacy"_s, u"My Legacy"_s, {u"Legacy"_s}, {}},
        {u"com.ab.foo"_s, u"Foo"_s, {u"foo media player"_s}, {}, false},
        {u"com.ab.foob"_s, u"Foob"_s, {u"foob media player"_s}, {}},
        {u"com.acme.legacy"_s, u"Legacy"_s, {u"Other"_s}, {u"org.acmesoft.editor"_s}},
        {u"com.acm.legacy"_s, u"Legacy"_s, {u"Other"_s}, {u"org.acmsoft.editor"_s}, false},
        {u"acme.legacy"_s, u"acme.legacy"_s, {u"Other"_s}, {u"org.acmesoft.editor"_s}, false},
        {u"com.ab.legacy"_s, u"Legacy"_s, {u"Other"_s}, {u"com.maker.editor"_s}, false},
        {u"some old app"_s, u"some old app"_s, {u"Some Old App 2"_s}, {}},
        {u"some old app"_s, u"some old app"_s, {}, {}, false},
    };
    for (const LooksRow &row : table)
        EXPECT_EQ(
            ghostrules::looksInstalled(row.key, row.inferredName, withNames(row.names, row.identifiers)),
            row.looksInstalled)
            << row.key.toStdString();
}

TEST(LooksInstalled, endsAtAShortNameThatIsPartOfAnInstalledOne)
{
    // The vendor would say yes.
    EXPECT_FALSE(ghostrules::looksInstalled(u"com.acme.foo"_s, u"Foo"_s,
                                            withNames({u"foo media player"_s}, {u"org.acme.editor"_s})));
}

TEST(LooksInstalled, asksTheVendorWhereThereIsNoNameAtAll)
{
    EXPECT_TRUE(ghostrules::looksInstalled(u"com.acme.--"_s, QString(),
                                           withNames({u"Editor"_s}, {u"org.acme.editor"_s})));
}
