#include "RandomTree.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "duplicates/Contents.h"

using namespace Qt::StringLiterals;

namespace {

/// Names that rules, hidden entries and careless programs are about; each may get a number behind it.
const std::vector<QString> &names()
{
    static const std::vector<QString> all = {u"a"_s,
                                             u"b"_s,
                                             u"node_modules"_s,
                                             u".git"_s,
                                             u".hidden"_s,
                                             u"Library"_s,
                                             u"Lib"_s,
                                             u"two words"_s,
                                             u"new\nline"_s,
                                             u"caf\u00E9"_s,
                                             u"cafe\u0301"_s,
                                             u"end."_s,
                                             u"-rf"_s,
                                             u"$x *?[a]\"'"_s,
                                             u"emoji 😀"_s,
                                             paths::fromBytes("\xFF"),
                                             paths::fromBytes("\xC3")};
    return all;
}

} // namespace

RandomTree::RandomTree(unsigned seed)
    : random_(seed)
    , hasLargeFiles_(seed % 4 == 0)
    , hasCircles_(seed % 4 != 0)
{
    makeFolder(QString(), 0);
    QString deep; // down to where no scan of the root comes
    for (int depth = 1; depth <= 10; ++depth) {
        deep = deep.isEmpty() ? u"deep"_s : deep + u"/d%1"_s.arg(depth);
        relativeFolders_ << deep;
        folders_ << temp_.folder(deep);
        makeFiles(deep, 2);
    }
    makeLinks();
}

void RandomTree::makeFolder(const QString &relative, int depth)
{
    relativeFolders_ << relative;
    folders_ << (relative.isEmpty() ? temp_.path() : temp_.folder(relative));
    makeFiles(relative, depth == 0 ? 16 : 6);
    if (depth == 4)
        return;
    for (int left = upTo(depth == 0 ? 6 : 2); left > 0; --left) {
        const QString name = newName(relative);
        makeFolder(relative.isEmpty() ? name : relative + u'/' + name, depth + 1);
    }
}

/// A name that the folder does not have yet.
QString RandomTree::newName(const QString &folder)
{
    QString name = any(names());
    while (files::attributes(paths::join(temp_.at(folder), name)))
        name += QString::number(upTo(9));
    return name;
}

void RandomTree::makeFiles(const QString &relative, int most)
{
    for (int left = most / 2 + upTo(most / 2); left > 0; --left) {
        const QString name = newName(relative);
        files_ << temp_.file(relative.isEmpty() ? name : relative + u'/' + name, content());
    }
}

/// One of few contents, so that many are equal and others differ in one byte near a bound.
QByteArray RandomTree::content()
{
    static const std::vector<int> sizes = {0, 1, 2, 20, 999, 1000, 1001, 4095, 4096, 4097, 9000};
    static const std::vector<int> largeSizes = {1048575, 1048576, 1048577, 1100000};
    const int size = hasLargeFiles_ && chance(10) ? any(largeSizes) : any(sizes);
    const QByteArray bytes = contents::filled(size);
    const std::vector<int> positions = {0,    1,        4095,        4096,        8191,
                                        8192, size / 2, size - 8193, size - 8192, size - 1};
    const int position = any(positions);
    if (chance(50) || position < 0 || position >= size)
        return bytes;
    return contents::changedAt(bytes, position);
}

void RandomTree::makeLinks()
{
    for (int left = upTo(8); left > 0 && !files_.isEmpty(); --left) {
        const QString folder = any(relativeFolders_);
        temp_.link(paths::join(folder, newName(folder)), chance(85) ? any(files_) : u"leads/nowhere"_s);
    }
    for (int left = upTo(3); left > 0; --left) {
        const QString folder = any(relativeFolders_);
        // A folder without folders of its own closes no circle.
        const QString target = hasCircles_ ? any(folders_) : folders_.last();
        temp_.link(paths::join(folder, newName(folder)), target);
    }
    if (hasCircles_ && chance(50))
        temp_.link(u"up"_s, u"."_s);
}
