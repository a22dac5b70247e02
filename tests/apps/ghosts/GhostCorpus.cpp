#include "GhostCorpus.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ghostcorpus {

std::vector<QStringList> rows(const QString &file)
{
    const QString path = paths::join(QStringLiteral(QUILLMERE_GHOST_CORPUS), file);
    std::vector<QStringList> all;
    for (const QString &line : QString::fromUtf8(files::readAll(path, 1 << 20)).split(u'\n')) {
        if (!line.isEmpty() && !line.startsWith(u'#'))
            all.push_back(line.split(u'\t'));
    }
    return all;
}

std::vector<Entry> entries()
{
    std::vector<Entry> all;
    for (const QStringList &row : rows(u"entries.tsv"_s)) {
        if (row.size() == 5)
            all.push_back({row[0], row[1], row[2], row[3], row[4]});
        else
            ADD_FAILURE() << "not five columns: " << row.join(u' ').toStdString();
    }
    return all;
}

Installed installed()
{
    Installed all;
    for (const QStringList &row : rows(u"installed.tsv"_s)) {
        if (row.size() != 4) {
            ADD_FAILURE() << "not four columns: " << row.join(u' ').toStdString();
        } else if (row[0] == u"elsewhere") {
            all.known.insert(row[3]);
        } else {
            all.words.addName(row[1]);
            all.words.addName(row[2]);
            all.words.addIdentifier(row[3]);
        }
    }
    return all;
}

} // namespace ghostcorpus
