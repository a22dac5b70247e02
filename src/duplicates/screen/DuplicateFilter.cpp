#include "duplicates/screen/DuplicateFilter.h"

#include "base/Paths.h"
#include "common/ExtensionTable.h"

namespace {

const QString allTypes = QStringLiteral("all");

const ExtensionTable &filterTable()
{
    static const ExtensionTable table = {
        {"jpg jpeg png gif heic webp svg", "images"},
        {"pdf doc docx txt md rtf xls xlsx ppt pptx", "documents"},
        {"zip tar gz rar dmg 7z", "archives"},
        {"mp3 wav flac aac mp4 mov avi mkv", "media"},
    };
    return table;
}

} // namespace

const QStringList &duplicatefilter::names()
{
    static const QStringList names = {allTypes, QStringLiteral("images"), QStringLiteral("documents"),
                                      QStringLiteral("archives"), QStringLiteral("media")};
    return names;
}

const std::map<QString, QStringList> &duplicatefilter::extensions()
{
    return filterTable().extensionsByValue();
}

std::vector<size_t> duplicatefilter::passing(const std::vector<DuplicateFileGroup> &groups,
                                             const QString &filter)
{
    const auto passes = [&](const DuplicateFileGroup &group) {
        return filter == allTypes
               || (!group.files.empty()
                   && filterTable().value(paths::extension(group.files.front().path).toLower()) == filter);
    };
    std::vector<size_t> passing;
    for (size_t group = 0; group < groups.size(); ++group) {
        if (passes(groups[group]))
            passing.push_back(group);
    }
    return passing;
}
