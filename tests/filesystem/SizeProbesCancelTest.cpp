// Cancels of probes that really run. Every wait is for an event: a probe says through a pipe that it has
// begun, and one that hangs waits for a writer that never comes.

#include "support/ObservedDu.h"
#include "support/RunningProbe.h"
#include "support/TestPlatform.h"

namespace {

const QByteArray hang = ObservedDu::hang;

struct SizeProbesCancelTest : testing::Test
{
    TestPlatform test;
    SizeProbes &probes = test.probes;

    size_t live(ProbeContext context) const { return test.probes.liveSizeProbes()[context].size(); }
};

using Pair = std::pair<qsizetype, qsizetype>;

} // namespace

TEST_F(SizeProbesCancelTest, endsAProbeThatHangsAndGivesZero)
{
    const ObservedDu du(test, hang);
    RunningProbe probe(probes, "/a", ProbeContext::generic);
    EXPECT_EQ(du.awaitBegin(), "/a");
    ASSERT_EQ(live(ProbeContext::generic), 1U);
    EXPECT_TRUE(probes.liveSizeProbes()[ProbeContext::generic].front()->isRunning());
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(live(ProbeContext::generic), 0U);
    EXPECT_EQ(probe.size(), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(1, 0));
}

TEST_F(SizeProbesCancelTest, endsAProbeWhoseOutputFillsThePipe)
{
    const ObservedDu du(test, "while :; do echo 0123456789012345678901234567890123456789; done\n");
    RunningProbe probe(probes, "/a", ProbeContext::generic);
    du.awaitBegin();
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(probe.size(), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(1, 0));
}

TEST_F(SizeProbesCancelTest, contextsAreCancelledApart)
{
    const ObservedDu du(test, hang);
    RunningProbe storage(probes, "/storage", ProbeContext::storage);
    du.awaitBegin();
    RunningProbe largest(probes, "/largest", ProbeContext::largestDirs);
    du.awaitBegin();
    RunningProbe generic(probes, "/generic", ProbeContext::generic);
    du.awaitBegin();

    probes.cancelProbes(ProbeContext::storage);
    EXPECT_EQ(storage.size(), 0);
    ASSERT_EQ(live(ProbeContext::largestDirs), 1U);
    ASSERT_EQ(live(ProbeContext::generic), 1U);
    EXPECT_TRUE(probes.liveSizeProbes()[ProbeContext::largestDirs].front()->isRunning());
    EXPECT_TRUE(probes.liveSizeProbes()[ProbeContext::generic].front()->isRunning());

    probes.cancelProbes(ProbeContext::largestDirs);
    EXPECT_EQ(largest.size(), 0);
    EXPECT_EQ(live(ProbeContext::generic), 1U);
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(generic.size(), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(3, 0));
}

TEST_F(SizeProbesCancelTest, withoutAContextEndsAllAndEmptiesTheRegistry)
{
    const ObservedDu du(test, hang);
    RunningProbe storage(probes, "/storage", ProbeContext::storage);
    RunningProbe largest(probes, "/largest", ProbeContext::largestDirs);
    RunningProbe generic(probes, "/generic", ProbeContext::generic);
    RunningProbe another(probes, "/another", ProbeContext::generic);
    for (int i = 0; i < 4; ++i)
        du.awaitBegin();
    probes.cancelProbes();
    for (RunningProbe *probe : {&storage, &largest, &generic, &another})
        EXPECT_EQ(probe->size(), 0);
    EXPECT_TRUE(probes.liveSizeProbes().empty());
    EXPECT_EQ(du.runsAndLeftovers(), Pair(4, 0));
}

TEST_F(SizeProbesCancelTest, leavesTheProbesThatStartAfterItAlone)
{
    const ObservedDu du(test, "[ \"$2\" = /first ] && " + hang + "printf '7\\t%s\\n' \"$2\"\n");
    RunningProbe first(probes, "/first", ProbeContext::generic);
    du.awaitBegin();
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(first.size(), 0);
    EXPECT_EQ(probes.probeSize("/second", ProbeContext::generic), 7 * 1024);
}

TEST_F(SizeProbesCancelTest, aFinishedProbeIsCollected)
{
    const ObservedDu du(test, "exec /usr/bin/du \"$@\"\n");
    EXPECT_GT(probes.probeSize(test.temp.path(), ProbeContext::generic), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(1, 0));
}
