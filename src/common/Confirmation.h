#pragma once

#include <QObject>
#include <QString>

#include <functional>

/// A question that a screen puts before a run: it stands there with its texts until it is confirmed or taken back. What it
/// asks about must not change under it, so whoever replaces a list cancels the question over it. Main thread.
class Confirmation final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isUp READ isUp NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)

public:
    /// `confirmed` is what a confirmation sets going. It is called inside the click, so a run that lets the event loop
    /// turn begins in a later one (guarded::runLater).
    explicit Confirmation(std::function<void()> confirmed);

    bool isUp() const { return isUp_; }
    const QString &text() const { return text_; }
    /// A second paragraph; empty where there is none, or none yet.
    const QString &note() const { return note_; }

    /// Puts the question up, without a note.
    void ask(const QString &text);

    /// Adds what has been found out since the question was put; nothing once it is down.
    void setNote(const QString &note);

    Q_INVOKABLE void cancel();
    /// Takes the question down and sets the run going. A second click on a dialog that is on its way out does nothing.
    Q_INVOKABLE void confirm();

signals:
    void changed();

private:
    const std::function<void()> confirmed_;
    bool isUp_ = false;
    QString text_;
    QString note_;
};
