#include "LayerRules.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

const QString entry = u"program/main.cpp"_s;
const QString composition = u"program/Composition.cpp"_s;
const QStringList adapters = {u"platform/linux"_s, u"platform/macos"_s};

/// The folders from the ground up; a file may include what lies below its own. The tools share one floor.
const QStringList floorsBelowTools = {u"base"_s,     u"platform"_s,   u"common"_s,
                                      u"controls"_s, u"filesystem"_s, u"activity"_s};
const QStringList floorsAboveTools = {u"dashboard"_s, u"shell"_s, u"program"_s};

/// A folder of the plan.
struct Room
{
    QString folder;
    qsizetype floor = 0;
};

/// None for what lies outside the plan, or is not named by its full and plain path.
std::optional<Room> roomOf(const QString &path, const QStringList &tools)
{
    if (path.contains(u"./") || !path.contains(u'/'))
        return std::nullopt;
    for (const QString &adapter : adapters) {
        if (path.startsWith(adapter + u'/'))
            return Room{adapter, floorsBelowTools.indexOf(u"platform"_s) + 1};
    }
    const QString folder = path.section(u'/', 0, 0);
    if (tools.contains(folder))
        return Room{folder, floorsBelowTools.size()};
    if (const qsizetype below = floorsBelowTools.indexOf(folder); below >= 0)
        return Room{folder, below};
    if (const qsizetype above = floorsAboveTools.indexOf(folder); above >= 0)
        return Room{folder, floorsBelowTools.size() + 1 + above};
    return std::nullopt;
}

/// Why `from` may not include `to`; empty when it may.
QString objection(const QString &from, const QString &to, const QStringList &tools)
{
    const std::optional<Room> own = roomOf(from, tools);
    const std::optional<Room> other = roomOf(to, tools);
    if (!own || !other)
        return u"no folder of the plan"_s;
    if (own->folder == other->folder)
        return {};
    if (adapters.contains(other->folder))
        return from == entry ? QString() : u"a system's adapters"_s;
    if (other->floor > own->floor)
        return u"above it"_s;
    return other->floor < own->floor ? QString() : u"beside it"_s;
}

QString told(const SourceFile &file, const SourceFile::Include &include)
{
    return u"%1:%2 includes %3"_s.arg(file.path).arg(include.line).arg(include.path);
}

bool isService(const QString &name)
{
    return name.endsWith(u"Service") || name.endsWith(u"ViewModel");
}

bool isScreenModel(const QString &name)
{
    return name.endsWith(u"View");
}

/// Walks on from the last of `trail`. Gives the circle that it closes; empty when there is none.
QStringList circleFrom(const layers::Graph &graph, QStringList &trail, std::set<QString> &done)
{
    const auto node = graph.find(trail.last());
    for (const QString &next : node == graph.end() ? QStringList() : node->second) {
        if (const qsizetype start = trail.indexOf(next); start >= 0)
            return trail.sliced(start) << next;
        if (done.contains(next))
            continue;
        trail << next;
        if (const QStringList found = circleFrom(graph, trail, done); !found.isEmpty())
            return found;
        trail.removeLast();
    }
    done.insert(trail.last());
    return {};
}

} // namespace

namespace layers {

QStringList brokenIncludes(const std::vector<SourceFile> &files, const QStringList &tools)
{
    QStringList broken;
    for (const SourceFile &file : files) {
        for (const SourceFile::Include &include : file.includes()) {
            const QString reason = objection(file.path, include.path, tools);
            if (!reason.isEmpty())
                broken << told(file, include) + u": "_s + reason;
        }
    }
    return broken;
}

QStringList brokenOuterIncludes(const std::vector<SourceFile> &files, const QStringList &tools)
{
    const auto isOwn = [&files](const QString &path) {
        return std::ranges::any_of(
            files, [end = u'/' + path](const SourceFile &file) { return (u'/' + file.path).endsWith(end); });
    };
    QStringList broken;
    for (const SourceFile &file : files) {
        for (const SourceFile::Include &include : file.includes()) {
            const std::optional<Room> room = roomOf(include.path, tools);
            if (!room && !isOwn(include.path))
                broken << told(file, include) + u": no folder of the plan"_s;
            else if (room && adapters.contains(room->folder) && !file.isEntry())
                broken << told(file, include) + u": a system's adapters"_s;
        }
    }
    return broken;
}

QStringList servicesThatKnowScreens(const std::vector<SourceFile> &files)
{
    std::set<QString> screenHeaders;
    for (const SourceFile &file : files) {
        if (std::ranges::any_of(file.declaredClasses(), isScreenModel))
            screenHeaders.insert(file.path);
    }
    QStringList broken;
    for (const SourceFile &file : files) {
        if (!std::ranges::any_of(file.classes(), isService))
            continue;
        for (const SourceFile::Include &include : file.includes()) {
            if (screenHeaders.contains(include.path))
                broken << told(file, include);
        }
    }
    return broken;
}

QStringList sharedElsewhere(const std::vector<SourceFile> &files)
{
    static const QRegularExpression use(u"(\\w+)(?:::|\\.|->)shared\\("_s);
    QStringList found;
    for (const SourceFile &file : files) {
        if (file.path == composition)
            continue;
        for (auto matches = use.globalMatch(file.code); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            // A service's own file defines it.
            const QString stem = file.path.section(u'/', -1).section(u'.', 0, 0);
            if (match.captured(1) == stem)
                continue;
            const auto line = file.code.first(match.capturedStart()).count(u'\n') + 1;
            found << u"%1:%2 %3"_s.arg(file.path).arg(line).arg(match.captured());
        }
    }
    return found;
}

QStringList platformConditions(const std::vector<SourceFile> &files)
{
    static const QRegularExpression systems(
        u"\\b(Q_OS_\\w+|__linux\\w*|linux|__gnu_linux__|__unix\\w*|__APPLE__|__MACH__|TARGET_OS_\\w+|_WIN\\d+"
        "|__\\w+BSD__)\\b"_s);
    static const QStringList conditions = {u"if"_s,   u"ifdef"_s,   u"ifndef"_s,
                                           u"elif"_s, u"elifdef"_s, u"elifndef"_s};
    QStringList found;
    for (const SourceFile &file : files) {
        if (file.path.startsWith(u"platform/"))
            continue;
        for (const SourceFile::Directive &directive : file.directives) {
            if (conditions.contains(directive.name) && systems.match(directive.rest).hasMatch())
                found << u"%1:%2 #%3 %4"_s.arg(file.path)
                             .arg(directive.line)
                             .arg(directive.name, directive.rest);
        }
    }
    return found;
}

Graph includeGraph(const std::vector<SourceFile> &files)
{
    Graph graph;
    for (const SourceFile &file : files) {
        QStringList &included = graph[file.path];
        for (const SourceFile::Include &include : file.includes())
            included << include.path;
    }
    return graph;
}

QStringList circle(const Graph &graph)
{
    std::set<QString> done;
    for (const auto &[start, ignored] : graph) {
        QStringList trail = {start};
        if (done.contains(start))
            continue;
        if (const QStringList found = circleFrom(graph, trail, done); !found.isEmpty())
            return found;
    }
    return {};
}

} // namespace layers
