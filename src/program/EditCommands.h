#pragma once

#include "shell/MenuBarView.h"

#include <QObject>
#include <QPointer>

/// Hands the commands of the Edit menu to the text field that has the focus, or had it until the menu opened. Main
/// thread.
class EditCommands final : public QObject
{
    Q_OBJECT

public:
    /// `menuBar` outlives this object.
    explicit EditCommands(MenuBarView &menuBar);

private:
    void follow(QObject *focus);
    void perform(const QString &command);

    MenuBarView &menuBar_;
    QPointer<QObject> field_;
};
