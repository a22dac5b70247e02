#include "apps/screen/AppCsv.h"

#include "base/Paths.h"
#include "common/Formatters.h"
#include "support/LocaleGuard.h"

#include <limits>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const LocaleGuard reader;
constexpr std::chrono::hours day(24);
const Date now = Date(day * 20000 + std::chrono::hours(12));
const QByteArray installedHeader = "Name,Version,Bundle ID,App Size,Cache Size,Support Size,Preferences Size,"
                                   "Container Size,Total Size,Last Used,Path\n";
const QByteArray ghostHeader = "App Name,Bundle ID,Category,Size,File Path\n";

RealInstalledApp notes()
{
    RealInstalledApp app;
    app.name = u"Notes"_s;
    app.version = u"1.2"_s;
    app.bundleID = u"com.example.notes"_s;
    app.path = u"/Applications/Notes.app"_s;
    app.size = 1;
    app.cacheSize = 20;
    app.supportSize = 300;
    app.preferencesSize = 4000;
    app.containerSize = 50000;
    return app;
}

QByteArray line(const RealInstalledApp &app)
{
    return appcsv::ofInstalled({app}, now).mid(installedHeader.size());
}

} // namespace

TEST(AppCsv, writesAHeaderAlone)
{
    EXPECT_EQ(appcsv::ofInstalled({}, now), installedHeader);
    EXPECT_EQ(appcsv::ofGhosts({}), ghostHeader);
}

TEST(AppCsv, writesALineForEachApp)
{
    RealInstalledApp other = notes();
    other.name = u"Other"_s;
    other.lastUsed = now - 3 * day;
    EXPECT_EQ(
        appcsv::ofInstalled({notes(), other}, now),
        installedHeader
            + "Notes,1.2,com.example.notes,1,20,300,4000,50000,54321,Unknown,/Applications/Notes.app\n"
              "Other,1.2,com.example.notes,1,20,300,4000,50000,54321,3 days ago,/Applications/Notes.app\n");
}

TEST(AppCsv, leavesFilesOfOtherKindsOutOfTheTotal)
{
    RealInstalledApp app = notes();
    app.associatedFiles.push_back({{}, u"/x"_s, u"Other"_s, 1000000, true});
    EXPECT_EQ(line(app), line(notes()));
}

TEST(AppCsv, enclosesANameWithAComma)
{
    RealInstalledApp app = notes();
    app.name = u"Notes, Plain"_s;
    EXPECT_TRUE(line(app).startsWith("\"Notes, Plain\",1.2,"));
}

TEST(AppCsv, doublesAndEnclosesQuotationMarks)
{
    RealInstalledApp app = notes();
    app.name = u"The \"Best\""_s;
    app.version = u"\""_s;
    EXPECT_TRUE(line(app).startsWith("\"The \"\"Best\"\"\",\"\"\"\",com.example.notes,"));
}

TEST(AppCsv, enclosesLineFeedsAndNothingElse)
{
    RealInstalledApp app = notes();
    app.name = u"a\nb"_s;
    app.version = u" a\rb\t;' "_s;
    EXPECT_TRUE(line(app).startsWith("\"a\nb\", a\rb\t;' ,com.example.notes,"));
}

TEST(AppCsv, enclosesEachFieldOnItsOwn)
{
    RealInstalledApp app = notes();
    app.bundleID = u"a,b"_s;
    app.path = u"/Applications/\"x\".app"_s;
    EXPECT_EQ(line(app),
              "Notes,1.2,\"a,b\",1,20,300,4000,50000,54321,Unknown,\"/Applications/\"\"x\"\".app\"\n");
}

TEST(AppCsv, writesTextsInUtf8AndAnyOtherByteAsItsSign)
{
    RealInstalledApp app = notes();
    app.name = u"Üben 🎈"_s;
    app.version = u"\u2014"_s;
    app.path = u"/Applications/"_s + paths::fromBytes("a\xff\xfe.app");
    EXPECT_EQ(line(app), "Üben 🎈,\u2014,com.example.notes,1,20,300,4000,50000,54321,Unknown,"
                         "/Applications/a\uFFFD\uFFFD.app\n");
}

TEST(AppCsv, writesSizesWithoutGrouping)
{
    const LocaleGuard german("de_DE");
    RealInstalledApp app = notes();
    app.size = std::numeric_limits<qint64>::max();
    EXPECT_TRUE(line(app).startsWith("Notes,1.2,com.example.notes,9223372036854775807,20,"));
}

TEST(AppCsv, tellsEachDayAsTheCalendarDoes)
{
    const LocaleGuard farEast("en_US", "Pacific/Apia"); // which once left a day out
    std::vector<RealInstalledApp> apps;
    QByteArray expected = installedHeader;
    // In an order in which most days lie between two that are known already.
    for (int i = 0; i < 1500; ++i) {
        RealInstalledApp app = notes();
        app.lastUsed =
            i == 0 ? dates::distantPast
                   : now - (i * 677 % 1500 - 20) * (i % 2 == 0 ? 1 : 4) * day + std::chrono::hours(i % 24);
        apps.push_back(app);
        expected += "Notes,1.2,com.example.notes,1,20,300,4000,50000,54321,"
                    + relativeDayText(app.lastUsed, now).toUtf8() + ",/Applications/Notes.app\n";
    }
    EXPECT_EQ(appcsv::ofInstalled(apps, now), expected);
}

TEST(AppCsv, writesALineForEachFileOfAGhost)
{
    GhostApp first;
    first.inferredName = u"Legacy, Old"_s;
    first.bundleID = u"com.oldvendor.legacy"_s;
    first.files = {{{}, u"/Library/Caches/a"_s, u"Cache"_s, 12, true},
                   {{}, u"/Library/\"b\""_s, u"Other"_s, 3456, false}};
    GhostApp second;
    second.inferredName = u"some old app"_s;
    second.bundleID = u"some old app"_s;
    second.files = {{{}, u"/Library/c\nd"_s, u"Support"_s, 7, true}};
    EXPECT_EQ(appcsv::ofGhosts({first, second}),
              ghostHeader
                  + "\"Legacy, Old\",com.oldvendor.legacy,Cache,12,/Library/Caches/a\n"
                    "\"Legacy, Old\",com.oldvendor.legacy,Other,3456,\"/Library/\"\"b\"\"\"\n"
                    "some old app,some old app,Support,7,\"/Library/c\nd\"\n");
}
