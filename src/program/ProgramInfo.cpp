#include "program/ProgramInfo.h"

#include <QFont>
#include <QGuiApplication>

namespace program {

void describe()
{
    QGuiApplication::setApplicationName(QStringLiteral("quillmere"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillmere"));
    QGuiApplication::setApplicationVersion(QStringLiteral(QUILLMERE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.quillmere.app"));
    QGuiApplication::setQuitOnLastWindowClosed(false); // closing the window is a request of its own
    QFont font = QGuiApplication::font();
    font.setFamilies({QStringLiteral("Inter"), font.family()});
    QGuiApplication::setFont(font);
}

feedback::Program feedbackProgram()
{
    return {QStringLiteral(QUILLMERE_SUPPORT_ADDRESS), QStringLiteral(QUILLMERE_VERSION),
            QStringLiteral(QUILLMERE_BUILD)};
}

} // namespace program
