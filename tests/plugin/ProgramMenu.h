// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/Menu.h>

#include <QMainWindow>
#include <QMenuBar>

namespace Panorel::Tests {

/** The menu that the plugin has put into a window, or null. */
inline Menu* pluginMenu(const QMainWindow& window)
{
    const auto* bar = window.findChild<QMenuBar*>();
    if (!bar)
        return nullptr;
    const QList<QAction*> entries = bar->actions();
    for (const QAction* entry : entries) {
        if (auto* const menu = qobject_cast<Menu*>(entry->menu()))
            return menu;
    }
    return nullptr;
}

/** Chooses the layout @p name in a menu. */
inline void switchTo(const Menu& menu, const QString& name)
{
    const QList<QAction*> entries = menu.actions();
    for (QAction* entry : entries) {
        if (entry->data().toString() == name)
            return entry->trigger();
    }
}

} // namespace Panorel::Tests
