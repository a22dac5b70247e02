#include "duplicates/screen/SameFileMarks.h"

#include <utility>

namespace {

struct PathsOfGroup
{
    QUuid id;
    QStringList paths;
};

std::vector<PathsOfGroup> pathsOf(const std::vector<DuplicateFileGroup> &groups)
{
    std::vector<PathsOfGroup> all;
    all.reserve(groups.size());
    for (const DuplicateFileGroup &group : groups) {
        QStringList paths;
        paths.reserve(static_cast<qsizetype>(group.files.size()));
        for (const DuplicateFileEntry &file : group.files)
            paths.append(file.path);
        all.push_back({group.id, std::move(paths)});
    }
    return all;
}

} // namespace

SameFileMarks::SameFileMarks(const Platform &platform)
    : platform_(platform)
{
}

void SameFileMarks::lookUp(const std::vector<DuplicateFileGroup> &groups)
{
    question_.drop();
    if (groups.empty())
        return take({});
    platform_.workQueue.post(WorkPriority::utility, [self = QPointer(this), question = question_.ask(),
                                                     groups = pathsOf(groups), &main = platform_.mainQueue] {
        Kinds kinds;
        samefile::Folders folders;
        for (const PathsOfGroup &group : groups) {
            if (question.isUnwanted())
                return;
            const samefile::Kind kind = samefile::among(group.paths, folders);
            if (kind != samefile::Kind::none)
                kinds.insert(group.id, kind);
        }
        question.answer(main, self, [kinds](SameFileMarks &marks) { marks.take(kinds); });
    });
}

void SameFileMarks::take(const Kinds &kinds)
{
    if (kinds.isEmpty() && kinds_.isEmpty())
        return;
    kinds_ = kinds;
    emit changed();
}
