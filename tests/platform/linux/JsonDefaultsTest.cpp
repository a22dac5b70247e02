#include "platform/linux/JsonDefaults.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "support/AnotherProcess.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <csignal>
#include <limits>
#include <set>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString name = u"settings.json"_s;

QByteArray contentOf(const QString &path)
{
    return files::readPrefix(path, 64 << 20).value_or("(can't be read)");
}

QJsonObject objectIn(const QString &path)
{
    return QJsonDocument::fromJson(contentOf(path)).object();
}

std::set<QString> namesIn(const QString &folder)
{
    const auto names = files::list(folder);
    return names ? std::set<QString>(names->begin(), names->end()) : std::set<QString>();
}

/// Fills the settings with one large value after the other, telling of each on `pipe`, until it is killed.
[[noreturn]] void storeForEver(const QString &path, int pipe)
{
    JsonDefaults defaults(path);
    for (int i = 0;; ++i) {
        defaults.set(u"large"_s, QString(100'000, QChar(u'a' + i % 26)));
        const char byte = 0;
        if (write(pipe, &byte, 1) != 1)
            _exit(0);
    }
}

/// Kills a process that stores `path` over and over, just after it has said that it stored for the `stores`-th time.
void killWhileStoring(const QString &path, int stores)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        storeForEver(path, ends[1]);
    }
    close(ends[1]);
    char byte = 0;
    for (int i = 0; i < stores; ++i)
        ASSERT_EQ(read(ends[0], &byte, 1), 1);
    ASSERT_EQ(usleep(static_cast<useconds_t>(stores) * 70), 0); // somewhere into the next one
    ASSERT_EQ(kill(child, SIGKILL), 0);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    close(ends[0]);
}

} // namespace

TEST(JsonDefaults, touchesNoDiskUntilTheFirstUse)
{
    const TempHome temp;
    const QString path = temp.file(name, "garbage");
    {
        JsonDefaults defaults(path);
        defaults.registerDefaults({{u"a"_s, 1}});
    }
    EXPECT_EQ(namesIn(temp.path()), std::set<QString>{name});
    EXPECT_EQ(contentOf(path), "garbage");
}

TEST(JsonDefaults, readingMakesNoFile)
{
    const TempHome temp;
    const JsonDefaults defaults(temp.at(u"config/settings.json"_s));
    EXPECT_FALSE(defaults.value(u"a"_s).isValid());
    EXPECT_TRUE(namesIn(temp.path()).empty());
}

TEST(JsonDefaults, writesEachSetThroughWithItsType)
{
    const TempHome temp;
    const QString path = temp.at(u"config/quillmere/settings.json"_s);
    JsonDefaults defaults(path);
    defaults.set(u"flag"_s, true);
    EXPECT_EQ(objectIn(path), (QJsonObject{{u"flag"_s, true}}));
    defaults.set(u"count"_s, 30);
    defaults.set(u"ratio"_s, 0.25);
    defaults.set(u"text"_s, u"a \"b\"\n🗂"_s);
    defaults.set(u"list"_s, QVariantList{u"x"_s, 1, false});
    defaults.set(u"map"_s, QVariantMap{{u"inner"_s, 5}});
    const QJsonObject expected{{u"flag"_s, true},
                               {u"count"_s, 30},
                               {u"ratio"_s, 0.25},
                               {u"text"_s, u"a \"b\"\n🗂"_s},
                               {u"list"_s, QJsonArray{u"x"_s, 1, false}},
                               {u"map"_s, QJsonObject{{u"inner"_s, 5}}}};
    EXPECT_EQ(objectIn(path), expected);
}

TEST(JsonDefaults, readsWhatAnEarlierProcessStored)
{
    const TempHome temp;
    const QString path = temp.at(name);
    ASSERT_EQ(inAnotherProcess([&path] {
                  JsonDefaults defaults(path);
                  defaults.set(u"flag"_s, true);
                  defaults.set(u"count"_s, -7);
                  defaults.set(u"list"_s, QVariantList{u"x"_s, 1});
              }),
              0);
    const JsonDefaults defaults(path);
    EXPECT_TRUE(defaults.boolean(u"flag"_s));
    EXPECT_EQ(defaults.integer(u"count"_s), -7);
    EXPECT_EQ(defaults.value(u"list"_s), QVariant(QVariantList{u"x"_s, 1LL}));
}

TEST(JsonDefaults, keepsWholeNumbersOf64BitsExact)
{
    const TempHome temp;
    const QString path = temp.at(name);
    ASSERT_EQ(inAnotherProcess([&path] {
                  JsonDefaults defaults(path);
                  defaults.set(u"large"_s, (1LL << 53) + 1);
                  defaults.set(u"most"_s, std::numeric_limits<qint64>::max());
                  defaults.set(u"least"_s, std::numeric_limits<qint64>::min());
              }),
              0);
    JsonDefaults defaults(path);
    defaults.set(u"other"_s, 1); // the file is written again from what was read
    EXPECT_EQ(defaults.integer(u"large"_s), (1LL << 53) + 1);
    EXPECT_EQ(defaults.integer(u"most"_s), std::numeric_limits<qint64>::max());
    EXPECT_EQ(defaults.integer(u"least"_s), std::numeric_limits<qint64>::min());
    EXPECT_TRUE(contentOf(path).contains("9007199254740993"));
    EXPECT_TRUE(contentOf(path).contains("9223372036854775807"));
}

TEST(JsonDefaults, removingBringsTheRegisteredValueBack)
{
    const TempHome temp;
    JsonDefaults defaults(temp.at(name));
    defaults.registerDefaults({{u"count"_s, 30}});
    defaults.set(u"count"_s, 7);
    EXPECT_EQ(defaults.integer(u"count"_s), 7);
    defaults.remove(u"count"_s);
    EXPECT_EQ(defaults.integer(u"count"_s), 30);
    EXPECT_EQ(objectIn(temp.at(name)), QJsonObject());
}

TEST(JsonDefaults, keepsValuesOfWrongTypesAsTheyAre)
{
    const TempHome temp;
    const QString path = temp.file(
        name,
        R"({"flag": "yes", "count": [1], "none": null, "fraction": 1.5, "huge": 1e300, "unknown": {"a": [{}]}})");
    JsonDefaults defaults(path);
    defaults.registerDefaults({{u"flag"_s, true}, {u"count"_s, 30}});
    EXPECT_FALSE(defaults.boolean(u"flag"_s));
    for (const QString &key : {u"flag"_s, u"count"_s, u"none"_s, u"fraction"_s, u"huge"_s, u"unknown"_s})
        EXPECT_EQ(defaults.integer(key), 0) << key.toStdString();
    defaults.set(u"other"_s, 1);
    QJsonObject expected =
        QJsonDocument::fromJson(R"({"flag": "yes", "count": [1], "none": null, "fraction": 1.5,
                                                       "huge": 1e300, "unknown": {"a": [{}]}, "other": 1})")
            .object();
    EXPECT_EQ(objectIn(path), expected);
}

TEST(JsonDefaults, mergesWithWhatAnotherProcessStores)
{
    const TempHome temp;
    const QString path = temp.at(name);
    JsonDefaults defaults(path);
    defaults.set(u"ours"_s, 1);
    ASSERT_EQ(inAnotherProcess([&path] { JsonDefaults(path).set(u"theirs"_s, 2); }), 0);
    defaults.set(u"more"_s, 3);
    EXPECT_EQ(objectIn(path), (QJsonObject{{u"ours"_s, 1}, {u"theirs"_s, 2}, {u"more"_s, 3}}));
    EXPECT_EQ(defaults.integer(u"theirs"_s), 2);
}

class JsonDefaultsDamagedTest : public testing::TestWithParam<QByteArray>
{
};

TEST_P(JsonDefaultsDamagedTest, movesTheFileAsideAndStartsEmpty)
{
    const TempHome temp;
    const QString path = temp.file(name, GetParam());
    JsonDefaults defaults(path);
    defaults.registerDefaults({{u"count"_s, 30}});
    EXPECT_EQ(defaults.integer(u"count"_s), 30);
    EXPECT_EQ(contentOf(path + u".damaged"_s), GetParam());
    EXPECT_FALSE(files::exists(path));
    defaults.set(u"count"_s, 7);
    EXPECT_EQ(objectIn(path), (QJsonObject{{u"count"_s, 7}}));
    EXPECT_EQ(contentOf(path + u".damaged"_s), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Contents, JsonDefaultsDamagedTest,
                         testing::Values(QByteArray(), QByteArray("garbage"), QByteArray("{\"count\": 7"),
                                         QByteArray("[1, 2]"), QByteArray("null"), QByteArray("{}{}"),
                                         QByteArray("\0\0\0\0", 4), QByteArray("{\"a\": \"\xFF\"}"),
                                         QByteArray(3000, '['),
                                         "{\"a\": \"" + QByteArray(17 << 20, 'x') + "\"}"),
                         [](const auto &content) { return "content" + std::to_string(content.index); });

TEST(JsonDefaults, neverReplacesAnEarlierDamagedFile)
{
    const TempHome temp;
    temp.file(u"settings.json.damaged"_s, "first");
    temp.file(u"settings.json.damaged-2"_s, "second");
    const QString path = temp.file(name, "third");
    EXPECT_FALSE(JsonDefaults(path).value(u"a"_s).isValid());
    EXPECT_EQ(contentOf(temp.at(u"settings.json.damaged"_s)), "first");
    EXPECT_EQ(contentOf(temp.at(u"settings.json.damaged-2"_s)), "second");
    EXPECT_EQ(contentOf(temp.at(u"settings.json.damaged-3"_s)), "third");
}

TEST(JsonDefaults, movesAsideWhatWasDamagedWhileWeRan)
{
    const TempHome temp;
    const QString path = temp.at(name);
    JsonDefaults defaults(path);
    defaults.set(u"a"_s, 1);
    temp.file(name, "somebody's notes");
    defaults.set(u"b"_s, 2);
    EXPECT_EQ(contentOf(path + u".damaged"_s), "somebody's notes");
    EXPECT_EQ(objectIn(path).value(u"b"_s), 2);
}

TEST(JsonDefaults, movesAsideWhatIsNoFileWithoutOpeningIt)
{
    const TempHome temp;
    const QString path = temp.at(name);
    ASSERT_EQ(mkfifo(paths::toBytes(path).constData(), 0600), 0); // to open it would wait for ever
    JsonDefaults defaults(path);
    defaults.set(u"a"_s, 1);
    EXPECT_EQ(objectIn(path), (QJsonObject{{u"a"_s, 1}}));
    EXPECT_TRUE(files::exists(path + u".damaged"_s));
}

TEST(JsonDefaults, writesThroughALinkToItsFile)
{
    const TempHome temp;
    ASSERT_EQ(symlink("real.json", paths::toBytes(temp.at(name)).constData()), 0);
    JsonDefaults defaults(temp.at(name));
    defaults.set(u"a"_s, 1);
    EXPECT_EQ(objectIn(temp.at(u"real.json"_s)), (QJsonObject{{u"a"_s, 1}}));
    ASSERT_TRUE(files::attributes(temp.at(name)));
    EXPECT_EQ(files::attributes(temp.at(name))->kind, files::Kind::link);
}

TEST(JsonDefaults, livesInMemoryWhereNothingCanBeWritten)
{
    const TempHome temp;
    temp.file(u"file"_s, "no folder");
    JsonDefaults defaults(temp.at(u"file/settings.json"_s)); // refused to root as well
    defaults.set(u"flag"_s, true);
    defaults.set(u"count"_s, 7);
    defaults.remove(u"flag"_s);
    EXPECT_FALSE(defaults.boolean(u"flag"_s));
    EXPECT_EQ(defaults.integer(u"count"_s), 7);
    EXPECT_EQ(contentOf(temp.at(u"file"_s)), "no folder");
}

TEST(JsonDefaults, livesInMemoryInAReadOnlyFolder)
{
    const TempHome temp;
    const QString folder = temp.folder(u"config"_s);
    temp.file(u"config/settings.json"_s, "garbage");
    ASSERT_EQ(chmod(paths::toBytes(temp.path()).constData(), 0755), 0);
    ASSERT_EQ(chmod(paths::toBytes(folder).constData(), 0555), 0);
    const bool holds = holdsForOrdinaryUser([&folder] {
        JsonDefaults defaults(paths::join(folder, name));
        defaults.set(u"count"_s, 7);
        EXPECT_EQ(defaults.integer(u"count"_s), 7);
        defaults.remove(u"count"_s);
        EXPECT_EQ(defaults.integer(u"count"_s), 0);
        EXPECT_FALSE(defaults.value(u"other"_s).isValid());
    });
    EXPECT_TRUE(holds);
    EXPECT_EQ(contentOf(temp.at(u"config/settings.json"_s)), "garbage");
    EXPECT_EQ(namesIn(folder), std::set<QString>{name});
    ASSERT_EQ(chmod(paths::toBytes(folder).constData(), 0755), 0); // so that it can be removed
}

TEST(JsonDefaults, keepsEveryByteOfAPath)
{
    const TempHome temp;
    const QString path = temp.at(name);
    QByteArray bytes;
    for (int byte = 1; byte < 256; ++byte)
        bytes.append(static_cast<char>(byte));
    const QString odd = paths::fromBytes(bytes);
    const QStringList bookmarks{odd, u"/\u00e9/🗂/"_s + odd, QString()};
    ASSERT_EQ(inAnotherProcess([&] { JsonDefaults(path).set(u"bookmarks"_s, bookmarks); }), 0);
    JsonDefaults defaults(path);
    EXPECT_EQ(defaults.texts(u"bookmarks"_s), bookmarks);
    EXPECT_EQ(paths::toBytes(defaults.texts(u"bookmarks"_s)->front()), bytes);
    defaults.set(odd, 1); // the file is written again from what was read
    EXPECT_EQ(JsonDefaults(path).texts(u"bookmarks"_s), bookmarks);
    EXPECT_EQ(JsonDefaults(path).integer(odd), 1);
}

TEST(JsonDefaults, needsNoLockBesideItsFile)
{
    const TempHome temp;
    const QString lock = temp.folder(u"settings.json.lock"_s); // nothing that could be locked or removed
    JsonDefaults defaults(temp.at(name));
    defaults.set(u"a"_s, 1);
    EXPECT_EQ(objectIn(temp.at(name)), (QJsonObject{{u"a"_s, 1}}));
    EXPECT_EQ(namesIn(temp.path()), (std::set<QString>{name, u"settings.json.lock"_s}));
}

TEST(JsonDefaults, writesWhatItCouldNotOnceItCan)
{
    const TempHome temp;
    temp.file(u"config"_s, "a file where the folder should be");
    const QString path = temp.at(u"config/settings.json"_s);
    JsonDefaults defaults(path);
    defaults.set(u"a"_s, 1);
    defaults.set(u"b"_s, 2);
    defaults.remove(u"a"_s);
    files::move(temp.at(u"config"_s), temp.at(u"aside"_s));
    temp.folder(u"config"_s);
    temp.file(u"config/settings.json"_s, R"({"a": 7, "theirs": 8})");
    defaults.set(u"c"_s, 3);
    EXPECT_EQ(objectIn(path), (QJsonObject{{u"b"_s, 2}, {u"c"_s, 3}, {u"theirs"_s, 8}}));
}

TEST(JsonDefaults, keepsInMemoryWhatWouldBeTooLargeToRead)
{
    const TempHome temp;
    const QString path = temp.at(name);
    JsonDefaults defaults(path);
    defaults.set(u"a"_s, 1);
    defaults.set(u"large"_s, QString(17 << 20, u'x'));
    EXPECT_EQ(objectIn(path), (QJsonObject{{u"a"_s, 1}}));
    EXPECT_EQ(defaults.value(u"large"_s).toString().size(), 17 << 20);
}

TEST(JsonDefaults, leavesAWholeFileWhenKilledWhileWriting)
{
    const TempHome temp;
    const QString path = temp.at(name);
    for (int stores = 1; stores <= 12; ++stores) {
        killWhileStoring(path, stores);
        EXPECT_LE(namesIn(temp.path()).size(), 2U); // one left-over at most
        const QString value = objectIn(path).value(u"large"_s).toString();
        ASSERT_EQ(value.size(), 100'000);
        EXPECT_EQ(value.count(value[0]), value.size());
    }
}
