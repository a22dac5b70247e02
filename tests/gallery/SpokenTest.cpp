#include "screens/Spoken.h"

#include "gallery/GalleryFixture.h"
#include "screens/Scene.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

#include <map>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// The controls that say nothing of themselves to assistive technology, and why.
const std::map<QString, std::string> silent = {
    {u"BodyText"_s, "what shows it tells it, or gives it a role"},
    {u"CaptionText"_s, "the same"},
    {u"Card"_s, "a ground"},
    {u"CardSlice"_s, "a ground"},
    {u"Divider"_s, "a line"},
    {u"ElidedText"_s, "as a BodyText"},
    {u"FolderDrop"_s, "an offer to the pointer; a button beside it does the same"},
    {u"RowBackground"_s, "a ground; its row tells its states"},
    {u"ScrollHandle"_s, "lists follow the keys"},
    {u"ShareBar"_s, "the figure beside it is told"},
    {u"Picture"_s, "the word beside it is told"},
    {u"Spinner"_s, "the word beside it is told"},
    {u"Symbol"_s, "the word beside it is told"},
};

} // namespace

TEST_F(GalleryTest, tellsRoleNameAndStateOfEachControl)
{
    forEachCell([](const QQuickItem *section, QQuickItem *cell) {
        const bool isSilent = silent.contains(told(section, "control"));
        EXPECT_EQ(isSilent, section->property("role").toInt() == QAccessible::NoRole)
            << "it has a role, or is told to be silent, not both";
        if (isSilent)
            return;
        const QVariantMap heard = spokenIn(section, cell);
        ASSERT_FALSE(heard.isEmpty()) << "nothing speaks in that role";
        EXPECT_EQ(heard[u"name"_s].toString().toStdString(), told(cell, "spoken").toStdString());
        QStringList states = section->property("toldStates").toStringList();
        if (told(cell, "pose") == u"disabled"_s)
            states << u"disabled"_s;
        states.sort();
        EXPECT_EQ(heard[u"states"_s].toString().toStdString(), states.join(u' ').toStdString());
    });
}

TEST_F(GalleryTest, namesEverythingThatTakesTheKeyboard)
{
    const std::vector<QQuickItem *> takers =
        scene::items(gallery->window().contentItem(), [](QQuickItem *item) {
            return item->activeFocusOnTab()
                   && !item->property("isDivider").toBool(); // which a menu passes over
        });
    ASSERT_FALSE(takers.empty());
    for (QQuickItem *item : takers) {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
        ASSERT_TRUE(spoken) << scene::typeName(item).toStdString();
        EXPECT_NE(spoken->text(QAccessible::Name).toStdString(), "") << scene::typeName(item).toStdString();
        EXPECT_EQ(spoken->state().focusable, item->isEnabled()) << scene::typeName(item).toStdString();
    }
}
