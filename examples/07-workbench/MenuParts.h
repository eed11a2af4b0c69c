// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QList>
#include <QMenu>

/** The entries of a menu. They are found by their places, because their texts are translated. */
class MenuParts
{
public:
    explicit MenuParts(const QMenu& menu)
    {
        const QList<QAction*> actions = menu.actions();
        for (QAction* action : actions) {
            if (action->menu())
                m_subMenus.append(action->menu());
            else if (!action->isSeparator() && !action->isCheckable())
                m_commands.append(action);
        }
    }

    QMenu* saveAs() const { return m_subMenus.value(0); }
    QMenu* deletion() const { return m_subMenus.value(1); }
    QMenu* groups() const { return m_subMenus.value(2); }
    QAction* import() const { return m_commands.value(1); }
    QAction* importAndMerge() const { return m_commands.value(2); }
    QAction* programStart() const { return m_commands.value(3); }
    QAction* factoryDefault() const { return m_commands.value(4); }

private:
    QList<QMenu*> m_subMenus;
    QList<QAction*> m_commands;
};
