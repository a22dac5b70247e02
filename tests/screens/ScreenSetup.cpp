#include "screens/ScreenSetup.h"

#include "program/ProgramInfo.h"
#include "screens/Warnings.h"

#include <QQmlEngine>

void ScreenSetup::applicationAvailable()
{
    warnings::watch();
    program::describe();
    program_ = std::make_unique<ProgramUnderTest>();
}

void ScreenSetup::qmlEngineAvailable(QQmlEngine *)
{
    QQmlEngine::setObjectOwnership(program_.get(), QQmlEngine::CppOwnership);
    qmlRegisterSingletonType<ProgramUnderTest>("Quillmere.Screens", 1, 0, "Program",
                                               [this](QQmlEngine *, QJSEngine *) { return program_.get(); });
}

void ScreenSetup::cleanupTestCase()
{
    program_.reset();
}
