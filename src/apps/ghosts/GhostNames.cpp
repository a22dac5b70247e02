#include "apps/ghosts/GhostNames.h"

#include "base/Text.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <span>

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype fewestComponents = 3; // of an identifier

/// A name of at most so many characters says nothing.
constexpr size_t longestShortName = 4;

/// The shortest identifier of a team has one more.
constexpr size_t longestOrdinaryPrefix = 5;

constexpr std::array<QStringView, 6> systemPrefixes = {
    u"com.apple.", u"com.apple-", u"apple.", u"group.com.apple.", u"group.is.workflow.", u"groups.com.apple.",
};

constexpr std::array<QStringView, 16> systemNames = {
    u"crashreporter",       u"syncservices",        u"quick look", u"icloud",
    u"app store",           u"compressor",          u"motion",     u"diskimages",
    u"videosubscriptionsd", u"networkserviceproxy", u"animoji",    u"caches",
    u".ds_store",           u".localized",          u"mozilla",    u"io.branch",
};

constexpr std::array<QStringView, 4> libraryPrefixes = {
    u"com.crashlytics.",
    u"io.branch.",
    u"com.bugsnag.",
    u"org.swift.swiftpm",
};

bool beginsWithOneOf(const QString &text, std::span<const QStringView> prefixes)
{
    return std::any_of(prefixes.begin(), prefixes.end(),
                       [&text](QStringView prefix) { return text.startsWith(prefix); });
}

/// True for the likes of "ABCDE12345": letters and digits, both, and nothing else.
bool isTeamIdentifier(QStringView word)
{
    const std::vector<QStringView> characters = text::characters(word);
    bool hasLetter = false;
    bool hasDigit = false;
    for (const QStringView character : characters) {
        const uint code = character.toUcs4().constFirst(); // an accent makes a letter no less of one
        const bool isDigit = QChar::isNumber(code);
        if (!isDigit && !QChar::isLetter(code))
            return false;
        hasDigit = hasDigit || isDigit;
        hasLetter = hasLetter || !isDigit;
    }
    return hasLetter && hasDigit && characters.size() > longestOrdinaryPrefix;
}

} // namespace

namespace ghostnames {

QString comparable(const QString &text)
{
    return text.toLower().normalized(QString::NormalizationForm_C);
}

bool isIdentifier(QStringView text)
{
    return text.count(u'.') + 1 >= fewestComponents;
}

QString normalised(const QString &identifier)
{
    if (!isIdentifier(identifier))
        return identifier;
    const qsizetype dot = identifier.indexOf(u'.');
    const QString first = identifier.left(dot);
    const QString word = first.toLower();
    const bool isPrefix = word == u"group" || word == u"groups" || isTeamIdentifier(first);
    return isPrefix ? identifier.sliced(dot + 1) : identifier;
}

bool isExcluded(const QString &entry)
{
    const QString lower = comparable(entry);
    if (text::characters(lower).size() <= longestShortName)
        return true;
    const QString identifier = normalised(lower);
    return beginsWithOneOf(identifier, systemPrefixes) || beginsWithOneOf(lower, systemPrefixes)
           || std::find(systemNames.begin(), systemNames.end(), lower) != systemNames.end()
           || beginsWithOneOf(identifier, libraryPrefixes);
}

QString withoutSavedState(const QString &entry)
{
    return QString(entry).remove(u".savedState"_s);
}

QString groupKey(const QString &entry)
{
    return comparable(normalised(withoutSavedState(entry))).remove(u".binarycookies"_s);
}

std::optional<QString> preferencesIdentifier(const QString &file)
{
    const QString ending = u".plist"_s;
    if (!file.endsWith(ending) || !isIdentifier(file.chopped(ending.size())))
        return std::nullopt;
    return file.chopped(ending.size());
}

QString inferredName(const QString &key)
{
    if (!isIdentifier(key))
        return key;
    QString words = key.sliced(key.lastIndexOf(u'.') + 1);
    QStringList pieces = words.replace(u'-', u' ').replace(u'_', u' ').split(u' ', Qt::SkipEmptyParts);
    for (QString &piece : pieces) {
        const qsizetype first = text::characters(piece).front().size();
        piece = piece.left(first).toUpper() + piece.sliced(first);
    }
    return pieces.join(u' ');
}

} // namespace ghostnames
