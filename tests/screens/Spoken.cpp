#include "screens/Spoken.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString told(const QAccessible::State &state)
{
    const std::pair<QString, bool> all[] = {
        {u"busy"_s, state.busy},
        {u"checkable"_s, state.checkable},
        {u"checked"_s, state.checked},
        {u"collapsed"_s, state.collapsed},
        {u"disabled"_s, state.disabled},
        {u"editable"_s, state.editable},
        {u"expandable"_s, state.expandable},
        {u"expanded"_s, state.expanded},
        {u"invisible"_s, state.invisible},
        {u"readOnly"_s, state.readOnly},
        {u"searchEdit"_s, state.searchEdit},
        {u"selectable"_s, state.selectable},
        {u"selected"_s, state.selected},
    };
    QStringList names;
    for (const auto &[name, isTold] : all) {
        if (isTold)
            names << name;
    }
    return names.join(u' ');
}

/// What is passed over can be asked all the same, but nobody comes to it.
bool isInTree(const QAccessibleInterface &spoken)
{
    const QAccessibleInterface *parent = spoken.parent();
    return parent && parent->indexOfChild(&spoken) >= 0;
}

} // namespace

QVariantMap spoken::of(QObject *object)
{
    QAccessible::setActive(true); // the toolkit's controls wait for it
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(object);
    if (!spoken || !isInTree(*spoken))
        return {};
    return {{u"role"_s, static_cast<int>(spoken->role())},
            {u"name"_s, spoken->text(QAccessible::Name)},
            {u"description"_s, spoken->text(QAccessible::Description)},
            {u"states"_s, told(spoken->state())}};
}
