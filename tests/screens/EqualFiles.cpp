#include "screens/EqualFiles.h"

#include "base/Paths.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace equalfiles {
namespace {

constexpr qsizetype kilobyte = 1024;

using namespace std::chrono;

/// Noon of a day of 2024, so that it is the same day wherever the test runs.
void setDay(const QString &path, month_day day)
{
    const sys_seconds noon = sys_days(2024y / day.month() / day.day()) + 12h;
    const timespec time{static_cast<time_t>(noon.time_since_epoch().count()), 0};
    const timespec times[] = {time, time};
    if (utimensat(AT_FDCWD, paths::toBytes(path).constData(), times, 0) != 0)
        throw std::system_error(errno, std::generic_category());
}

/// `kind` is what the content is made of.
struct File
{
    const char *name;
    char kind;
    int kilobytes;
    month_day day;
};

const File files[] = {
    {"a/photo.JPG", 'p', 300, January / 5},  {"b/photo.jpg", 'p', 300, February / 6},
    {"c/photo.png", 'p', 300, March / 7},    {"a/film.mov", 'f', 120, January / 5},
    {"b/film.mov", 'f', 120, February / 6},  {"c/film.mov", 'f', 120, March / 7},
    {"a/report.pdf", 'r', 200, March / 7},   {"b/report.pdf", 'r', 200, January / 5},
    {"a/plain", 'z', 150, January / 5},      {"b/plain.zip", 'z', 150, February / 6},
    {"a/note.txt", 'n', 5, January / 5},     {"b/note.txt", 'n', 5, January / 5},
    {"a/alone.bin", 'a', 180, February / 6},
};

} // namespace

void fill(const TempHome &home, const QString &folder)
{
    for (const File &file : files) {
        const QString name = folder + u'/' + QString::fromLatin1(file.name);
        setDay(home.file(name, QByteArray(file.kilobytes * kilobyte, file.kind)), file.day);
    }
}

void fillWays(const TempHome &home, const QString &folder)
{
    const auto make = [&](const char *name, char kind, int kilobytes) {
        return home.file(folder + u'/' + QString::fromLatin1(name), QByteArray(kilobytes * kilobyte, kind));
    };
    setDay(make("a/photo.jpg", 'p', 300), January / 5);
    setDay(make("a/film.mov", 'f', 120), February / 6);
    const QString linked = make("b/linked.bin", 'l', 200);
    setDay(linked, March / 7);
    setDay(make("b/plain.pdf", 'z', 150), January / 5);
    setDay(make("c/plain.pdf", 'z', 150), February / 6);
    home.link(folder + QStringLiteral("/way"), home.at(folder + QStringLiteral("/a")));
    std::filesystem::create_hard_link(
        paths::toBytes(linked).toStdString(),
        paths::toBytes(home.at(folder + QStringLiteral("/c/linked.bin"))).toStdString());
}

void fillTriples(const TempHome &home, const QString &folder, int triples)
{
    for (int triple = 0; triple < triples; ++triple) {
        const QByteArray content = QByteArray::number(triple).leftJustified(kilobyte, ' ');
        for (const auto &[side, day] :
             {std::pair("left", March / 7), std::pair("right", March / 7), std::pair("old", January / 5)})
            setDay(
                home.file(QStringLiteral("%1/%2-%3.txt").arg(folder).arg(triple).arg(QLatin1StringView(side)),
                          content),
                day);
    }
}

void fillPairs(const TempHome &home, const QString &folder, int pairs)
{
    for (int pair = 0; pair < pairs; ++pair) {
        const QByteArray content = QByteArray::number(pair).leftJustified(kilobyte, ' ');
        for (const char *side : {"left", "right"})
            home.file(QStringLiteral("%1/%2-%3.txt").arg(folder).arg(pair).arg(QLatin1StringView(side)),
                      content);
    }
}

} // namespace equalfiles
