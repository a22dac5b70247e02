#include "screens/ScreenSetup.h"

#include "program/ProgramInfo.h"
#include "screens/ToolHelpers.h"
#include "screens/Warnings.h"

#include <QQmlEngine>

namespace {

void makeSingleton(const QString &name, QObject *object)
{
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    qmlRegisterSingletonInstance("Quillmere.Screens", 1, 0, name.toLatin1().constData(), object);
}

} // namespace

void ScreenSetup::applicationAvailable()
{
    warnings::watch();
    program::describe();
    surroundings_ = std::make_unique<Surroundings>();
    program_ = std::make_unique<ProgramUnderTest>(*surroundings_);
    for (const toolhelpers::Helper &helper : toolhelpers::all())
        tools_.emplace(helper.name, helper.make(program_->composition(), *surroundings_));
    program_->show();
}

void ScreenSetup::qmlEngineAvailable(QQmlEngine *)
{
    makeSingleton(QStringLiteral("Surroundings"), surroundings_.get());
    makeSingleton(QStringLiteral("Program"), program_.get());
    for (const auto &[name, tool] : tools_)
        makeSingleton(name, tool.get());
}

void ScreenSetup::cleanupTestCase()
{
    tools_.clear();
    program_.reset();
    surroundings_.reset();
}
