// SPDX-License-Identifier: MIT
#include "MenuParts.h"

#include <panorel/Menu.h>

#include <QAction>
#include <QLineEdit>
#include <QWidgetAction>

namespace Panorel::Kit::Detail {

MenuParts::MenuParts(const Menu& menu)
{
    const QList<QAction*> actions = menu.actions();
    for (QAction* action : actions) {
        if (action->menu())
            m_subMenus.append(action->menu());
        else if (action->isCheckable() && m_subMenus.isEmpty())
            m_views.append(action);
        else if (!action->isSeparator())
            m_commands.append(action);
    }
}

MenuParts::NameField MenuParts::nameField(const QMenu& saveAs)
{
    const QList<QAction*> actions = saveAs.actions();
    for (QAction* candidate : actions) {
        auto* action = qobject_cast<QWidgetAction*>(candidate);
        if (auto* edit = action ? qobject_cast<QLineEdit*>(action->defaultWidget()) : nullptr)
            return {action, edit};
    }
    return {};
}

QList<QAction*> MenuParts::viewEntries(const QMenu& subMenu)
{
    QList<QAction*> entries;
    const QList<QAction*> actions = subMenu.actions();
    for (QAction* action : actions) {
        if (!qobject_cast<QWidgetAction*>(action))
            entries.append(action);
    }
    return entries;
}

} // namespace Panorel::Kit::Detail
