#include "activity/HistoryEntry.h"

#include <functional>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = HistoryEntry::Kind;

namespace {

HistoryEntry sample()
{
    return {.id = QUuid(u"6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6"_s),
            .timestamp = Date(1'772'357'400s),
            .kind = Kind::uninstall,
            .title = u"Uninstalled Paint"_s,
            .paths = {u"/a"_s, u"/b"_s},
            .bytesAffected = 12,
            .success = true,
            .detail = u"note"_s};
}

} // namespace

TEST(HistoryEntry, listsItsKindsInOrderByTheNamesOfTheirCases)
{
    QStringList names;
    for (const Kind kind : HistoryEntry::allKinds)
        names << history::rawText(kind);
    EXPECT_EQ(names.join(u' '), u"uninstall duplicateDelete cleanup organize ghostClean undo"_s);
}

TEST(HistoryEntry, findsEachKindByItsName)
{
    for (const Kind kind : HistoryEntry::allKinds)
        EXPECT_EQ(history::kindNamed(QString(history::rawText(kind))), kind);
}

TEST(HistoryEntry, knowsNoOtherKind)
{
    for (const QString &name : {u""_s, u"Undo"_s, u"undo "_s, u"ghost"_s, u"duplicate_delete"_s})
        EXPECT_FALSE(history::kindNamed(name)) << name.toStdString();
}

TEST(HistoryEntry, isComparedAndHashedOverEachOfItsFields)
{
    const std::vector<std::function<void(HistoryEntry &)>> changes = {
        [](HistoryEntry &entry) { entry.id = QUuid(); },
        [](HistoryEntry &entry) { entry.timestamp += 1ns; },
        [](HistoryEntry &entry) { entry.kind = Kind::undo; },
        [](HistoryEntry &entry) { entry.title += u'!'; },
        [](HistoryEntry &entry) { entry.paths.removeLast(); },
        [](HistoryEntry &entry) { entry.bytesAffected = -12; },
        [](HistoryEntry &entry) { entry.success = false; },
        [](HistoryEntry &entry) { entry.detail = u"other"_s; },
    };
    EXPECT_EQ(sample(), sample());
    EXPECT_EQ(qHash(sample()), qHash(sample()));
    for (size_t i = 0; i < changes.size(); ++i) {
        HistoryEntry changed = sample();
        changes[i](changed);
        EXPECT_NE(changed, sample()) << "field " << i;
        EXPECT_NE(qHash(changed), qHash(sample())) << "field " << i;
    }
}

TEST(HistoryEntry, tellsAnAbsentDetailFromAnEmptyOne)
{
    HistoryEntry absent = sample();
    absent.detail.reset();
    HistoryEntry empty = sample();
    empty.detail = QString();
    EXPECT_NE(absent, empty);
    EXPECT_NE(qHash(absent), qHash(empty));
}
