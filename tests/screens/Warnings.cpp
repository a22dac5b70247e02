#include "screens/Warnings.h"

#include <QMessageLogContext>
#include <QStringList>

#include <mutex>

namespace {

std::mutex mutex; // guards the list: a worker may warn too
QStringList recorded;
QtMessageHandler next = nullptr;

/// What the display without a screen says of itself is no news of ours.
bool isOfTheDisplay(const QString &message)
{
    return message.startsWith(QStringLiteral("This plugin does not support "));
}

void record(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (isWarning && !isOfTheDisplay(message)) {
        const std::lock_guard lock(mutex);
        recorded << message;
    }
    if (next)
        next(type, context, message);
}

} // namespace

namespace warnings {

void watch()
{
    const QtMessageHandler before = qInstallMessageHandler(record);
    if (before != record)
        next = before;
}

QString take()
{
    const std::lock_guard lock(mutex);
    const QString text = recorded.join(u'\n');
    recorded.clear();
    return text;
}

} // namespace warnings
