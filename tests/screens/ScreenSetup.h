#pragma once

#include "screens/ProgramUnderTest.h"

#include <QObject>

#include <memory>

class QQmlEngine;

/// What the test runner calls: composes the program once and hands it to the tests' QML as the singleton `Program`.
class ScreenSetup final : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);
    void cleanupTestCase();

private:
    std::unique_ptr<ProgramUnderTest> program_;
};
