#pragma once

#include "base/EventLoopMainQueue.h"
#include "base/ThreadWorkQueue.h"
#include "platform/Appearance.h"
#include "platform/Platform.h"
#include "screens/DiskGate.h"
#include "screens/GatedDu.h"
#include "screens/TrashFolder.h"
#include "support/Fakes.h"
#include "support/TempHome.h"

#include <QJSValue>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// What the program under test stands in: a temporary home of the Mac's shape, real threads, the real `du`, settings in
/// memory, and a desktop that writes down what it is asked for. The tests' QML knows it as `Surroundings`. Lists go to
/// QML as lines of one text, to be compared whole.
class Surroundings final : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Surroundings)
    QML_SINGLETON

public:
    Surroundings();
    ~Surroundings() override;

    const Platform &platform() const { return platform_; }
    Appearance &appearance() { return appearance_; }
    const TempHome &temp() const { return temp_; }

    /// The one folder that only a program with full access can read.
    static const QString protectedFolder;

    // What the program has asked for, since `forget`.

    void forget();
    Q_INVOKABLE QString calls() const { return workspace_.calls.join(u'\n'); }
    Q_INVOKABLE QString clipboard() const { return workspace_.clipboard; }
    Q_INVOKABLE QString mail() const { return QString::fromLatin1(workspace_.address); }
    Q_INVOKABLE QString posted() const { return posted_.join(u'\n'); }
    Q_INVOKABLE QString folderMessage() const { return workspace_.folderRequest.message; }
    Q_INVOKABLE QString folderStart() const { return workspace_.folderRequest.start; }
    Q_INVOKABLE QString settingsPage() const { return QString::fromLatin1(workspace_.settingsPage); }
    Q_INVOKABLE QString recycled() const { return recycler_.recycled.join(u'\n'); }
    Q_INVOKABLE QString saveRequest() const; ///< its title and the name that it proposes

    // What it finds.

    Q_INVOKABLE QString at(const QString &relative) const { return temp_.at(relative); }
    /// The bytes of a path, percent-encoded but for slashes.
    Q_INVOKABLE QString encoded(const QString &path) const;
    Q_INVOKABLE bool exists(const QString &path) const;
    /// Removes a file.
    Q_INVOKABLE void remove(const QString &path) const;
    Q_INVOKABLE void userWillChoose(const QString &folder) { workspace_.chosenFolder = folder; }
    Q_INVOKABLE void userWillCancel() { workspace_.chosenFolder.reset(); }
    Q_INVOKABLE void userWillSaveAs(const QString &path) { workspace_.chosenSavePath = path; }
    /// The programs that run, by their paths.
    Q_INVOKABLE void setRunning(const QStringList &paths) { applications_.running = paths; }
    /// An administrator who is asked takes away what the user may not, or fails with that number.
    Q_INVOKABLE void administratorAgrees();
    Q_INVOKABLE void administratorFails(int number, const QString &message);
    Q_INVOKABLE void setVolume(double total, double available, const QString &name);
    Q_INVOKABLE void loseVolume() { systemInfo_.volume.reset(); }
    Q_INVOKABLE void setDark(bool isDark) { appearance_.setDark(isDark); }
    Q_INVOKABLE void pass(double seconds) { clock_.advance(seconds); }
    Q_INVOKABLE void holdProbes() { du_.shut(); }
    Q_INVOKABLE void releaseProbes() { du_.open(); }
    /// Lets whoever lists that folder or opens that file wait.
    Q_INVOKABLE void holdDisk(const QString &path) { diskGate_.shut(path); }
    Q_INVOKABLE void releaseDisk() { diskGate_.open(); }
    Q_INVOKABLE bool isDiskHeld() { return diskGate_.isHolding(); }
    /// Calls the function while the next move to the Trash is under way, which ends only then.
    Q_INVOKABLE void duringNextRecycle(const QJSValue &doing);
    Q_INVOKABLE void refuseRecycle(const QString &path) { trash_.refuse(path); }
    /// Lets what goes to the Trash be found in the Trash of the home folder.
    Q_INVOKABLE void recycleIntoHome() { trash_.putInto(temp_.folder(QStringLiteral("home/.Trash"))); }
    Q_INVOKABLE void recycleAsEver() { trash_.reset(); }

private:
    Locations locations() const;
    void fillHome() const;

    TempHome temp_;
    DiskGate diskGate_;
    QString home_ = temp_.folder(QStringLiteral("home"));
    Lazy<Locations> locations_{[this] { return locations(); }};
    Defaults defaults_;
    FakeClock clock_;
    EventLoopMainQueue mainQueue_;
    ThreadWorkQueue workQueue_;
    NotificationCenter notifications_;
    FakeWorkspace workspace_;
    FakeRecycler recycler_;
    TrashFolder trash_{temp_, recycler_};
    FakeApplications applications_;
    FakeSystemLog systemLog_;
    FakeSystemInfo systemInfo_;
    GatedDu du_{temp_};
    // The real one but for a relaunch, which is only noted down.
    QString shell_ =
        temp_.script(QStringLiteral("shell"), "case \"$2\" in find*) exec /bin/sh \"$@\";; esac\n"
                                              "touch \"$(dirname \"$0\")/relaunched\"\n");
    Platform platform_{
        home_,           locations_,    defaults_,  clock_,         {.du = du_.program(), .sh = shell_},
        KeyStyle::words, mainQueue_,    workQueue_, notifications_, workspace_,
        recycler_,       applications_, systemLog_, systemInfo_};
    Appearance appearance_;
    QStringList posted_;
};
