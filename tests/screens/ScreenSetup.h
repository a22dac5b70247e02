#pragma once

#include "screens/ProgramUnderTest.h"
#include "screens/Surroundings.h"

#include <QObject>

#include <memory>
#include <vector>

class QQmlEngine;

/// What the test runner calls: composes the program once and hands it to the tests' QML as the singleton `Program`, beside
/// its `Surroundings` and the helper of each tool.
class ScreenSetup final : public QObject
{
    Q_OBJECT

public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);
    void cleanupTestCase();

private:
    std::unique_ptr<Surroundings> surroundings_;
    std::unique_ptr<ProgramUnderTest> program_;
    std::vector<std::unique_ptr<QObject>> tools_;
};
