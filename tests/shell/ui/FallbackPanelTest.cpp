#include "shell/FallbackPanel.h"

#include "base/Files.h"
#include "support/TempHome.h"

#include <QElapsedTimer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
