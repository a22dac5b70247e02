#pragma once

#include "duplicates/DuplicateService.h"

#include <QStringList>

#include <utility>

/// Writes down each signal of a duplicate finder, with its arguments, in the order in which they come.
class HeardSignals
{
public:
    explicit HeardSignals(DuplicateService &service)
        : service_(service)
    {
        hear(&DuplicateService::groupsChanged, "groupsChanged");
        hear(&DuplicateService::groupsShrunk, "groupsShrunk");
        hear(&DuplicateService::keepChanged, "keepChanged");
        hear(&DuplicateService::isScanningChanged, "isScanningChanged");
        hear(&DuplicateService::progressChanged, "progressChanged");
        hear(&DuplicateService::currentPathChanged, "currentPathChanged");
        hear(&DuplicateService::scopeChanged, "scopeChanged");
        hear(&DuplicateService::minFileSizeChanged, "minFileSizeChanged");
        hear(&DuplicateService::deletingChanged, "deletingChanged");
        QObject::connect(&service, &DuplicateService::groupChanged, &context_,
                         [this](size_t group) { heard_ << QStringLiteral("groupChanged %1").arg(group); });
        QObject::connect(&service, &DuplicateService::fileChanged, &context_,
                         [this](size_t group, size_t file) {
                             heard_ << QStringLiteral("fileChanged %1 %2").arg(group).arg(file);
                         });
    }

    /// What was heard since the last call.
    QStringList take() { return std::exchange(heard_, {}); }

private:
    void hear(void (DuplicateService::*signal)(), const char *name)
    {
        QObject::connect(&service_, signal, &context_, [this, name] { heard_ << QString::fromLatin1(name); });
    }

    DuplicateService &service_;
    QStringList heard_;
    QObject context_;
};
