#include "GhostCorpus.h"

#include "apps/ghosts/GhostNames.h"
#include "apps/ghosts/GhostRules.h"
#include "apps/ghosts/KnownIdentifiers.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString verdictOf(const ghostcorpus::Entry &line, const InstalledWords &installed, KnownIdentifiers &known)
{
    using enum Locations::GhostFolder::Style;
    const bool arePreferences = line.folder == u"Preferences";
    const bool isGhost =
        arePreferences
            ? ghostrules::arePreferencesLeftBehind(line.entry, installed, known)
            : ghostrules::isLeftBehind(line.entry, line.folder == u"Application Support" ? name : identifier,
                                       installed, known);
    if (!isGhost)
        return u"spared"_s;
    const QString key = arePreferences ? line.entry.chopped(6).toLower() : ghostnames::groupKey(line.entry);
    return ghostrules::looksInstalled(key, ghostnames::inferredName(key), installed) ? u"warned"_s
                                                                                     : u"ghost"_s;
}

qsizetype countOf(const std::vector<ghostcorpus::Entry> &lines, QStringView why)
{
    return std::count_if(lines.begin(), lines.end(),
                         [why](const ghostcorpus::Entry &line) { return line.why == why; });
}

} // namespace

TEST(GhostCorpus, isJudgedAsItSays)
{
    const ghostcorpus::Installed installed = ghostcorpus::installed();
    KnownIdentifiers known(
        [&installed](const QString &identifier) { return installed.known.contains(identifier); });
    for (const ghostcorpus::Entry &line : ghostcorpus::entries())
        EXPECT_EQ(verdictOf(line, installed.words, known), line.verdict)
            << line.folder.toStdString() << "/" << line.entry.toStdString() << " (" << line.why.toStdString()
            << ")";
}

TEST(GhostCorpus, isLargeAndHasEachEntryOnce)
{
    std::set<std::pair<QString, QString>> seen;
    for (const ghostcorpus::Entry &line : ghostcorpus::entries())
        EXPECT_TRUE(seen.insert({line.folder, line.entry}).second) << line.entry.toStdString();
    EXPECT_GE(seen.size(), 300U);
}

TEST(GhostCorpus, tellsWhyOfEachEntry)
{
    const std::set<QString> spared = {u"hidden"_s, u"short"_s, u"system"_s, u"library"_s, u"components"_s,
                                      u"known"_s,  u"own"_s,   u"helper"_s, u"parent"_s,  u"vendor"_s,
                                      u"word"_s,   u"name"_s,  u"part"_s,   u"piece"_s,   u"ending"_s};
    const std::set<QString> ghosts = {u"gone"_s, u"mistaken"_s, u"word3"_s, u"pieces"_s};
    const std::vector<ghostcorpus::Entry> lines = ghostcorpus::entries();
    for (const ghostcorpus::Entry &line : lines)
        EXPECT_TRUE((line.verdict == u"spared" ? spared : ghosts).contains(line.why))
            << line.entry.toStdString();
    for (const QString &why : spared)
        EXPECT_GE(countOf(lines, why), 3) << why.toStdString();
}

TEST(GhostCorpus, hasEntriesOfOwnersThatNoRuleFinds)
{
    // The rules spare what they can tell by a name. What they can't is known, and must not grow unseen.
    const std::vector<ghostcorpus::Entry> lines = ghostcorpus::entries();
    const auto ofNoApplication =
        std::count_if(lines.begin(), lines.end(), [](const ghostcorpus::Entry &line) {
            return line.why == u"mistaken" && line.owner.startsWith(u'(');
        });
    EXPECT_EQ(countOf(lines, u"mistaken"), 55);
    EXPECT_EQ(ofNoApplication, 24);
}
