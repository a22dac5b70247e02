#include "apps/ghosts/GhostNames.h"
#include "apps/ghosts/GhostRules.h"
#include "apps/ghosts/InstalledWords.h"
#include "apps/ghosts/KnownIdentifiers.h"
#include "Benchmarks.h"
#include "Measurement.h"

#include <QStringList>

#include <random>
#include <stdexcept>

namespace {

constexpr double mostPasses = 10;
constexpr int installedCount = 500;
constexpr int entryCount = 10000;

/// A word of these letters: words of different ones have no part in common.
QString word(std::mt19937_64 &random, const QString &letters, int least, int most)
{
    std::uniform_int_distribution<int> lengths(least, most);
    std::uniform_int_distribution<qsizetype> places(0, letters.size() - 1);
    QString made;
    for (int left = lengths(random); left > 0; --left)
        made += letters[places(random)];
    return made;
}

struct Entry
{
    QString name;
    Locations::GhostFolder::Style style;
};

struct Library
{
    QStringList names; ///< installed
    QStringList identifiers;
    std::vector<Entry> entries; ///< of owners that are gone
};

/// Seven in ten entries are identifiers with helpers and hyphens, the others names of three words.
Library makeLibrary()
{
    using enum Locations::GhostFolder::Style;
    std::mt19937_64 random(11);
    const QString there = QStringLiteral("aeioubcdfghk");
    const QString gone = QStringLiteral("yvwlmnprstzj");
    Library made;
    for (int i = 0; i < installedCount; ++i) {
        const QString product = word(random, there, 5, 9);
        made.names << product + u' ' + word(random, there, 4, 8);
        made.identifiers << QStringLiteral("com.%1.%2").arg(word(random, there, 6, 12), product);
    }
    for (int i = 0; i < entryCount; ++i) {
        const QString vendor = word(random, gone, 6, 12);
        const QString product = word(random, gone, 5, 9);
        if (i % 10 < 7)
            made.entries.push_back(
                {QStringLiteral("org.%1.%2-beta.helper").arg(vendor, product), identifier});
        else
            made.entries.push_back({vendor + u' ' + product + u' ' + word(random, gone, 4, 8), name});
    }
    return made;
}

int ghostsOf(const Library &library)
{
    InstalledWords installed;
    for (const QString &name : library.names)
        installed.addName(name);
    for (const QString &identifier : library.identifiers)
        installed.addIdentifier(identifier);
    KnownIdentifiers known([](const QString &) { return false; });
    int ghosts = 0;
    for (const Entry &entry : library.entries) {
        if (!ghostrules::isLeftBehind(entry.name, entry.style, installed, known))
            continue;
        const QString key = ghostnames::groupKey(entry.name);
        if (!ghostrules::looksInstalled(key, ghostnames::inferredName(key), installed))
            ++ghosts;
    }
    return ghosts;
}

int substringsOf(const Library &library)
{
    int found = 0;
    for (const Entry &entry : library.entries) {
        for (const QString &identifier : library.identifiers)
            found += identifier.contains(entry.name) ? 1 : 0;
    }
    return found;
}

void rules()
{
    const Library library = makeLibrary();
    int ghosts = 0;
    int substrings = 0;
    const auto ours = [&] { ghosts = ghostsOf(library); };
    const auto bare = [&] { substrings = substringsOf(library); };
    const auto comparison = measurement::compare([&] { return measurement::threadTime(ours); },
                                                 [&] { return measurement::threadTime(bare); });
    if (ghosts != entryCount || substrings != 0)
        throw std::runtime_error("an entry without an owner was spared");
    measurement::printRatio("ghost-rules", comparison, mostPasses, "ms",
                            "one pass of substring tests of every entry");
}

} // namespace

std::vector<Benchmark> benchmarks::ofGhosts()
{
    return {{"ghost-rules",
             "the rules over 10,000 entries and 500 applications against one pass of substring tests",
             rules}};
}
