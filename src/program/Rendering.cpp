#include "program/Rendering.h"

#include <QList>
#include <QQuickWindow>
#include <QtGlobal>

#include <algorithm>
#include <array>

namespace {

/// Whether a list of scales holds one below 1: of all screens, "0.5", or of each, "DP-1=0.5;DP-2=1".
bool shrinks(const QByteArray &scales)
{
    const QList<QByteArray> all = scales.split(';');
    return std::any_of(all.begin(), all.end(), [](const QByteArray &named) {
        bool isNumber = false;
        const double scale = named.mid(named.lastIndexOf('=') + 1).toDouble(&isNumber);
        return isNumber && scale > 0 && scale < 1;
    });
}

} // namespace

namespace rendering {

bool drawsInSoftware(bool hasGraphicsCard, const std::function<QByteArray(const char *variable)> &valueOf)
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
    // The toolkit's painter takes each scale below 1 for 1: what it draws would be larger than the window, and cut off.
    static constexpr std::array scales = {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"};
    const auto isSet = [&valueOf](const char *variable) { return !valueOf(variable).isEmpty(); };
    const auto isBelowOne = [&valueOf](const char *variable) { return shrinks(valueOf(variable)); };
    return !hasGraphicsCard && std::none_of(choices.begin(), choices.end(), isSet)
           && std::none_of(scales.begin(), scales.end(), isBelowOne);
}

void choose(bool hasGraphicsCard)
{
    if (drawsInSoftware(hasGraphicsCard, [](const char *variable) { return qgetenv(variable); }))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

} // namespace rendering
