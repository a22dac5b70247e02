#include "platform/linux/TrashInfo.h"

#include <cstdlib>
#include <optional>

#include <gtest/gtest.h>

namespace {

/// The C library's time zone, by which a note is dated, for as long as it lives. LocaleGuard sets that of the texts alone.
class ZoneGuard
{
public:
    explicit ZoneGuard(const QByteArray &zone)
    {
        qputenv("TZ", zone);
        tzset();
    }
    ~ZoneGuard()
    {
        if (before_)
            qputenv("TZ", *before_);
        else
            qunsetenv("TZ");
        tzset();
    }
    ZoneGuard(const ZoneGuard &) = delete;
    ZoneGuard &operator=(const ZoneGuard &) = delete;

private:
    const std::optional<QByteArray> before_ =
        qEnvironmentVariableIsSet("TZ") ? std::optional(qgetenv("TZ")) : std::nullopt;
};

} // namespace

TEST(TrashInfo, givesPathAndLocalDate)
{
    const ZoneGuard zone("TST-2"); // two hours ahead
    EXPECT_EQ(trashinfo::text("/home/user/file.txt", 981173106),
              "[Trash Info]\nPath=/home/user/file.txt\nDeletionDate=2001-02-03T06:05:06\n");
}

TEST(TrashInfo, encodesEveryByteThatIsNotPlain)
{
    const ZoneGuard zone("UTC0");
    EXPECT_EQ(trashinfo::text("a/100% \xC3\xBC\xFF\n\x01-._~+=", 0),
              "[Trash Info]\nPath=a/100%25%20%C3%BC%FF%0A%01-._~%2B%3D\nDeletionDate=1970-01-01T00:00:00\n");
}
