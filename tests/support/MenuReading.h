// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QAction>
#include <QLineEdit>
#include <QList>
#include <QMenu>
#include <QStringList>
#include <QWidgetAction>

namespace Panorel::Tests {

namespace Detail {

inline QLineEdit* editIn(const QAction* action)
{
    const auto* widgetAction = qobject_cast<const QWidgetAction*>(action);
    return widgetAction ? qobject_cast<QLineEdit*>(widgetAction->defaultWidget()) : nullptr;
}

inline QString described(const QAction* action)
{
    if (action->isSeparator())
        return "---"_s;
    if (editIn(action))
        return "[edit]"_s;
    QString line = action->text();
    if (action->isChecked())
        line.prepend("* "_s);
    if (action->menu())
        line.append(" >"_s);
    if (!action->isEnabled())
        line.append(" (off)"_s);
    return line;
}

inline QMenu* subMenu(const QMenu& layouts, int index)
{
    QList<QMenu*> menus;
    const QList<QAction*> actions = layouts.actions();
    for (const QAction* action : actions) {
        if (action->menu())
            menus.append(action->menu());
    }
    return menus.value(index);
}

} // namespace Detail

/**
 * A menu as one line per entry, top to bottom: "name", "* name" for a checked one, "name (off)" for
 * a disabled one, "name >" for a sub-menu, "[edit]" for a line edit and "---" for a separator.
 */
inline QStringList entries(const QMenu& menu)
{
    QStringList lines;
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions)
        lines.append(Detail::described(action));
    return lines;
}

/** The two sub-menus of a Layouts menu, found by their place: the first and the second one. */
inline QMenu* saveAsMenu(const QMenu& layouts)
{
    return Detail::subMenu(layouts, 0);
}

inline QMenu* deleteMenu(const QMenu& layouts)
{
    return Detail::subMenu(layouts, 1);
}

/** The first entry with exactly this text; null if there is none. */
inline QAction* entry(const QMenu* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->text() == text && !action->isSeparator() && !Detail::editIn(action))
            return action;
    }
    return nullptr;
}

/** The view entries: those above the first separator. */
inline QList<QAction*> viewEntries(const QMenu& layouts)
{
    QList<QAction*> found;
    const QList<QAction*> actions = layouts.actions();
    for (QAction* action : actions) {
        if (action->isSeparator())
            break;
        found.append(action);
    }
    return found;
}

/** The line edit at the top of the first sub-menu. */
inline QLineEdit* nameEdit(const QMenu& layouts)
{
    return Detail::editIn(saveAsMenu(layouts)->actions().value(0));
}

} // namespace Panorel::Tests
