#include "program/Rendering.h"

#include <QQuickWindow>
#include <QtGlobal>

#include <algorithm>
#include <array>

namespace rendering {

bool drawsInSoftware(bool hasGraphicsCard, const std::function<bool(const char *variable)> &isSet)
{
    static constexpr std::array choices = {
        "QT_QUICK_BACKEND",
        "QMLSCENE_DEVICE",
        "QSG_RHI_BACKEND",
        "QSG_RHI_PREFER_SOFTWARE_RENDERER",
        "QT_OPENGL",
        "QT_XCB_GL_INTEGRATION",
        "LIBGL_ALWAYS_SOFTWARE",
    };
    return !hasGraphicsCard && std::none_of(choices.begin(), choices.end(), isSet);
}

void choose(bool hasGraphicsCard)
{
    if (drawsInSoftware(hasGraphicsCard,
                        [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); }))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

} // namespace rendering
