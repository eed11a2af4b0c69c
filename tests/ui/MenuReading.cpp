// SPDX-License-Identifier: MIT
#include "ui/MenuReading.h"

#include "support/Text.h"

#include <QLineEdit>
#include <QMenu>
#include <QWidgetAction>

namespace Panorel::Tests {

namespace {

QLineEdit* editIn(const QAction* action)
{
    const auto* widgetAction = qobject_cast<const QWidgetAction*>(action);
    return widgetAction ? qobject_cast<QLineEdit*>(widgetAction->defaultWidget()) : nullptr;
}

QString described(const QAction* action)
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

QMenu* subMenu(const QMenu& layouts, int index)
{
    QList<QMenu*> menus;
    const QList<QAction*> actions = layouts.actions();
    for (const QAction* action : actions) {
        if (action->menu())
            menus.append(action->menu());
    }
    return menus.value(index);
}

} // namespace

QStringList entries(const QMenu& menu)
{
    QStringList lines;
    const QList<QAction*> actions = menu.actions();
    for (const QAction* action : actions)
        lines.append(described(action));
    return lines;
}

QMenu* saveAsMenu(const QMenu& layouts)
{
    return subMenu(layouts, 0);
}

QMenu* deleteMenu(const QMenu& layouts)
{
    return subMenu(layouts, 1);
}

QAction* entry(const QMenu* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->text() == text && !action->isSeparator() && !editIn(action))
            return action;
    }
    return nullptr;
}

QList<QAction*> viewEntries(const QMenu& layouts)
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

QLineEdit* nameEdit(const QMenu& layouts)
{
    return editIn(saveAsMenu(layouts)->actions().value(0));
}

} // namespace Panorel::Tests
