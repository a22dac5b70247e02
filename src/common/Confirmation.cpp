#include "common/Confirmation.h"

#include <utility>

Confirmation::Confirmation(std::function<void()> confirmed)
    : confirmed_(std::move(confirmed))
{
}

void Confirmation::ask(const QString &text)
{
    isUp_ = true;
    text_ = text;
    note_.clear();
    emit changed();
}

void Confirmation::setNote(const QString &note)
{
    if (!isUp_ || note == note_)
        return;
    note_ = note;
    emit changed();
}

void Confirmation::cancel()
{
    if (std::exchange(isUp_, false)) // the texts stay for a dialog that fades away
        emit changed();
}

void Confirmation::confirm()
{
    if (!isUp_)
        return;
    cancel();
    confirmed_();
}
