#pragma once

#include "platform/Platform.h"
#include "shell/MainContentView.h"

#include <QObject>
#include <QVariantList>

#include <vector>

/// The menu bar's commands. They reach nothing directly: each posts a notification, but for those that end the
/// program. A command whose sheet, window or screen is not there yet is disabled. Main thread.
class MenuBarView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString menuBarName READ menuBarName CONSTANT)
    Q_PROPERTY(QVariantList menus READ menus CONSTANT)
    Q_PROPERTY(bool hasText READ hasText NOTIFY hasTextChanged)
    Q_PROPERTY(QVariantList keys READ keys CONSTANT)
    Q_PROPERTY(QList<int> commandsInForce READ commandsInForce NOTIFY commandsInForceChanged)

public:
    /// One line of a menu. A line without a title is a divider.
    struct Command
    {
        QString menu;
        QString title;
        QString keys;         ///< key signs, "⇧⌘Y"; empty for none
        QString notification; ///< posted when the command is chosen
        QVariant object;      ///< what the notification carries
        bool isEnabled = true;
        QString textCommand = {}; ///< instead of a notification: what the text field with the focus is to do
    };

    MenuBarView(const Platform &platform, const MainContentView &main, std::function<void()> quit);

    const std::vector<Command> &commands() const { return commands_; }

    /// The bar's name for assistive technology.
    QString menuBarName() const { return QStringLiteral("Menu bar"); }

    /// For the look: a list of menus, each {title, letter, sequence, items}, an item {title, keysText, isEnabled, isDivider,
    /// isText, command}. The sequence, Alt with the letter, opens the menu. Items with `isText` are enabled only while `hasText` is set.
    QVariantList menus() const;

    /// Every key that may be in force: {sequence, command} for each command that is enabled. It never changes.
    QVariantList keys() const;

    /// The commands of `keys` whose key is in force: no screen claims it.
    QList<int> commandsInForce() const;

    /// Does what the command with that index does, unless it is disabled.
    Q_INVOKABLE void perform(int command);

    /// Whether a text field has the focus.
    bool hasText() const { return hasText_; }
    void setHasText(bool hasText);

signals:
    void hasTextChanged();
    void textCommandChosen(const QString &textCommand);
    void commandsInForceChanged();

private:
    QVariantMap item(size_t index) const;
    static bool hasShortcut(const Command &command);

    const Platform &platform_;
    const MainContentView &main_;
    const std::function<void()> quit_;
    const std::vector<Command> commands_;
    bool hasText_ = false;
};
