#include "base/Error.h"
#include "base/Files.h"
#include "duplicates/DuplicateServices.h"
#include "duplicates/HeardSignals.h"

#include <gtest/gtest.h>

namespace {

/// The delete run over real groups, with a Trash that takes what it is given and answers at once.
struct DeleteRunTest : public testing::Test
{
    DuplicateServices services;
    TestPlatform &test = services.test;
    DuplicateService &duplicates = services.duplicates;

    void SetUp() override
    {
        duplicates.setMinFileSize(0);
        services.useTrash();
    }

    /// Makes a file of that name in each of so many folders, all of one content, and scans them in their order. The
    /// names are put into groups by their contents.
    QStringList scanEqual(const QString &name, int count, const QByteArray &content = "equal")
    {
        QStringList folders;
        QStringList made;
        for (int i = 0; i < count; ++i) {
            folders << QString::number(i);
            made << services.file(folders.last() + u'/' + name, content);
        }
        services.useScanPaths(folders);
        services.scan();
        return made;
    }

    /// The error of a run that must fail.
    Error errorOfRun()
    {
        try {
            duplicates.deleteMarked();
        } catch (const Error &error) {
            return error;
        }
        ADD_FAILURE() << "nothing was thrown";
        return {};
    }

    HistoryEntry onlyRecord()
    {
        const std::vector<HistoryEntry> records = services.records();
        EXPECT_EQ(records.size(), 1U);
        return records.empty() ? HistoryEntry() : records.front();
    }

    static QStringList failuresOf(const QStringList &paths)
    {
        QStringList failures;
        for (const QString &path : paths)
            failures << path + QStringLiteral(": The disk says no.");
        return failures;
    }
};

} // namespace

TEST_F(DeleteRunTest, movesWhatIsSetToGoAndGivesTheBytesFreed)
{
    services.file("0/y", "others");
    services.file("1/y", "others");
    const QStringList equal = scanEqual("x", 3);
    ASSERT_EQ(services.shown(), QStringList({"5: 0/x 1/x- 2/x-", "6: 0/y 1/y-"}));
    EXPECT_EQ(duplicates.deleteMarked(), 5 + 5 + 6);
    EXPECT_EQ(test.recycler.recycled, QStringList({equal[1], equal[2], services.inHome("1/y")}));
    EXPECT_TRUE(files::exists(equal[0]));
    EXPECT_TRUE(files::exists(services.inHome("0/y")));
    EXPECT_FALSE(files::exists(equal[1]));
    EXPECT_TRUE(duplicates.groups().empty());
}

TEST_F(DeleteRunTest, aGroupOfThreeThatLosesOneStaysInItsPlaceAsTwo)
{
    services.file("0/y", "others");
    services.file("1/y", "others");
    services.file("0/z", "still more of it");
    services.file("1/z", "still more of it");
    scanEqual("x", 3);
    duplicates.keepAllInAllGroups();
    ASSERT_EQ(services.shown(), QStringList({"16: 0/z 1/z", "5: 0/x 1/x 2/x", "6: 0/y 1/y"}));
    const QUuid id = duplicates.groups()[1].id;
    duplicates.toggleKeep(1, 1);
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    // It is not sorted anew, though it wastes less than the one behind it by now.
    EXPECT_EQ(services.shown(), QStringList({"16: 0/z 1/z", "5: 0/x 2/x", "6: 0/y 1/y"}));
    EXPECT_EQ(duplicates.groups()[1].id, id);
}

TEST_F(DeleteRunTest, aGroupOfTwoThatLosesOneGoesFromTheListThoughTheOtherIsThere)
{
    const QStringList equal = scanEqual("x", 2);
    duplicates.deleteMarked();
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_TRUE(files::exists(equal[0]));
}

TEST_F(DeleteRunTest, aGroupLeftWithOneFileThatFailedGoesFromTheListAsWell)
{
    const QStringList equal = scanEqual("x", 2);
    duplicates.toggleKeep(0, 0);
    services.useTrash({equal[1]});
    errorOfRun();
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_TRUE(files::exists(equal[1]));
    EXPECT_EQ(duplicates.markedForDeletion(), QSet<QString>()); // the failed one was not marked by a click
}

TEST_F(DeleteRunTest, nothingProtectsTheLastFileOfAGroupThatIsSetToGoWhole)
{
    const QStringList equal = scanEqual("x", 3);
    duplicates.toggleKeep(0, 0);
    EXPECT_EQ(duplicates.deleteMarked(), 15);
    EXPECT_EQ(test.recycler.recycled, equal);
    for (const QString &path : equal)
        EXPECT_FALSE(files::exists(path));
    EXPECT_TRUE(duplicates.groups().empty());
}

TEST_F(DeleteRunTest, aFailedFileStaysSetToGoForTheNextRun)
{
    const QStringList equal = scanEqual("x", 3);
    services.useTrash({equal[1]});
    errorOfRun();
    EXPECT_EQ(test.recycler.recycled, equal.mid(1)); // the failure did not stop the run
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x 1/x-"});

    services.useTrash();
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    EXPECT_FALSE(files::exists(equal[1]));
    EXPECT_EQ(services.records().size(), 2U);
}

TEST_F(DeleteRunTest, aGroupThatLostNothingStaysAsItIs)
{
    const QStringList equal = scanEqual("x", 2);
    const DuplicateFileGroup before = duplicates.groups()[0];
    services.useTrash({equal[1]});
    errorOfRun();
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x 1/x-"});
    EXPECT_EQ(duplicates.groups()[0].id, before.id);
    EXPECT_EQ(duplicates.groups()[0].files[1].id, before.files[1].id);
}

TEST_F(DeleteRunTest, ofSevenFailuresTheFirstFiveAreTold)
{
    const QStringList equal = scanEqual("x", 10);
    services.useTrash(equal.mid(3));
    const Error error = errorOfRun();
    const QString told = failuresOf(equal.mid(3, 5)).join('\n');
    EXPECT_EQ(error.domain, "Quillmere.DuplicateService");
    EXPECT_EQ(error.code, 1);
    EXPECT_EQ(error.description, "Freed 10 bytes but 7 files failed to delete:\n" + told);
    const HistoryEntry record = onlyRecord();
    EXPECT_EQ(record.title, "Removed 2 duplicates · 7 failed");
    EXPECT_EQ(record.detail, told);
    EXPECT_FALSE(record.success);
    EXPECT_EQ(record.paths, equal.mid(1, 2));
    EXPECT_EQ(record.bytesAffected, 10);
    EXPECT_FALSE(files::exists(equal[1]));
}

TEST_F(DeleteRunTest, failuresHaveOneTitleForAnyNumber)
{
    const QStringList equal = scanEqual("x", 3);
    services.useTrash({equal[2]});
    const Error error = errorOfRun();
    EXPECT_EQ(error.description,
              "Freed 5 bytes but 1 files failed to delete:\n" + failuresOf({equal[2]}).first());
    EXPECT_EQ(onlyRecord().title, "Removed 1 duplicates · 1 failed");
    EXPECT_EQ(onlyRecord().detail, failuresOf({equal[2]}).first());
}

TEST_F(DeleteRunTest, tellsPathsAsTheyStand)
{
    const QString path = scanEqual("%1 %2\tüx", 2)[1];
    services.useTrash({path});
    EXPECT_EQ(errorOfRun().description,
              "Freed 0 bytes but 1 files failed to delete:\n" + path + ": The disk says no.");
    EXPECT_EQ(onlyRecord().detail, path + ": The disk says no.");
}

TEST_F(DeleteRunTest, movesFilesWhoseNamesAreNoText)
{
    const QString path = scanEqual(paths::fromBytes("broken \xff\xfe name"), 2)[1];
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    EXPECT_EQ(test.recycler.recycled, QStringList{path});
    EXPECT_FALSE(files::exists(path));
}

TEST_F(DeleteRunTest, recordsARunWithoutFailures)
{
    const QStringList equal = scanEqual("x", 3);
    test.clock.advance(60);
    duplicates.deleteMarked();
    test.clock.advance(60);
    const HistoryEntry record = onlyRecord();
    EXPECT_FALSE(record.id.isNull());
    EXPECT_EQ(dates::secondsBetween(record.timestamp, test.clock.now()), 60);
    EXPECT_EQ(record.kind, HistoryEntry::Kind::duplicateDelete);
    EXPECT_EQ(record.title, "Removed 2 duplicate files");
    EXPECT_EQ(record.paths, equal.mid(1));
    EXPECT_EQ(record.bytesAffected, 10);
    EXPECT_TRUE(record.success);
    EXPECT_FALSE(record.detail);
}

TEST_F(DeleteRunTest, aSingleFileIsTitledInTheSingular)
{
    scanEqual("x", 2);
    duplicates.deleteMarked();
    EXPECT_EQ(onlyRecord().title, "Removed 1 duplicate file");
}

TEST_F(DeleteRunTest, recordsTheFirstTwoHundredPathsAndAllBytes)
{
    for (int i = 0; i < 251; ++i)
        services.file(QStringLiteral("many/%1").arg(i));
    services.useScanPaths({"many"});
    services.scan();
    QStringList expected;
    for (const DuplicateFileEntry &file : duplicates.groups().at(0).files)
        expected << file.path;
    ASSERT_EQ(expected.size(), 251);
    EXPECT_EQ(duplicates.deleteMarked(), 250 * 5);
    const HistoryEntry record = onlyRecord();
    EXPECT_EQ(record.paths, expected.mid(1, 200));
    EXPECT_EQ(record.bytesAffected, 250 * 5);
    EXPECT_EQ(record.title, "Removed 250 duplicate files");
    EXPECT_TRUE(duplicates.groups().empty());
}

TEST_F(DeleteRunTest, recordsTwoHundredPathsWhole)
{
    for (int i = 0; i < 201; ++i)
        services.file(QStringLiteral("many/%1").arg(i));
    services.useScanPaths({"many"});
    services.scan();
    duplicates.deleteMarked();
    EXPECT_EQ(onlyRecord().paths, test.recycler.recycled);
    EXPECT_EQ(onlyRecord().paths.size(), 200);
}

TEST_F(DeleteRunTest, logsARunWithItsFailures)
{
    const QStringList equal = scanEqual("x", 4, QByteArray(1'000'000, 'x'));
    services.useTrash({equal[3]});
    errorOfRun();
    EXPECT_EQ(test.systemLog.lines,
              QStringList{"info Duplicates: Deleted 2 duplicate files (2000000 bytes); 1 failures"});
    services.useTrash();
    duplicates.deleteMarked();
    EXPECT_EQ(test.systemLog.lines.value(1),
              "info Duplicates: Deleted 1 duplicate files (1000000 bytes); 0 failures");
}

TEST_F(DeleteRunTest, aRunWithNothingToDoIsLoggedAndRecordedAllTheSame)
{
    scanEqual("x", 2);
    duplicates.keepAllInAllGroups();
    EXPECT_EQ(services.madeHistory, nullptr); // nobody has needed the activity log yet
    EXPECT_EQ(duplicates.deleteMarked(), 0);
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x 1/x"});
    EXPECT_EQ(test.systemLog.lines,
              QStringList{"info Duplicates: Deleted 0 duplicate files (0 bytes); 0 failures"});
    const HistoryEntry record = onlyRecord();
    EXPECT_EQ(record.title, "Removed 0 duplicate files");
    EXPECT_TRUE(record.paths.isEmpty());
    EXPECT_EQ(record.bytesAffected, 0);
    EXPECT_TRUE(record.success);
    EXPECT_FALSE(record.detail);
}

TEST_F(DeleteRunTest, countsTheSizesOfTheScanNotThoseOnTheDisk)
{
    const QStringList equal = scanEqual("x", 2);
    services.file("1/x", "by now it is far larger");
    EXPECT_EQ(duplicates.deleteMarked(), 5);
}

TEST_F(DeleteRunTest, aFileThatIsGoneAlreadyCountsAsMoved)
{
    const QStringList equal = scanEqual("x", 2);
    services.useTrash({equal[1]}); // the service can't move what is not there
    DuplicateServices::remove(equal[1]);
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    EXPECT_TRUE(duplicates.groups().empty());
}

TEST_F(DeleteRunTest, takesTheMarksOfWhatWentAndLeavesThoseOfWhatFailed)
{
    const QStringList equal = scanEqual("x", 4);
    duplicates.keepAllInAllGroups();
    duplicates.toggleKeep(0, 1);
    duplicates.toggleKeep(0, 2);
    services.useTrash({equal[2]});
    errorOfRun();
    EXPECT_EQ(duplicates.markedForDeletion(), QSet<QString>{equal[2]});
}

TEST_F(DeleteRunTest, aMarkThatWentSeedsNoScanThatFindsTheFileAgain)
{
    const QStringList equal = scanEqual("x", 3);
    duplicates.keepAllInAllGroups();
    duplicates.toggleKeep(0, 0);
    duplicates.deleteMarked();
    services.file("0/x");
    services.scan();
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x 1/x- 2/x-"});
}

TEST_F(DeleteRunTest, aFileThatIsListedTwiceGoesThoughItIsTheOnlyOne)
{
    const QString only = services.file("one/inside/x");
    services.useScanPaths({"one", "one/inside"});
    services.scan();
    ASSERT_EQ(services.shown(), QStringList{"5: one/inside/x one/inside/x-"});
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    EXPECT_FALSE(files::exists(only));
    EXPECT_TRUE(duplicates.groups().empty()); // both entries name what went
    EXPECT_EQ(onlyRecord().title, "Removed 1 duplicate file");
}

TEST_F(DeleteRunTest, aFileThatIsListedTwiceAndSetToGoTwiceCountsTwice)
{
    const QString only = services.file("one/inside/x");
    services.useScanPaths({"one", "one/inside"});
    services.scan();
    duplicates.toggleKeep(0, 0);
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(onlyRecord().paths, QStringList({only, only}));
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DeleteRunTest, tellsHowFarItIs)
{
    scanEqual("x", 3);
    QStringList seen;
    QObject::connect(&duplicates, &DuplicateService::deletingChanged, [&] {
        seen << QStringLiteral("%1 %2/%3")
                    .arg(duplicates.isDeleting() ? "deletes" : "rests")
                    .arg(duplicates.deletedFiles())
                    .arg(duplicates.filesToDelete());
    });
    duplicates.deleteMarked();
    EXPECT_EQ(seen, QStringList({"deletes 0/2", "deletes 1/2", "deletes 2/2", "rests 0/0"}));
}

TEST_F(DeleteRunTest, isNoLongerUnderWayAfterAFailure)
{
    const QStringList equal = scanEqual("x", 3);
    services.useTrash({equal[1]});
    errorOfRun();
    EXPECT_FALSE(duplicates.isDeleting());
    EXPECT_EQ(duplicates.deletedFiles(), 0U);
    EXPECT_EQ(duplicates.filesToDelete(), 0U);
}

TEST_F(DeleteRunTest, tellsOnceThatTheListHasShrunk)
{
    scanEqual("x", 3);
    HeardSignals heard(duplicates);
    duplicates.deleteMarked();
    EXPECT_EQ(heard.take(), QStringList({"deletingChanged", "deletingChanged", "deletingChanged",
                                         "groupsShrunk", "deletingChanged"}));
}
