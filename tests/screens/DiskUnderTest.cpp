#include "screens/DiskUnderTest.h"

#include "base/Paths.h"
#include "screens/ToolHelpers.h"

namespace {

const toolhelpers::Registration<DiskUnderTest> diskHelper;

void makeOddNames(const TempHome &temp)
{
    constexpr qint64 megabyte = qint64{1024} * 1024;
    temp.sparseFile(QStringLiteral("odd/line\nbreak/inside"), 9 * megabyte);
    temp.sparseFile(QStringLiteral("odd/\"quoted\" & <b>bold/inside"), 8 * megabyte);
    temp.sparseFile(QStringLiteral("odd/emoji \U0001F980/inside"), 7 * megabyte);
    const QString longest = QStringLiteral("odd/") + QString(255, u'w');
    temp.sparseFile(longest + QStringLiteral("/inside"), 6 * megabyte);
    temp.sparseFile(longest + QStringLiteral("/deeper/last"), 1);
    const QString notUtf8 = paths::fromBytes("bytes \xff\xfe");
    temp.sparseFile(QStringLiteral("odd/") + notUtf8 + QStringLiteral("/inside"), 5 * megabyte);
    temp.sparseFile(QStringLiteral("odd/") + notUtf8 + QStringLiteral("/") + notUtf8, megabyte);
    temp.link(QStringLiteral("odd/loop"), QStringLiteral("."));
    temp.link(QStringLiteral("odd/nowhere"), QStringLiteral("missing"));
}

} // namespace

DiskUnderTest::DiskUnderTest(Composition &composition, Surroundings &surroundings)
    : composition_(composition)
{
    makeOddNames(surroundings.temp());
}

bool DiskUnderTest::isScanning() const
{
    return composition_.disk().isScanningAnalyzer();
}

void DiskUnderTest::beginScan()
{
    DiskService &disk = composition_.disk();
    disk.scanAnalyzer(disk.analyzerScanPath(), true);
}

int DiskUnderTest::probeCount() const
{
    size_t count = 0;
    for (const auto &[context, processes] : composition_.sizeProbes().liveSizeProbes())
        count += processes.size();
    return static_cast<int>(count);
}
