#include "DemoOptions.h"

#include "shell/SidebarItem.h"

#include <QCommandLineParser>

#include <cstdio>

namespace {

QStringList screenKeys()
{
    QStringList keys;
    for (const sidebar::Row &row : sidebar::rows)
        keys << QString::fromLatin1(row.key);
    return keys;
}

/// The parser knows the program's name only from an application object.
[[noreturn]] void tellHelp(const QCommandLineParser &parser, const QString &program)
{
    printf("%s", qPrintable(parser.helpText().replace(QStringLiteral("<executable_name>"), program)));
    exit(EXIT_SUCCESS);
}

[[noreturn]] void refuse(const QString &message)
{
    fprintf(stderr, "%s\n", qPrintable(message));
    exit(EXIT_FAILURE);
}

} // namespace

DemoOptions DemoOptions::from(const QStringList &arguments)
{
    // Not the parser's own, which also offers the toolkit's options: these are not taken.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Tell what the demo takes."));
    const QCommandLineOption light(QStringLiteral("light"), QStringLiteral("Show the light palette."));
    const QCommandLineOption screen(
        QStringLiteral("screen"), QStringLiteral("Begin with this screen: %1.").arg(screenKeys().join(u", ")),
        QStringLiteral("key"));
    const QCommandLineOption refresh(
        QStringLiteral("refresh"),
        QStringLiteral("Do what the menu's command of that name does, which starts the "
                       "scan of a screen that waits for one."));
    const QCommandLineOption gallery(QStringLiteral("gallery"),
                                     QStringLiteral("Show every control in each of its states instead."));
    const QCommandLineOption picture(
        QStringLiteral("picture"),
        QStringLiteral("Save a picture of the window once the screen has nothing more "
                       "to do, and end."),
        QStringLiteral("file"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The whole program over a made-up home in a temporary folder, beside the real one."));
    parser.addOptions({help, light, screen, refresh, gallery, picture});
    parser.process(arguments);
    if (parser.isSet(help))
        tellHelp(parser, arguments.constFirst());
    if (!parser.positionalArguments().isEmpty())
        refuse(QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));
    if (parser.isSet(screen) && !screenKeys().contains(parser.value(screen)))
        refuse(QStringLiteral("There is no screen '%1'.").arg(parser.value(screen)));
    if (parser.isSet(gallery) && (parser.isSet(screen) || parser.isSet(refresh)))
        refuse(QStringLiteral("The gallery has no screens."));
    return {parser.isSet(light), parser.isSet(refresh), parser.isSet(gallery), parser.value(screen),
            parser.value(picture)};
}
