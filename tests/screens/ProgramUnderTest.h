#pragma once

#include "program/Composition.h"
#include "program/FallbackPanel.h"
#include "screens/Spoken.h"
#include "screens/Surroundings.h"

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <memory>

/// The whole program, composed as it is for a user, in its window: what is on view there, and an end that is only counted.
/// The tests' QML knows it as `Program`. Lists go to QML as lines of one text, to be compared whole.
class ProgramUnderTest final : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Program)
    QML_SINGLETON
    Q_PROPERTY(QQuickWindow *window READ window CONSTANT)

public:
    /// `surroundings` outlive it.
    explicit ProgramUnderTest(Surroundings &surroundings);
    ~ProgramUnderTest() override;

    Composition &composition() { return *composition_; }

    /// Throws where the window can't be loaded.
    void show();

    QQuickWindow *window() const { return composition_->window(); }

    // What is on view. Without `under` the whole window is meant.

    /// The item with that objectName; null while none is on view.
    Q_INVOKABLE QQuickItem *named(const QString &name, QQuickItem *under = nullptr) const;
    /// The text that reads so; null while none is on view.
    Q_INVOKABLE QQuickItem *textItem(const QString &text, QQuickItem *under = nullptr) const;
    /// The first item with a property of that name, of that value where one is given.
    Q_INVOKABLE QQuickItem *itemWith(const QString &property, QQuickItem *under = nullptr,
                                     const QVariant &value = {}) const;
    /// All of these.
    Q_INVOKABLE QVariantList itemsWith(const QString &property, QQuickItem *under = nullptr) const;
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
    /// The texts on view that can't be told well enough from what is behind them, a line each.
    Q_INVOKABLE QString faintTexts() const;
    /// What assistive technology is told of the item (spoken::of).
    Q_INVOKABLE QVariant spoken(QQuickItem *item) const { return spoken::of(item); }
    /// Saves a picture of the window where QUILLMERE_PICTURES names a folder.
    Q_INVOKABLE void picture(const QString &name) const;

    // The program from within, where the window shows nothing.

    /// The title of the screen on view at the start.
    Q_INVOKABLE QString firstScreen() const { return firstScreen_; }
    /// The titles of the screens that the program does not have yet.
    Q_INVOKABLE QStringList upcomingScreens() const;
    /// The title of the one on view.
    Q_INVOKABLE QString selectedScreen() const;
    /// Whether it has been seen, so that what it loads has begun.
    Q_INVOKABLE bool hasAppeared() const { return composition_->main().hasAppeared(); }
    /// Whether a sheet is up that a button or a menu opens; the tour comes by itself.
    Q_INVOKABLE bool isSheetUp() const;
    Q_INVOKABLE QString takeWarnings() const;
    Q_INVOKABLE void watchWarnings() const;

    /// Begins anew to note down what the program asks for, and how often it ends.
    Q_INVOKABLE void forget();
    Q_INVOKABLE int exits() const { return exits_; }
    /// How often it gave up what another start would take for a running program.
    Q_INVOKABLE int lettings() const { return lettings_; }
    /// Whether anything that waits for the first picture began before it.
    Q_INVOKABLE bool beganEarly() const { return beganEarly_; }
    /// Whether it looks at the disk's usage from time to time.
    Q_INVOKABLE bool watchesDisk() const { return composition_->sidebar().isTimerActive(); }

    // What comes from outside.

    /// A key that is held: what the system tells again and again until it is let go.
    Q_INVOKABLE void repeatKey(int key, int modifiers) const;

    /// Brings things dragged over the window to the middle of the item: a step is "enter", "leave" or "drop". Gives
    /// whether they were welcome.
    Q_INVOKABLE bool drag(const QString &step, const QStringList &addresses, QQuickItem *over);
    Q_INVOKABLE void systemWantsToQuit() { composition_->quit().handleQuitEvent(); }
    /// The desktop makes the program the active one, or another.
    Q_INVOKABLE void setActive(bool isActive);
    /// Another start asks for the window, with the token that its desktop gave it.
    Q_INVOKABLE void startAgain(const QString &token) { composition_->activate(token.toUtf8()); }
    Q_INVOKABLE QString activationToken() const { return qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); }
    /// Shows the program's own folder panel, as on a desktop that has none.
    Q_INVOKABLE void askForFolder(const QString &message);
    /// The same of the panel for saving.
    Q_INVOKABLE void askForSavePath(const QString &message, const QString &name);
    /// What those panels have answered, a line each; "none" where they were cancelled.
    Q_INVOKABLE QString panelAnswers() const { return panelAnswers_.join(u'\n'); }
    /// A text field in the window, as a screen of a later day will have one.
    Q_INVOKABLE QQuickItem *addTextField(const QString &text);
    Q_INVOKABLE void removeTextField() { textField_.reset(); }

private:
    QQuickItem *rootOf(QQuickItem *under) const;
    Workspace::PathChosen answerTaker();

    Surroundings &surroundings_;
    QString firstScreen_;
    int exits_ = 0;
    int lettings_ = 0;
    bool beganEarly_ = false;
    QStringList panelAnswers_;
    FallbackPanel panel_;
    std::unique_ptr<Composition> composition_;
    std::unique_ptr<QQuickItem> textField_;
};
