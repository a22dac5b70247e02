#include "duplicates/screen/DeleteNote.h"

#include "duplicates/SameFile.h"

#include <QStringList>

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

PathLists deletenotes::choices(const std::vector<DuplicateFileGroup> &groups)
{
    size_t files = 0;
    for (const DuplicateFileGroup &group : groups)
        files += group.files.size();
    PathLists choices;
    choices.reserve(2 * groups.size(), files);
    for (const DuplicateFileGroup &group : groups) {
        const qint64 going = group.filesToGo();
        if (going == 0 || going == static_cast<qint64>(group.files.size()))
            continue;
        for (const bool isKept : {false, true}) {
            for (const DuplicateFileEntry &file : group.files) {
                if (file.keep == isKept)
                    choices.append(file.path);
            }
            choices.endList();
        }
    }
    return choices;
}

qint64 deletenotes::countOfKept(const PathLists &choices, const std::function<bool()> &isUnwanted)
{
    qint64 count = 0;
    samefile::Folders folders;
    for (size_t going = 0; going < choices.size() && !isUnwanted(); going += 2)
        count += samefile::countOfKept(choices[going], choices[going + 1], folders);
    return count;
}
