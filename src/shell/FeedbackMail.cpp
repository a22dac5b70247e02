#include "shell/FeedbackMail.h"

namespace {

struct Draft
{
    QString subject;
    QString body;
};

Draft draft(feedback::Kind kind)
{
    if (kind == feedback::Kind::bug) {
        return {QStringLiteral("[Bug] "), QStringLiteral("Please describe the bug below this line:\n\n\n\n"
                                                         "Steps to reproduce (if you can):\n\n\n\n")};
    }
    return {QStringLiteral("[Feature Request] "),
            QStringLiteral("Please describe the feature you'd like below this line:\n\n\n\n"
                           "Why it would be useful:\n\n\n\n")};
}

} // namespace

namespace feedback {

QString systemInfoBlock(const Program &program, const SystemInfo &system)
{
    const SystemInfo::Version version = system.systemVersion();
    return QStringLiteral("---\nSystem info (don't edit):\nQuillmere %1 (build %2)\nmacOS %3.%4.%5\n"
                          "Mac model: %6\nLocale: %7\n---")
        .arg(program.version, program.build, QString::number(version.major), QString::number(version.minor),
             QString::number(version.patch), system.hardwareModel().value_or(QStringLiteral("Unknown")),
             system.localeIdentifier());
}

QByteArray mailAddress(Kind kind, const Program &program, const SystemInfo &system)
{
    const Draft mail = draft(kind);
    const QString body = mail.body + systemInfoBlock(program, system);
    return "mailto:" + program.supportAddress.toUtf8().toPercentEncoding("@") + "?subject="
           + mail.subject.toUtf8().toPercentEncoding() + "&body=" + body.toUtf8().toPercentEncoding();
}

} // namespace feedback
