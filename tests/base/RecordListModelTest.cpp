#include "base/RecordListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <random>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    int id = 0;
    QString text;
};

using Model = RecordListModel<Row>;

const auto sameId = [](const Row &one, const Row &other) { return one.id == other.id; };

/// A model under the eyes of Qt's own tester, which ends the program when the model breaks a rule, and of a list
/// of the row changes that it tells: "remove 1-2", "insert 3-3", "change 0-4", "reset".
class RecordListModelTest : public testing::Test
{
protected:
    RecordListModelTest()
    {
        const auto span = [](int first, int last) { return u" %1-%2"_s.arg(first).arg(last); };
        QObject::connect(&model, &Model::rowsRemoved, [this, span](const QModelIndex &, int first, int last) {
            changes << u"remove"_s + span(first, last);
        });
        QObject::connect(&model, &Model::rowsInserted,
                         [this, span](const QModelIndex &, int first, int last) {
                             changes << u"insert"_s + span(first, last);
                         });
        QObject::connect(&model, &Model::dataChanged,
                         [this, span](const QModelIndex &first, const QModelIndex &last) {
                             changes << u"change"_s + span(first.row(), last.row());
                         });
        QObject::connect(&model, &Model::modelReset, [this] { changes << u"reset"_s; });
    }

    static std::vector<Row> rows(const std::vector<int> &ids)
    {
        std::vector<Row> made;
        for (const int id : ids)
            made.push_back({id, QString::number(id)});
        return made;
    }

    std::vector<int> ids() const
    {
        std::vector<int> found;
        for (int row = 0; row < model.rowCount(); ++row)
            found.push_back(model.data(model.index(row), Qt::UserRole).toInt());
        return found;
    }

    /// The changes that lead from one list to another.
    QStringList update(const std::vector<int> &from, const std::vector<int> &to)
    {
        model.reset(rows(from));
        changes.clear();
        model.update(rows(to), sameId);
        EXPECT_EQ(ids(), to);
        return changes;
    }

    Model model{{{"identifier", [](const Row &row) { return row.id; }},
                 {"title", [](const Row &row) { return row.text; }}}};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QStringList changes;
};

} // namespace

TEST_F(RecordListModelTest, isEmptyAtFirst)
{
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_TRUE(model.records().empty());
}

TEST_F(RecordListModelTest, givesEachFieldByItsRole)
{
    model.reset({{7, u"seven"_s}, {8, u"eight"_s}});
    EXPECT_EQ(model.rowCount(), 2);
    const QHash<int, QByteArray> names = {{Qt::UserRole, "identifier"}, {Qt::UserRole + 1, "title"}};
    EXPECT_EQ(model.roleNames(), names);
    EXPECT_EQ(model.data(model.index(1), names.key("identifier")), QVariant(8));
    EXPECT_EQ(model.data(model.index(1), names.key("title")), QVariant(u"eight"_s));
}

TEST_F(RecordListModelTest, givesNothingForOtherRolesAndRows)
{
    model.reset(rows({1, 2}));
    for (const int role : {-1, 0, static_cast<int>(Qt::DisplayRole), Qt::UserRole - 1, Qt::UserRole + 2})
        EXPECT_FALSE(model.data(model.index(0), role).isValid()) << role;
    EXPECT_FALSE(model.data(model.index(2), Qt::UserRole).isValid());
    EXPECT_FALSE(model.data({}, Qt::UserRole).isValid());
}

TEST_F(RecordListModelTest, isAListAndNoTree)
{
    model.reset(rows({1}));
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
}

TEST_F(RecordListModelTest, tellsOfANewListAsAReset)
{
    model.reset(rows({1, 2, 3}));
    model.reset({});
    EXPECT_EQ(changes, QStringList({u"reset"_s, u"reset"_s}));
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(RecordListModelTest, replacesOneRowAndTellsOfItAlone)
{
    model.reset(rows({1, 2, 3}));
    changes.clear();
    model.replace(1, {8, u"eight"_s});
    EXPECT_EQ(ids(), (std::vector<int>{1, 8, 3}));
    EXPECT_EQ(changes, QStringList{u"change 1-1"_s});
}

TEST_F(RecordListModelTest, updateOfTheSameRowsKeepsThemAndTellsOfTheirValues)
{
    EXPECT_EQ(update({1, 2, 3}, {1, 2, 3}), QStringList{u"change 0-2"_s});
    model.update({{1, u"new"_s}, {2, u"new"_s}, {3, u"new"_s}}, sameId);
    EXPECT_EQ(model.data(model.index(2), Qt::UserRole + 1), QVariant(u"new"_s));
}

TEST_F(RecordListModelTest, updateKeepsTheHeadWhenRowsComeAtTheFoot)
{
    EXPECT_EQ(update({1, 2}, {1, 2, 3, 4}), QStringList({u"insert 2-3"_s, u"change 0-3"_s}));
}

TEST_F(RecordListModelTest, updateKeepsTheFootWhenRowsComeAtTheHead)
{
    EXPECT_EQ(update({3, 4}, {1, 2, 3, 4}), QStringList({u"insert 0-1"_s, u"change 0-3"_s}));
}

TEST_F(RecordListModelTest, updateKeepsHeadAndFootWhenRowsGoBetween)
{
    EXPECT_EQ(update({1, 2, 3, 4, 5}, {1, 5}), QStringList({u"remove 1-3"_s, u"change 0-1"_s}));
}

TEST_F(RecordListModelTest, updateReplacesWhatLiesBetweenHeadAndFoot)
{
    EXPECT_EQ(update({1, 2, 3, 9}, {1, 5, 9}),
              QStringList({u"remove 1-2"_s, u"insert 1-1"_s, u"change 0-2"_s}));
}

TEST_F(RecordListModelTest, updateReplacesEverythingWhenNothingIsTheSame)
{
    EXPECT_EQ(update({1, 2}, {3, 4, 5}), QStringList({u"remove 0-1"_s, u"insert 0-2"_s, u"change 0-2"_s}));
}

TEST_F(RecordListModelTest, updateFillsAndEmptiesTheList)
{
    EXPECT_EQ(update({}, {1, 2}), QStringList({u"insert 0-1"_s, u"change 0-1"_s}));
    EXPECT_EQ(update({1, 2}, {}), QStringList{u"remove 0-1"_s});
    EXPECT_EQ(update({}, {}), QStringList());
}

TEST_F(RecordListModelTest, updateCountsNoRowForHeadAndFootAlike)
{
    EXPECT_EQ(update({1, 1, 1}, {1, 1}), QStringList({u"remove 2-2"_s, u"change 0-1"_s}));
    EXPECT_EQ(update({1, 1}, {1, 1, 1}), QStringList({u"insert 2-2"_s, u"change 0-2"_s}));
}

TEST_F(RecordListModelTest, updateKeepsAReadersPlaceBehindTheChange)
{
    model.reset(rows({1, 2, 3, 4}));
    const QPersistentModelIndex reader = model.index(3);
    model.update(rows({1, 7, 8, 9, 4}), sameId);
    EXPECT_EQ(reader.row(), 4);
    EXPECT_EQ(reader.data(Qt::UserRole).toInt(), 4);
}

TEST_F(RecordListModelTest, updateLeadsToTheNewListFromAnyOther)
{
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same lists in each run
    const auto list = [&random] {
        std::vector<int> made(random() % 6);
        for (int &id : made)
            id = static_cast<int>(random() % 4);
        return made;
    };
    for (int round = 0; round < 500; ++round) {
        const std::vector<int> to = list();
        model.update(rows(to), sameId);
        ASSERT_EQ(ids(), to);
    }
}
