#include "activity/FDABanner.h"

FDABanner::FDABanner(FDAService &access, QString context, QObject *parent)
    : QObject(parent)
    , access_(access)
    , context_(std::move(context))
{
    connect(&access_, &FDAService::changed, this, &FDABanner::changed);
}

QString FDABanner::title() const
{
    return isGranted() ? QStringLiteral("Full Disk Access enabled")
                       : QStringLiteral("Some folders couldn't be scanned");
}

QString FDABanner::text() const
{
    return isGranted()
               ? QStringLiteral("Restart Quillmere to start using protected folders.")
               : QStringLiteral("Quillmere needs Full Disk Access to read protected folders. Find Quillmere "
                                "in the list and toggle the switch on.");
}

QString FDABanner::symbol() const
{
    return isGranted() ? QStringLiteral("checkmark.shield.fill") : QStringLiteral("lock.shield.fill");
}

QString FDABanner::buttonText() const
{
    return isGranted() ? QStringLiteral("Restart now") : QStringLiteral("Open System Settings");
}

QString FDABanner::buttonSymbol() const
{
    return isGranted() ? QStringLiteral("arrow.clockwise") : QString();
}

QString FDABanner::buttonTip() const
{
    return isGranted() ? QStringLiteral("Quit and reopen Quillmere so the new permission takes effect")
                       : QString();
}

void FDABanner::appear()
{
    access_.recheck();
}

void FDABanner::act()
{
    if (isGranted())
        access_.relaunch();
    else
        access_.openSystemSettings();
}

void FDABanner::hide()
{
    access_.dismiss(context_);
}
