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

} // namespace

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
        all.push_back({paths::fromBytes(entry.path().lexically_relative(top).string()),
                       directivesOf(content(entry.path()))});
    }
    std::ranges::sort(all, {}, &SourceFile::path);
    return all;
}
