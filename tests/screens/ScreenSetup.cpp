#include "screens/ScreenSetup.h"

#include "program/ProgramInfo.h"
#include "screens/ToolHelpers.h"
#include "screens/Warnings.h"

#include <QQmlEngine>

namespace {

/// Under the name that its QML_NAMED_ELEMENT tells, by which the QML linter knows it too.
void makeSingleton(QObject *object)
{
    const QMetaObject *type = object->metaObject();
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
    qmlRegisterSingletonInstance("Quillmere.Screens", 1, 0,
                                 type->classInfo(type->indexOfClassInfo("QML.Element")).value(), object);
}

} // namespace

void ScreenSetup::applicationAvailable()
{
    warnings::watch();
    program::describe();
    surroundings_ = std::make_unique<Surroundings>();
    program_ = std::make_unique<ProgramUnderTest>(*surroundings_);
    for (const toolhelpers::Make &make : toolhelpers::all())
        tools_.push_back(make(program_->composition(), *surroundings_));
    program_->show();
}

void ScreenSetup::qmlEngineAvailable(QQmlEngine *engine)
{
    engine->addImportPath(QStringLiteral("qrc:/qt/qml")); // the controls, for the tests that make them alone
    makeSingleton(surroundings_.get());
    makeSingleton(program_.get());
    for (const std::unique_ptr<QObject> &tool : tools_)
        makeSingleton(tool.get());
}

void ScreenSetup::cleanupTestCase()
{
    tools_.clear();
    program_.reset();
    surroundings_.reset();
}
