#include "apps/ghosts/GhostRules.h"

#include "apps/ghosts/GhostNames.h"
#include "apps/ghosts/InstalledWords.h"
#include "apps/ghosts/KnownIdentifiers.h"
#include "base/Text.h"

#include <algorithm>
#include <vector>

namespace {

using namespace Qt::StringLiterals;

/// Shorter words are part of too many identifiers to tell a vendor, a piece of a name, a whole name.
constexpr size_t shortestVendor = 4;
constexpr size_t shortestPiece = 3;
constexpr size_t shortestTellingName = 4;

bool isAtLeast(size_t characters, QStringView text)
{
    return text::characters(text).size() >= characters;
}

/// True when an installed identifier contains the vendor's word, the second of at least three components.
bool isVendorTaken(const QString &identifier, const InstalledWords &installed)
{
    if (!ghostnames::isIdentifier(identifier))
        return false;
    const QString vendor = identifier.section(u'.', 1, 1);
    return isAtLeast(shortestVendor, vendor) && installed.isInIdentifier(vendor);
}

/// The words of a name: what stands between white space, hyphens and low lines.
std::vector<QStringView> piecesOf(QStringView name)
{
    std::vector<QStringView> pieces;
    for (qsizetype start = 0, end = 0; start <= name.size(); start = end + 1) {
        for (end = start; end < name.size(); ++end) {
            const QChar unit = name[end];
            if (unit.isSpace() || unit == u'-' || unit == u'_')
                break;
        }
        pieces.push_back(name.sliced(start, end - start));
    }
    return pieces;
}

} // namespace

namespace ghostrules {

using Style = Locations::GhostFolder::Style;

bool isHeld(const QString &entry, const InstalledWords &installed, KnownIdentifiers &known)
{
    const QString cookies = u".binarycookies"_s;
    QString name = ghostnames::normalised(entry);
    if (name.endsWith(cookies))
        name.chop(cookies.size());
    const QString lower = ghostnames::comparable(name);
    if (known.resolves(name) || known.resolves(lower) || installed.hasIdentifier(lower)
        || installed.hasRelativeOf(lower))
        return true;
    return ghostnames::isIdentifier(lower)
           && (installed.hasVendor(lower.section(u'.', 0, 1)) || isVendorTaken(lower, installed));
}

bool isNameTaken(const QString &entry, const InstalledWords &installed)
{
    const QString lower = ghostnames::comparable(entry);
    if (installed.hasName(lower) || installed.isInName(lower) || installed.hasNameIn(lower))
        return true;
    const std::vector<QStringView> pieces = piecesOf(lower);
    return std::any_of(pieces.begin(), pieces.end(), [&installed](QStringView piece) {
        return isAtLeast(shortestPiece, piece)
               && (installed.isInName(piece) || installed.isInIdentifier(piece));
    });
}

bool isLeftBehind(const QString &entry, Style style, const InstalledWords &installed, KnownIdentifiers &known)
{
    const QString name = ghostnames::withoutSavedState(entry);
    if (entry.startsWith(u'.') || ghostnames::isExcluded(name))
        return false;
    if (style == Style::identifier && !ghostnames::isIdentifier(ghostnames::normalised(name)))
        return false;
    if (style == Style::name && !ghostnames::isIdentifier(name))
        return !isNameTaken(entry, installed);
    return !isHeld(name, installed, known);
}

bool arePreferencesLeftBehind(const QString &file, const InstalledWords &installed, KnownIdentifiers &known)
{
    const auto identifier = ghostnames::preferencesIdentifier(file);
    return identifier && !ghostnames::isExcluded(*identifier) && !isHeld(*identifier, installed, known);
}

bool looksInstalled(const QString &key, const QString &inferredName, const InstalledWords &installed)
{
    const QString lower = ghostnames::comparable(key);
    const QString inferred = ghostnames::comparable(inferredName);
    if (installed.hasName(inferred) || installed.hasIdentifier(lower))
        return true;
    // A short name that is part of another one, or has it as a part, says nothing, and ends the search all the same.
    if (installed.isInName(inferred) || installed.hasNameIn(inferred))
        return isAtLeast(shortestTellingName, inferred);
    return isVendorTaken(lower, installed);
}

} // namespace ghostrules
