#include "screens/DuplicatesUnderTest.h"

#include "screens/EqualFiles.h"
#include "screens/ToolHelpers.h"

#include <filesystem>

namespace {
const toolhelpers::Registration<DuplicatesUnderTest> duplicatesHelper;
}

DuplicatesUnderTest::DuplicatesUnderTest(Composition &composition, Surroundings &surroundings)
    : composition_(composition)
    , temp_(surroundings.temp())
{
}

QString DuplicatesUnderTest::makeTwins()
{
    const auto folder = [this] { return QStringLiteral("twins-%1").arg(twins_); };
    std::filesystem::remove_all(temp_.at(folder()).toStdString());
    ++twins_;
    equalfiles::fill(temp_, folder());
    return temp_.at(folder());
}

QString DuplicatesUnderTest::makeWays()
{
    const auto folder = [this] { return QStringLiteral("ways-%1").arg(ways_); };
    std::filesystem::remove_all(temp_.at(folder()).toStdString());
    ++ways_;
    equalfiles::fillWays(temp_, folder());
    return temp_.at(folder());
}

QString DuplicatesUnderTest::makeTriples(int triples) const
{
    const QString folder = QStringLiteral("triples");
    equalfiles::fillTriples(temp_, folder, triples);
    return temp_.at(folder);
}

QString DuplicatesUnderTest::makePairs(int pairs) const
{
    const QString folder = QStringLiteral("pairs");
    equalfiles::fillPairs(temp_, folder, pairs);
    return temp_.at(folder);
}

void DuplicatesUnderTest::scanOnly(const QStringList &folders, int minSize)
{
    DuplicateService &service = composition_.duplicates();
    for (const QStringList before = service.scanPaths(); const QString &path : before)
        service.removeScanPath(path);
    for (const QString &folder : folders)
        service.addScanPath(folder);
    service.setMinFileSize(minSize);
}
