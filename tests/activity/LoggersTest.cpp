#include "activity/Loggers.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Loggers, writeUnderTheirCategories)
{
    FakeSystemLog log;
    const Loggers loggers(log);
    for (const Logger &logger :
         {loggers.general, loggers.appManager, loggers.duplicates, loggers.cleanup, loggers.organizer})
        logger.info(u"done"_s);
    const QStringList expected = {u"info General: done"_s, u"info AppManager: done"_s,
                                  u"info Duplicates: done"_s, u"info Cleanup: done"_s,
                                  u"info Organizer: done"_s};
    EXPECT_EQ(log.lines, expected);
}

TEST(Loggers, writeAtTheLevelNamed)
{
    FakeSystemLog log;
    const Loggers loggers(log);
    loggers.cleanup.debug(u"a"_s);
    loggers.cleanup.info(u"b"_s);
    loggers.cleanup.error(u"c"_s);
    EXPECT_EQ(log.lines, QStringList({u"debug Cleanup: a"_s, u"info Cleanup: b"_s, u"error Cleanup: c"_s}));
}

TEST(Loggers, writeTextAsItStands)
{
    FakeSystemLog log;
    Loggers(log).general.error(u"100%1 of %s \"é\"\nnext"_s);
    ASSERT_EQ(log.lines.size(), 1);
    EXPECT_TRUE(log.lines.first().endsWith(u"100%1 of %s \"é\"\nnext"_s));
}
