#pragma once

#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"

#include <set>
#include <vector>

#include <gtest/gtest.h>

/// What the tests of base/Files ask of the disk, and the names that they try.
namespace filechecks {

using namespace Qt::StringLiterals;

/// Names that a careless program loses, splits or misreads.
inline std::vector<QString> hostileNames()
{
    return {u"two words"_s,
            u" leading and trailing "_s,
            u"new\nline"_s,
            u"quote\"'`"_s,
            u"$HOME *?[a]"_s,
            u"-rf"_s,
            u"back\\slash"_s,
            u"per%20cent%"_s,
            u"tab\tbell\a"_s,
            u"emoji 😀"_s,
            u"..."_s,
            u"e\u0301"_s,
            u"\u00E9"_s,
            QString(255, u'n'),
            paths::fromBytes("\xFF\xFE bytes"),
            paths::fromBytes("\xEF\xBB\xBF mark"),
            paths::fromBytes("\xED\xA0\xBD surrogate")};
}

/// The code of the error that `call` throws; 0 when it throws none.
template<typename Call>
int failureOf(const Call &call)
{
    try {
        call();
        return 0;
    } catch (const Error &error) {
        EXPECT_EQ(error.domain, errors::systemDomain);
        EXPECT_FALSE(error.description.isEmpty());
        return error.code;
    }
}

inline int moveFailure(const QString &from, const QString &to)
{
    return failureOf([&] { files::move(from, to); });
}

/// The names in a folder, each of which comes once.
inline std::set<QString> names(const QString &folder)
{
    const auto listed = files::list(folder).value_or(std::vector<QString>{u"not listed"_s});
    const std::set<QString> all(listed.begin(), listed.end());
    EXPECT_EQ(all.size(), listed.size()) << "a name came twice";
    return all;
}

/// What is in a small file.
inline QByteArray content(const QString &path)
{
    return files::readPrefix(path, 1000).value_or("unreadable");
}

} // namespace filechecks
