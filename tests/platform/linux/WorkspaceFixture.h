#pragma once

#include "CountingWorkQueue.h"
#include "platform/linux/LinuxWorkspace.h"
#include "PrivateBus.h"
#include "support/TempHome.h"

#include <QByteArrayList>

#include <memory>
#include <vector>

#include <gtest/gtest.h>

/// A workspace over a bus of its own, with a search path of stand-in programs
/// that note how they were started.
class WorkspaceFixture : public testing::Test
{
protected:
    WorkspaceFixture();

    /// The workspace, made at the first call.
    LinuxWorkspace &workspace();

    /// A program that leaves its name, its working folder and its arguments in a
    /// file of its own.
    void addProgram(const QString &name);

    /// What each program that was started has left, in no order.
    std::vector<QByteArrayList> starts() const;

    /// What the only program that was started has left, once it has. Empty when
    /// it wasn't the only one.
    QByteArrayList onlyStart() const;

    /// A path in the home folder, or the folder's own.
    QString home(const QByteArray &name = {}) const;
    QByteArray addressOf(const QByteArray &name) const;

    PrivateBus bus_;
    bool hasBus_ = true; // false, before the first use of the workspace: it gets none
    TempHome temp_;
    CountingWorkQueue workQueue_;
    std::vector<Workspace::FolderRequest> panelRequests_; // that reached the fallback, which answers at once
    std::vector<Workspace::SaveRequest> saveRequests_;    // the same of the panel for saving
    std::unique_ptr<LinuxWorkspace> workspace_;
};
