#include "apps/screen/InstalledList.h"

#include "base/Ids.h"
#include "support/LocaleGuard.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using installedlist::SortOption;

namespace {

RealInstalledApp app(const QString &name, qint64 size = 0, std::optional<Date> lastUsed = {})
{
    RealInstalledApp made;
    made.id = ids::fresh();
    made.name = name;
    made.size = size;
    made.lastUsed = lastUsed;
    return made;
}

Date onDay(int number)
{
    return Date(std::chrono::hours(24 * number));
}

QStringList names(const std::vector<RealInstalledApp> &apps, SortOption sortBy, const QString &search = {})
{
    QStringList all;
    for (const installedlist::Row &row : installedlist::rows(apps, search, sortBy))
        all << row.name;
    return all;
}

} // namespace

TEST(InstalledList, sortsNamesInPlainOrder)
{
    EXPECT_EQ(names({app(u"beta"_s), app(u"Zeta"_s), app(u"Ärger"_s), app(u"Alpha"_s)}, SortOption::name),
              QStringList({u"Alpha"_s, u"Zeta"_s, u"beta"_s, u"Ärger"_s}));
}

TEST(InstalledList, sortsByTheSizeOfTheBundleAlone)
{
    RealInstalledApp small = app(u"small"_s, 1);
    small.cacheSize = 1000;
    EXPECT_EQ(names({small, app(u"large"_s, 100), app(u"middle"_s, 10)}, SortOption::size),
              QStringList({u"large"_s, u"middle"_s, u"small"_s}));
}

TEST(InstalledList, putsAppsWithoutADateLast)
{
    EXPECT_EQ(names({app(u"never"_s), app(u"early"_s, 0, onDay(-3)), app(u"late"_s, 0, onDay(9))},
                    SortOption::lastUsed),
              QStringList({u"late"_s, u"early"_s, u"never"_s}));
}

TEST(InstalledList, leavesEqualOnesInTheirOrder)
{
    const std::vector<RealInstalledApp> apps = {app(u"b"_s, 5, onDay(1)), app(u"a"_s, 5, onDay(1)),
                                                app(u"c"_s, 7), app(u"b"_s, 7)};
    EXPECT_EQ(names(apps, SortOption::size), QStringList({u"c"_s, u"b"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(names(apps, SortOption::lastUsed), QStringList({u"b"_s, u"a"_s, u"c"_s, u"b"_s}));
    EXPECT_EQ(installedlist::rows(apps, {}, SortOption::name)[1].id, apps[0].id);
}

TEST(InstalledList, searchesNamesWhateverTheirCase)
{
    const LocaleGuard english;
    const std::vector<RealInstalledApp> apps = {app(u"Über Notes"_s, 2), app(u"Other"_s, 1)};
    EXPECT_EQ(names(apps, SortOption::size, u"ÜBER"_s), QStringList{u"Über Notes"_s});
    EXPECT_EQ(names(apps, SortOption::size, u"u\u0308ber"_s), QStringList{u"Über Notes"_s});
    EXPECT_EQ(names(apps, SortOption::size, u"ot"_s), QStringList({u"Über Notes"_s, u"Other"_s}));
    EXPECT_EQ(names(apps, SortOption::size, u"nothing"_s), QStringList());
}
