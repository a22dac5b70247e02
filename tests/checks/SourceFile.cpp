#include "SourceFile.h"

#include "base/Paths.h"

#include <QRegularExpression>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

using namespace Qt::StringLiterals;

namespace {

QString content(const std::filesystem::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    return QString::fromStdString(bytes);
}

std::vector<SourceFile::Directive> directivesOf(const QString &text)
{
    static const QRegularExpression pattern(u"^\\s*#\\s*(\\w+)\\s*(.*)$"_s);
    std::vector<SourceFile::Directive> directives;
    const QStringList lines = text.split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto line = static_cast<int>(i + 1);
        QString whole = lines[i];
        while (whole.endsWith(u'\\') && i + 1 < lines.size()) {
            whole.chop(1);
            whole += lines[++i];
        }
        const QRegularExpressionMatch match = pattern.match(whole);
        if (match.hasMatch())
            directives.push_back({line, match.captured(1), match.captured(2).trimmed()});
    }
    return directives;
}

/// Line breaks stay, so that a line's number is the same in both.
QString withoutCommentsAndQuotes(const QString &text)
{
    static const QRegularExpression pattern(
        u"//[^\n]*|/\\*.*?\\*/|R\"(\\w*)\\(.*?\\)\\1\"|\"(?:\\\\.|[^\"\\\\\n])*\"|'(?:\\\\.|[^'\\\\\n])+'"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QString code;
    qsizetype end = 0;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        code += QStringView(text).sliced(end, match.capturedStart() - end);
        code += QString(match.captured().count(u'\n'), u'\n');
        end = match.capturedEnd();
    }
    return code + text.sliced(end);
}

QStringList capturedIn(const QString &code, const QRegularExpression &pattern)
{
    QStringList names;
    for (auto matches = pattern.globalMatch(code); matches.hasNext();)
        names << matches.next().captured(1);
    names.removeDuplicates();
    return names;
}

} // namespace

QStringList SourceFile::declaredClasses() const
{
    static const QRegularExpression pattern(
        u"\\b(?:class|struct)\\s+(\\w+)(?:\\s+final)?(?:\\s*:[^;{]*)?\\s*\\{"_s);
    return capturedIn(code, pattern);
}

QStringList SourceFile::classes() const
{
    // At the start of a line, where a definition stands and a call does not.
    static const QRegularExpression members(u"^(?:\\w[^\n;(=]*[ &*])?(\\w+)::~?\\w+\\("_s,
                                            QRegularExpression::MultilineOption);
    QStringList names = declaredClasses() + capturedIn(code, members);
    names.removeDuplicates();
    return names;
}

bool SourceFile::isEntry() const
{
    static const QRegularExpression pattern(u"^int main\\("_s, QRegularExpression::MultilineOption);
    return pattern.match(code).hasMatch();
}

std::vector<SourceFile::Include> SourceFile::includes() const
{
    static const QRegularExpression quoted(u"^\"([^\"]*)\""_s);
    std::vector<Include> found;
    for (const Directive &directive : directives) {
        const QRegularExpressionMatch match = quoted.match(directive.rest);
        if (directive.name == u"include" && match.hasMatch())
            found.push_back({directive.line, match.captured(1)});
    }
    return found;
}

std::vector<SourceFile> SourceFile::allBelow(const QString &root)
{
    static const std::set<std::string> endings = {".h", ".cpp", ".mm"};
    const std::filesystem::path top = paths::toBytes(root).toStdString();
    std::vector<SourceFile> all;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(top)) {
        if (!entry.is_regular_file() || !endings.contains(entry.path().extension().string()))
            continue;
        const QString text = content(entry.path());
        all.push_back({paths::fromBytes(entry.path().lexically_relative(top).string()), directivesOf(text),
                       withoutCommentsAndQuotes(text)});
    }
    std::ranges::sort(all, {}, &SourceFile::path);
    return all;
}
