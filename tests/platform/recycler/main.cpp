#include "TrashHome.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>

/// GIO drops two texts when the move itself fails, as it reports; they are told from leaks of ours by whole
/// stacks, which GLib's functions are built without the means to give quickly. The names are in
/// support/lsan.supp.
extern "C" const char *
__asan_default_options() // NOLINT(bugprone-reserved-identifier,readability-identifier-naming): the sanitizer's own name
{
    return "fast_unwind_on_malloc=0";
}

namespace {

/// Keeps the volumes that tests mount out of the machine's sight, and lets them go with this process however
/// it ends. Only an administrator can; nobody else can mount any.
void hideMounts()
{
    if (unshare(CLONE_NEWNS) == 0)
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
}

} // namespace

// The library takes the home folder from the environment and never looks again, so it is set before all else.
int main(int argc, char *argv[])
{
    hideMounts();
    const TrashHome home;
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
