#include "duplicates/screen/DeleteNote.h"

#include "duplicates/SameFile.h"

QString DeleteNote::text() const
{
    QStringList sentences;
    const auto tell = [&sentences](qint64 count, const QString &sentence) {
        if (count > 0)
            sentences.append(sentence.arg(count));
    };
    tell(hiddenFiles, QStringLiteral("%1 of the files that go are hidden by the filter."));
    tell(lostGroups, QStringLiteral("In %1 groups no copy stays."));
    tell(keptOtherwise, QStringLiteral("%1 of them are the very file that is kept, reached another way."));
    return sentences.join(u' ');
}

DeleteNote deletenotes::fromGroups(const std::vector<DuplicateFileGroup> &groups,
                                   const std::vector<size_t> &shown)
{
    DeleteNote note;
    auto next = shown.begin();
    for (size_t index = 0; index < groups.size(); ++index) {
        const bool isShown = next != shown.end() && *next == index;
        if (isShown)
            ++next;
        else
            note.hiddenFiles += groups[index].filesToGo();
        if (groups[index].keepsNothing())
            ++note.lostGroups;
    }
    return note;
}

std::vector<deletenotes::Choice> deletenotes::choices(const std::vector<DuplicateFileGroup> &groups)
{
    std::vector<Choice> choices;
    for (const DuplicateFileGroup &group : groups) {
        const qint64 going = group.filesToGo();
        if (going == 0 || group.keepsNothing())
            continue;
        Choice &choice = choices.emplace_back();
        for (const DuplicateFileEntry &file : group.files)
            (file.keep ? choice.kept : choice.going).append(file.path);
    }
    return choices;
}

qint64 deletenotes::countOfKept(const std::vector<Choice> &choices, const std::function<bool()> &isUnwanted)
{
    qint64 count = 0;
    samefile::Folders folders;
    for (const Choice &choice : choices) {
        if (isUnwanted())
            break;
        count += samefile::countOfKept(choice.going, choice.kept, folders);
    }
    return count;
}
