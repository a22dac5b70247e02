#include "duplicates/screen/SameFileMarks.h"

#include "duplicates/PathLists.h"

#include <utility>

/// The groups that are asked about.
struct SameFileMarks::Snapshot
{
    std::vector<QUuid> ids;
    PathLists paths; ///< a list for each of them

    void add(const DuplicateFileGroup &group)
    {
        ids.push_back(group.id);
        for (const DuplicateFileEntry &file : group.files)
            paths.append(file.path);
        paths.endList();
    }
};

SameFileMarks::SameFileMarks(const Platform &platform)
    : platform_(platform)
{
}

void SameFileMarks::lookUp(const std::vector<DuplicateFileGroup> &groups)
{
    knowsAll_ = false;
    size_t files = 0;
    for (const DuplicateFileGroup &group : groups)
        files += group.files.size();
    Snapshot snapshot;
    snapshot.ids.reserve(groups.size());
    snapshot.paths.reserve(groups.size(), files);
    for (const DuplicateFileGroup &group : groups)
        snapshot.add(group);
    ask(std::move(snapshot), {});
}

void SameFileMarks::lookUpShrunk(const std::vector<DuplicateFileGroup> &groups)
{
    if (!knowsAll_) // and what is being found out may be true no longer
        return lookUp(groups);
    Snapshot snapshot;
    Marks kept;
    Marks unknown;
    for (const DuplicateFileGroup &group : groups) {
        const auto mark = marks_.constFind(group.id);
        if (mark == marks_.cend())
            continue; // where no two files were one, no two of those left are
        if (mark->files == group.files.size()) {
            kept.insert(group.id, *mark);
        } else {
            snapshot.add(group);
            unknown.insert(group.id, Mark());
        }
    }
    unknown.insert(kept);
    take(unknown);
    ask(std::move(snapshot), kept);
}

/// The answer, together with what is kept, is all that is known from then on.
void SameFileMarks::ask(Snapshot snapshot, const Marks &kept)
{
    question_.drop();
    if (snapshot.ids.empty()) {
        knowsAll_ = true;
        return take(kept);
    }
    platform_.workQueue.post(WorkPriority::utility, [self = QPointer(this), question = question_.ask(),
                                                     snapshot = std::move(snapshot), marks = kept,
                                                     &main = platform_.mainQueue]() mutable {
        samefile::Folders folders;
        for (size_t i = 0; i < snapshot.ids.size(); ++i) {
            if (question.isUnwanted())
                return;
            const samefile::Kind kind = samefile::among(snapshot.paths[i], folders);
            if (kind != samefile::Kind::none)
                marks.insert(snapshot.ids[i], {kind, snapshot.paths[i].size()});
        }
        question.answer(main, self, [marks](SameFileMarks &asker) {
            asker.knowsAll_ = true;
            asker.take(marks);
        });
    });
}

void SameFileMarks::take(const Marks &marks)
{
    if (marks == marks_)
        return;
    marks_ = marks;
    emit changed();
}
