#include "screens/CleanupUnderTest.h"

#include "base/FileRemoval.h"
#include "base/Files.h"
#include "screens/ToolHelpers.h"

#include <QStringList>

#include <chrono>
#include <filesystem>

namespace {

const toolhelpers::Registration<CleanupUnderTest> cleanupHelper;

const QStringList places = {
    QStringLiteral("home/Library/Caches"), QStringLiteral("home/Library/Logs"), QStringLiteral("home/.npm"),
    QStringLiteral("home/Downloads"),      QStringLiteral("home/Desktop"),      QStringLiteral("home/.Trash"),
};

} // namespace

CleanupUnderTest::CleanupUnderTest(Composition &composition, Surroundings &surroundings)
    : composition_(composition)
    , temp_(surroundings.temp())
{
}

void CleanupUnderTest::file(const QString &relative, int kilobytes) const
{
    temp_.file(QStringLiteral("home/") + relative, QByteArray(qsizetype(kilobytes) * 1024, 'c'));
}

void CleanupUnderTest::empty() const
{
    for (const QString &place : places) {
        if (files::attributes(temp_.at(place)))
            files::removeTree(temp_.at(place));
        temp_.folder(place);
    }
}

void CleanupUnderTest::fill() const
{
    empty();
    file(QStringLiteral("Library/Caches/Google/Chrome/data"), 900);
    file(QStringLiteral("Library/Logs/big.log"), 300);
    file(QStringLiteral("Library/Logs/middle.log"), 200);
    file(QStringLiteral("Library/Logs/small.log"), 100);
    file(QStringLiteral(".Trash/thrown away"), 250);
    file(QStringLiteral("Downloads/new.zip"), 10);
    for (const auto &[name, size] : {std::pair("installer.dmg", 300), std::pair("letter.pdf", 100)}) {
        const QString relative = QStringLiteral("Downloads/") + QString::fromLatin1(name);
        file(relative, size);
        std::filesystem::last_write_time(
            temp_.at(QStringLiteral("home/") + relative).toStdString(),
            std::chrono::file_clock::from_sys(std::chrono::system_clock::time_point()));
    }
    temp_.folder(QStringLiteral("home/Desktop/hollow"));
    temp_.folder(QStringLiteral("home/Downloads/void"));
}

void CleanupUnderTest::makeLogs(int count) const
{
    for (int i = 1; i <= count; ++i)
        temp_.file(QStringLiteral("home/Library/Logs/log-%1").arg(i), QByteArray(i % 100, 'l'));
}

QString CleanupUnderTest::names(const QString &relative) const
{
    QStringList all;
    for (const QString &name :
         files::list(temp_.at(QStringLiteral("home/") + relative)).value_or(std::vector<QString>()))
        all << name;
    all.sort();
    return all.join(u'\n');
}

bool CleanupUnderTest::isCleaning() const
{
    return composition_.cleanup().isCleaning();
}
