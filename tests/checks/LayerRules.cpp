#include "LayerRules.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

struct Layer
{
    QString folder; ///< with the slash at its end
    int height = 0; ///< a folder may include what is lower
};

const QString entry = u"program/main.cpp"_s;
const QStringList adapters = {u"platform/linux/"_s, u"platform/macos/"_s};

/// The first folder that a path begins with is its own, so the deeper ones stand first.
const std::vector<Layer> allLayers = {
    {u"base/"_s, 0},      {u"platform/linux/"_s, 2}, {u"platform/macos/"_s, 2}, {u"platform/"_s, 1},
    {u"common/"_s, 2},    {u"controls/"_s, 3},       {u"filesystem/"_s, 4},     {u"activity/"_s, 5},
    {u"disk/"_s, 6},      {u"duplicates/"_s, 6},     {u"cleanup/"_s, 6},        {u"apps/"_s, 6},
    {u"rename/"_s, 6},    {u"organizer/"_s, 6},      {u"search/"_s, 6},         {u"browser/"_s, 6},
    {u"dashboard/"_s, 7}, {u"shell/"_s, 8},          {u"program/"_s, 9},
};

std::optional<Layer> layerOf(const QString &path)
{
    const auto found =
        std::ranges::find_if(allLayers, [&](const Layer &layer) { return path.startsWith(layer.folder); });
    const bool isPlain = !path.contains(u"./");
    return found == allLayers.end() || !isPlain ? std::nullopt : std::optional(*found);
}

/// Why `from` may not include `to`; empty when it may.
QString objection(const QString &from, const QString &to, const layers::BuildsOn &buildsOn)
{
    const std::optional<Layer> own = layerOf(from);
    const std::optional<Layer> other = layerOf(to);
    if (!own || !other)
        return u"no folder of the plan"_s;
    if (own->folder == other->folder)
        return {};
    if (adapters.contains(other->folder))
        return from == entry ? QString() : u"a system's adapters"_s;
    if (other->height > own->height)
        return u"above it"_s;
    const auto sideways = buildsOn.find(own->folder.chopped(1));
    const bool isTold = sideways != buildsOn.end() && sideways->second.contains(other->folder.chopped(1));
    return other->height < own->height || isTold ? QString() : u"beside it"_s;
}

/// "DiskService" of "disk/DiskService.h".
QString stem(const QString &path)
{
    return path.section(u'/', -1).section(u'.', 0, 0);
}

/// Walks on from the last of `trail`. Gives the circle that it closes; empty when there is none.
QStringList circleFrom(const layers::BuildsOn &graph, QStringList &trail, std::set<QString> &done)
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

QStringList brokenIncludes(const std::vector<SourceFile> &files, const BuildsOn &buildsOn)
{
    QStringList broken;
    for (const SourceFile &file : files) {
        for (const SourceFile::Include &include : file.includes()) {
            const QString reason = objection(file.path, include.path, buildsOn);
            if (!reason.isEmpty())
                broken
                    << u"%1:%2 includes %3: %4"_s.arg(file.path).arg(include.line).arg(include.path, reason);
        }
    }
    return broken;
}

QStringList servicesThatKnowScreens(const std::vector<SourceFile> &files)
{
    QStringList broken;
    for (const SourceFile &file : files) {
        const QString name = stem(file.path);
        if (!name.endsWith(u"Service") && !name.endsWith(u"ViewModel"))
            continue;
        for (const SourceFile::Include &include : file.includes()) {
            if (stem(include.path).endsWith(u"View"))
                broken << u"%1:%2 includes %3"_s.arg(file.path).arg(include.line).arg(include.path);
        }
    }
    return broken;
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

BuildsOn includeGraph(const std::vector<SourceFile> &files)
{
    BuildsOn graph;
    for (const SourceFile &file : files) {
        QStringList &included = graph[file.path];
        for (const SourceFile::Include &include : file.includes())
            included << include.path;
    }
    return graph;
}

QStringList circle(const BuildsOn &graph)
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
