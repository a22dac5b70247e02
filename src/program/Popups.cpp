#include "program/Popups.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

#include <vector>

namespace {

/// What is popped up in the window is drawn by items of one kind in its overlay, which they own.
std::vector<QPointer<QObject>> popupsOf(const QQuickWindow &window)
{
    std::vector<QPointer<QObject>> found;
    for (const QQuickItem *layer : window.contentItem()->childItems()) {
        if (!layer->inherits("QQuickOverlay"))
            continue;
        for (const QQuickItem *item : layer->childItems()) {
            if (item->inherits("QQuickPopupItem"))
                found.emplace_back(item->parent());
        }
    }
    return found;
}

} // namespace

namespace popups {

void closeAll(QQuickWindow &window)
{
    for (const QPointer<QObject> &popup : popupsOf(window)) {
        if (popup && popup->property("visible").toBool()) // closing one may take another away
            QMetaObject::invokeMethod(popup, "close");
    }
}

} // namespace popups
