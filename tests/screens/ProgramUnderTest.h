#pragma once

#include "base/EventLoopMainQueue.h"
#include "base/ThreadWorkQueue.h"
#include "program/Composition.h"
#include "screens/DiskGate.h"
#include "screens/GatedDu.h"
#include "screens/TrashFolder.h"
#include "support/Fakes.h"
#include "support/TempHome.h"

#include <QJSValue>
#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QVariantMap>

#include <memory>

/// The whole program, composed as it is for a user, in its window: over a temporary home of the Mac's shape, with real
/// threads, the real `du`, settings in memory, a desktop that writes down what it is asked for, and an end that is
/// only counted. The tests' QML knows it as `Program`. Lists go to QML as lines of one text, to be compared whole.
class ProgramUnderTest final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QQuickWindow *window READ window CONSTANT)

public:
    ProgramUnderTest();
    ~ProgramUnderTest() override;

    QQuickWindow *window() const { return composition_->window(); }

    // What is on view. Without `under` the whole window is meant.

    /// The item with that objectName; null while none is on view.
    Q_INVOKABLE QQuickItem *named(const QString &name, QQuickItem *under = nullptr) const;
    /// The text that reads so; null while none is on view.
    Q_INVOKABLE QQuickItem *textItem(const QString &text, QQuickItem *under = nullptr) const;
    /// The first item with a property of that name, of that value where one is given.
    Q_INVOKABLE QQuickItem *itemWith(const QString &property, QQuickItem *under = nullptr,
                                     const QVariant &value = {}) const;
    /// All texts in reading order, a line each.
    Q_INVOKABLE QString texts(QQuickItem *under = nullptr) const;
    /// The lines of the menus that are open: "Title (Key) off", "-" for a divider.
    Q_INVOKABLE QString menuLines() const;
    /// What takes clicks or keys, by number.
    Q_INVOKABLE int controlCount(QQuickItem *under) const;
    /// The item that has the keyboard and those around it, by type and text: for the message of a failure.
    Q_INVOKABLE QString focusPath() const;
    /// Turns the main loop once, as it turns between any two doings of a person, and waits until every item has its
    /// place.
    Q_INVOKABLE bool settle() const;
    /// Saves a picture of the window where QUILLMERE_PICTURES names a folder.
    Q_INVOKABLE void picture(const QString &name) const;

    // The program from within, where the window shows nothing.

    Q_INVOKABLE QString firstScreen() const
    {
        return firstScreen_;
    }                                           ///< the one on view at the start, by its title
    Q_INVOKABLE QString selectedScreen() const; ///< its title
    Q_INVOKABLE bool isSheetUp() const; ///< one that a button or a menu opens; the tour comes by itself
    Q_INVOKABLE bool isScanning() const;
    Q_INVOKABLE int probeCount() const; ///< the runs of `du` alive
    Q_INVOKABLE QString takeWarnings() const;
    Q_INVOKABLE void watchWarnings() const;

    // What the program has asked of its surroundings, since `forget`.

    Q_INVOKABLE void forget();
    Q_INVOKABLE int exits() const { return exits_; }
    Q_INVOKABLE QString calls() const { return workspace_.calls.join(u'\n'); }
    Q_INVOKABLE QString clipboard() const { return workspace_.clipboard; }
    Q_INVOKABLE QString mail() const { return QString::fromLatin1(workspace_.address); }
    Q_INVOKABLE QString posted() const { return posted_.join(u'\n'); }
    Q_INVOKABLE QString folderMessage() const { return workspace_.folderRequest.message; }
    Q_INVOKABLE QString folderStart() const { return workspace_.folderRequest.start; }
    Q_INVOKABLE QString settingsPage() const { return QString::fromLatin1(workspace_.settingsPage); }
    Q_INVOKABLE QString recycled() const { return recycler_.recycled.join(u'\n'); }
    Q_INVOKABLE int volumeQueries() const { return systemInfo_.volumeQueries; }

    // The surroundings.

    Q_INVOKABLE QString at(const QString &relative) const { return temp_.at(relative); }
    /// The bytes of a path, percent-encoded but for slashes.
    Q_INVOKABLE QString encoded(const QString &path) const;
    Q_INVOKABLE bool exists(const QString &path) const;
    Q_INVOKABLE void remove(const QString &path) const; ///< a file
    Q_INVOKABLE void userWillChoose(const QString &folder) { workspace_.chosenFolder = folder; }
    Q_INVOKABLE void userWillCancel() { workspace_.chosenFolder.reset(); }
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
    Q_INVOKABLE void recycleAsEver() { trash_.reset(); }
    /// Whether the folders can be listed that only a program with full access can.
    Q_INVOKABLE void setFullAccess(bool isFull) const;
    /// Brings things dragged over the window to the middle of the item: a step is "enter", "leave" or "drop". Gives
    /// whether they were welcome.
    Q_INVOKABLE bool drag(const QString &step, const QStringList &addresses, QQuickItem *over);
    Q_INVOKABLE void systemWantsToQuit() { composition_->quit().handleQuitEvent(); }
    /// A text field in the window, as a screen of a later day will have one.
    Q_INVOKABLE QQuickItem *addTextField(const QString &text);
    Q_INVOKABLE void removeTextField() { textField_.reset(); }

    // What a test works on.

    /// A folder of equal files that no test has seen, in the place of the one before.
    Q_INVOKABLE QString makeTwins();
    /// A folder of so many pairs of equal files.
    Q_INVOKABLE QString makePairs(int pairs) const;
    /// Lets the Duplicate Finder look at these folders, and at files from `minSize` bytes on.
    Q_INVOKABLE void scanOnly(const QStringList &folders, int minSize);
    /// An entry of the activity log: kind, title, and where they are given paths, bytes, detail, isFailed.
    Q_INVOKABLE void record(const QVariantMap &entry);
    Q_INVOKABLE void emptyHistory() { composition_->history().clear(); }

private:
    Locations locations() const;
    void fillHome() const;
    QQuickItem *rootOf(QQuickItem *under) const;

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
    FakeSystemLog systemLog_;
    FakeSystemInfo systemInfo_;
    GatedDu du_{temp_};
    QString shell_ = temp_.script(QStringLiteral("shell"), "touch \"$(dirname \"$0\")/relaunched\"\n");
    Platform platform_{
        home_,           locations_, defaults_,  clock_,         {.du = du_.program(), .sh = shell_},
        KeyStyle::words, mainQueue_, workQueue_, notifications_, workspace_,
        recycler_,       systemLog_, systemInfo_};
    Appearance appearance_;
    QStringList posted_;
    QString firstScreen_;
    int exits_ = 0;
    int twins_ = 0;
    std::unique_ptr<Composition> composition_;
    std::unique_ptr<QQuickItem> textField_;
};
