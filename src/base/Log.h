#pragma once

#include <QString>

/// How grave a line of the diagnostic log is. Completed runs are info, failures are error.
enum class LogLevel {
    debug,
    info,
    error,
};

/// Where lines of the diagnostic log go. Safe from any thread; never fails visibly.
class LogSink
{
public:
    LogSink() = default;
    LogSink(const LogSink &) = delete;
    LogSink &operator=(const LogSink &) = delete;
    virtual ~LogSink() = default;

    virtual void write(LogLevel level, const QString &category, const QString &message) = 0;
};

/// One category of the diagnostic log. Cheap to copy; the sink outlives it.
class Logger
{
public:
    Logger(QString category, LogSink &sink)
        : category_(std::move(category))
        , sink_(&sink)
    {
    }

    void debug(const QString &message) const { sink_->write(LogLevel::debug, category_, message); }
    void info(const QString &message) const { sink_->write(LogLevel::info, category_, message); }
    void error(const QString &message) const { sink_->write(LogLevel::error, category_, message); }

private:
    QString category_;
    LogSink *sink_;
};
