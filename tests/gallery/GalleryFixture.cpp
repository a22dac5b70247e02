#include "gallery/GalleryFixture.h"

#include "gallery/GalleryPoses.h"
#include "program/ProgramInfo.h"
#include "screens/Scene.h"
#include "screens/Spoken.h"
#include "screens/Warnings.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQuickTest/quicktest.h>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 10'000; // milliseconds; each wait ends as soon as it may

bool tooltipsAreUp()
{
    int count = 0;
    for (const QQuickItem *cell : GalleryTest::ofType(u"GalleryCell"_s)) {
        for (const QObject *object : cell->findChildren<QObject *>()) {
            if (!object->inherits("QQuickToolTip"))
                continue;
            ++count;
            if (!object->property("opened").toBool())
                return false;
        }
    }
    return count > 0;
}

/// The items that a control is made of, the outermost one first: it, or what it opens over the window.
std::vector<QQuickItem *> partsOf(QObject *control)
{
    QObjectList roots = control->findChildren<QObject *>();
    roots.prepend(control);
    std::vector<QQuickItem *> parts;
    for (QObject *root : roots) {
        auto *item = qobject_cast<QQuickItem *>(root == control ? root : nullptr);
        if (root->inherits("QQuickPopup")) {
            const auto *content = root->property("contentItem").value<QQuickItem *>();
            item = content ? content->parentItem() : nullptr;
        }
        if (!item)
            continue;
        for (QQuickItem *part : scene::items(item, [](QQuickItem *) { return true; }))
            parts.push_back(part);
    }
    return parts;
}

} // namespace

std::unique_ptr<Gallery> GalleryTest::gallery;

void GalleryTest::SetUpTestSuite()
{
    warnings::watch();
    program::describe();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    gallery = std::make_unique<Gallery>(true);
    gallery->showWhole();
    QAccessible::setActive(true); // as a screen reader does
    gallery->window().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&gallery->window(), patience));
    ASSERT_TRUE(QTest::qWaitFor(tooltipsAreUp, patience));
    settle();
}

void GalleryTest::TearDownTestSuite()
{
    gallery.reset();
}

void GalleryTest::TearDown()
{
    gallery->poses().setSample({});
    gallery->setDark(true);
    if (QQuickItem *holder = gallery->window().activeFocusItem())
        holder->setFocus(false); // or its ring would be measured
    settle();
    EXPECT_EQ(warnings::take().toStdString(), "");
}

void GalleryTest::settle()
{
    QCoreApplication::processEvents();
    QQuickTest::qWaitForPolish(&gallery->window());
    QCoreApplication::processEvents();
}

std::vector<QQuickItem *> GalleryTest::ofType(const QString &type, QQuickItem *under)
{
    return scene::items(under ? under : gallery->window().contentItem(),
                        [&type](QQuickItem *item) { return scene::typeName(item) == type; });
}

QString GalleryTest::told(const QObject *object, const char *property)
{
    return object->property(property).toString();
}

QObject *GalleryTest::control(const QQuickItem *section, QQuickItem *cell)
{
    const QString type = told(section, "control");
    if (const std::vector<QQuickItem *> items = ofType(type, cell); !items.empty())
        return items.front();
    for (QObject *object : cell->findChildren<QObject *>()) {
        if (scene::typeName(object) == type)
            return object;
    }
    return nullptr;
}

QVariantMap GalleryTest::spokenIn(const QQuickItem *section, QQuickItem *cell)
{
    QObject *made = control(section, cell);
    for (QQuickItem *part : made ? partsOf(made) : std::vector<QQuickItem *>()) {
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(part);
        if (!spoken || spoken->role() != section->property("role").toInt())
            continue;
        if (const QVariantMap heard = spoken::of(part); !heard.isEmpty())
            return heard;
    }
    return {};
}

void GalleryTest::forEachCell(const std::function<void(QQuickItem *, QQuickItem *)> &check)
{
    for (QQuickItem *section : ofType(u"GallerySection"_s)) {
        const std::vector<QQuickItem *> cells = ofType(u"GalleryCell"_s, section);
        const QString name = told(section, "control") + u' ' + told(section, "variant");
        EXPECT_FALSE(cells.empty()) << name.toStdString();
        for (QQuickItem *cell : cells) {
            SCOPED_TRACE((name + u", "_s + told(cell, "pose")).toStdString());
            check(section, cell);
        }
    }
}
