#include "base/Error.h"
#include "base/Files.h"
#include "filesystem/FileSystemService.h"
#include "filesystem/InjectedFaults.h"
#include "support/TestPlatform.h"

#include <QTimer>

#include <filesystem>
#include <semaphore>
#include <thread>

#include <gtest/gtest.h>

namespace {

using Paths = QStringList;

/// What an operation throws; none when it throws nothing.
template<typename Operation>
std::optional<Error> errorOf(const Operation &operation)
{
    try {
        operation();
        return std::nullopt;
    } catch (const Error &error) {
        return error;
    }
}

void removeFile(const QString &path)
{
    std::filesystem::remove(path.toStdString());
}

struct TrashTest : public testing::Test
{
    TestPlatform test;
    FileSystemService service{test.platform, test.probes};
    QString path = test.temp.file(QStringLiteral("home/old \"plan\".txt"), "text");
    QString name = QStringLiteral("old \"plan\".txt");

    void recyclerAnswers(Recycler::Result result)
    {
        test.recycler.answers = [result](const Paths &, const Recycler::Completion &done) { done(result); };
    }
    std::optional<Error> trashError() const
    {
        return errorOf([this] { service.moveToTrash(path); });
    }
    std::optional<Error> adminError() const
    {
        return errorOf([this] { service.adminTrash(path); });
    }
    void administratorFails(const Recycler::AdminFailure &failure)
    {
        test.recycler.administrator = [failure](const QString &) { return std::optional(failure); };
    }
};

const Error platformError{QStringLiteral("Platform"), 7, QStringLiteral("The disk says no.")};

} // namespace

TEST_F(TrashTest, aFileThatTheServiceMovesIsGoneWithoutAnError)
{
    test.recycler.answers = [](const Paths &paths, const Recycler::Completion &done) {
        removeFile(paths.constFirst());
        done({{{paths.constFirst(), QStringLiteral("/trash/x")}}, std::nullopt});
    };
    EXPECT_FALSE(trashError());
    EXPECT_EQ(test.recycler.recycled, QStringList{path});
    EXPECT_FALSE(files::exists(path));
}

TEST_F(TrashTest, aFileThatVanishedIsASuccessWithOrWithoutAnError)
{
    for (const std::optional<Error> &reported : {std::optional<Error>(), std::optional(platformError)}) {
        test.temp.file(QStringLiteral("home/old \"plan\".txt"));
        test.recycler.answers = [reported](const Paths &paths, const Recycler::Completion &done) {
            removeFile(paths.constFirst());
            done({{}, reported});
        };
        EXPECT_FALSE(trashError());
    }
}

TEST_F(TrashTest, theServicesErrorIsThrownAsItStands)
{
    recyclerAnswers({{}, platformError});
    const auto error = trashError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->domain, platformError.domain);
    EXPECT_EQ(error->code, platformError.code);
    EXPECT_EQ(error->description, platformError.description);
}

TEST_F(TrashTest, aFileThatCannotBeAskedForIsNotTakenForGone)
{
    const InjectedFaults faults(files::Operation::attributes, path);
    EXPECT_TRUE(trashError());
    recyclerAnswers({{}, platformError});
    const auto error = trashError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description, platformError.description);
    recyclerAnswers({{{path, QString()}}, std::nullopt});
    EXPECT_FALSE(trashError()) << "the service has told that it moved it";
}

TEST_F(TrashTest, aFileThatTheServiceSilentlyRefusesIsNamedInCurlyQuotes)
{
    const auto error = trashError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->domain, QStringLiteral("Quillmere.Trash"));
    EXPECT_EQ(error->code, -2);
    EXPECT_EQ(error->description,
              QStringLiteral(
                  "Couldn't move “old \"plan\".txt” to the Trash. If it's an app, make sure it's quit first. "
                  "Some apps in /Applications also need admin permission to remove."));
}

TEST_F(TrashTest, aFileStillThereButListedAsMovedIsASuccess)
{
    recyclerAnswers({{{test.home + QStringLiteral("/./sub/../") + name, QString()}}, std::nullopt});
    EXPECT_FALSE(trashError());
    recyclerAnswers({{{test.home + QStringLiteral("/another"), QString()}}, std::nullopt});
    EXPECT_TRUE(trashError());
}

TEST_F(TrashTest, aLinkWithoutATargetIsStillThereWhenItWasNotMoved)
{
    path = test.temp.link(QStringLiteral("home/dangling"), QStringLiteral("nowhere"));
    EXPECT_TRUE(trashError());
}

TEST_F(TrashTest, offTheMainThreadItWaitsForTheService)
{
    std::binary_semaphore asked{
        0}; // the library's own and not Qt's, since the thread sanitizer sees what it orders
    Recycler::Completion answer;
    test.recycler.answers = [&](const Paths &, Recycler::Completion done) {
        answer = std::move(done);
        asked.release();
    };
    std::optional<Error> error;
    std::thread worker([&] { error = trashError(); });
    asked.acquire();
    removeFile(path);
    answer({});
    worker.join();
    EXPECT_FALSE(error);
}

TEST_F(TrashTest, onTheMainThreadTimersAndPostedBlocksRunWhileItWaits)
{
    int timers = 0;
    int blocks = 0;
    Recycler::Completion answer;
    std::thread serviceThread;
    test.recycler.answers = [&](const Paths &, Recycler::Completion done) { answer = std::move(done); };
    QObject context;
    QMetaObject::invokeMethod(
        &context, [&] { ++blocks; }, Qt::QueuedConnection);
    QTimer::singleShot(0, &context, [&] {
        ++timers;
        removeFile(path);
        serviceThread = std::thread([answer] { answer({}); }); // the answer comes on a thread of its own
    });
    EXPECT_FALSE(trashError());
    serviceThread.join();
    EXPECT_EQ(timers, 1);
    EXPECT_EQ(blocks, 1);
}

TEST_F(TrashTest, mayBeEnteredAgainWhileItWaits)
{
    const QString second = test.temp.file(QStringLiteral("home/second"));
    std::vector<std::pair<QString, Recycler::Completion>> asked;
    std::vector<std::thread> answers;
    const auto answerLast = [&] {
        const auto [askedFor, done] = asked.back();
        asked.pop_back();
        removeFile(askedFor);
        answers.emplace_back([done = done] { done({}); });
    };
    test.recycler.answers = [&](const Paths &paths, Recycler::Completion done) {
        asked.emplace_back(paths.constFirst(), std::move(done));
    };
    QObject context;
    std::optional<Error> inner = platformError;
    QTimer::singleShot(0, &context, [&] {
        QTimer::singleShot(0, &context, answerLast); // the inner one's
        inner = errorOf([&] { service.moveToTrash(second); });
        answerLast(); // the outer one's
    });
    EXPECT_FALSE(trashError());
    EXPECT_FALSE(inner);
    for (std::thread &thread : answers)
        thread.join();
    EXPECT_FALSE(files::exists(path));
    EXPECT_FALSE(files::exists(second));
}

TEST_F(TrashTest, anOuterMoveThatIsAnsweredWhileAnInnerOneWaitsReturnsAfterIt)
{
    const QString second = test.temp.file(QStringLiteral("home/second"));
    std::vector<Recycler::Completion> asked;
    QStringList seen;
    test.recycler.answers = [&](const Paths &paths, Recycler::Completion done) {
        removeFile(paths.constFirst());
        asked.push_back(std::move(done));
    };
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        QTimer::singleShot(0, &context, [&] {
            asked[0]({}); // ends a turn of the inner one, which has no answer yet
            QTimer::singleShot(0, &context, [&] {
                seen << QStringLiteral("inner answered");
                asked[1]({});
            });
        });
        service.moveToTrash(second);
        seen << QStringLiteral("inner returned");
    });
    service.moveToTrash(path);
    EXPECT_EQ(seen, QStringList({QStringLiteral("inner answered"), QStringLiteral("inner returned")}));
}

TEST_F(TrashTest, anAnswerWithinTheCallDisturbsNoLaterWait)
{
    test.recycler.answers = [](const Paths &paths, const Recycler::Completion &done) {
        removeFile(paths.constFirst());
        done({});
    };
    EXPECT_FALSE(trashError()); // it has never waited, so what ends a turn is still on its way

    path = test.temp.file(QStringLiteral("home/second"));
    Recycler::Completion answer;
    test.recycler.answers = [&](const Paths &, Recycler::Completion done) { answer = std::move(done); };
    bool hasAnswered = false;
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        QTimer::singleShot(0, &context, [&] {
            removeFile(path);
            hasAnswered = true;
            answer({});
        });
    });
    EXPECT_FALSE(trashError());
    EXPECT_TRUE(hasAnswered);
}

TEST_F(TrashTest, anAdministratorsMoveOfNothingShowsNoDialog)
{
    path = test.temp.at(QStringLiteral("home/missing"));
    EXPECT_FALSE(adminError());
    EXPECT_TRUE(test.recycler.moved.isEmpty());
}

TEST_F(TrashTest, anAdministratorsMoveThatWorksIsSilent)
{
    test.recycler.administrator = [](const QString &moved) {
        removeFile(moved);
        return std::optional<Recycler::AdminFailure>();
    };
    EXPECT_FALSE(adminError());
    EXPECT_EQ(test.recycler.moved, QStringList{path});
}

TEST_F(TrashTest, cancellingThePasswordDialogHasACodeOfItsOwn)
{
    administratorFails({true, -128, QStringLiteral("whatever the system says")});
    const auto error = adminError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->domain, QStringLiteral("Quillmere.AdminTrash"));
    EXPECT_EQ(error->code, -128);
    EXPECT_EQ(error->code, FileSystemService::adminCancelled);
    EXPECT_EQ(error->description, QStringLiteral("Admin authorization was cancelled."));
}

TEST_F(TrashTest, aScriptFailureWithoutAMessageGetsATextAndWithoutANumberMinusOne)
{
    administratorFails({true, 5, std::nullopt});
    EXPECT_EQ(adminError()->description, QStringLiteral("Admin trash failed"));
    EXPECT_EQ(adminError()->code, 5);
    administratorFails({true, std::nullopt, QStringLiteral("mv: no")});
    EXPECT_EQ(adminError()->code, -1);
    EXPECT_EQ(adminError()->description, QStringLiteral("mv: no"));
}

TEST_F(TrashTest, aScriptThatCannotBeMadeHasACodeOfItsOwn)
{
    administratorFails({false, std::nullopt, std::nullopt});
    EXPECT_EQ(adminError()->code, -3);
    EXPECT_EQ(adminError()->description, QStringLiteral("Couldn't construct the admin trash script."));
}

TEST_F(TrashTest, aScriptThatReportsSuccessWithTheFileInPlaceIsAFailure)
{
    const auto error = adminError();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->code, -2);
    EXPECT_EQ(error->description,
              QStringLiteral("Admin trash reported success but the file is still in place."));
}
