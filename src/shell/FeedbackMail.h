#pragma once

#include "platform/SystemInfo.h"

#include <QByteArray>
#include <QString>

/// The mail drafts of "Report a Bug…" and "Request a Feature…". Pure.
namespace feedback {

enum class Kind {
    bug,
    feature,
};

/// The program as the draft names it.
struct Program
{
    QString supportAddress;
    QString version; ///< "?" when it is not known
    QString build;   ///< "?" when it is not known
};

/// The lines about program and machine that close a draft.
QString systemInfoBlock(const Program &program, const SystemInfo &system);

/// The "mailto:" address of a draft, percent-encoded.
QByteArray mailAddress(Kind kind, const Program &program, const SystemInfo &system);

} // namespace feedback
