// SPDX-License-Identifier: MIT
#include "EntryTexts.h"

#include "MenuParts.h"

#include "../window/ActionText.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QAction>

namespace Panorel::Kit::Detail {

EntryTexts::EntryTexts(Menu& menu, Manager& manager)
    : QObject(&menu)
    , m_menu(menu)
    , m_manager(manager)
{
    const MenuParts parts(menu);
    connect(&menu, &QMenu::aboutToShow, this, &EntryTexts::escapeViews);
    const QList<QMenu*> subMenus{parts.saveAs(), parts.deletion()};
    for (QMenu* subMenu : subMenus) {
        connect(subMenu, &QMenu::aboutToShow, this, [this, subMenu] { escape(*subMenu); });
        // A menu is connected to an action when the action is added, and so before anything that
        // is connected to it later. Its own signal comes before that reads the text.
        connect(subMenu, &QMenu::triggered, this,
                [this, subMenu](QAction* action) { restore(*subMenu, action); });
    }
    if (QAction* action = parts.importAndMerge())
        action->setText(action->text().replace(QLatin1String(" & "), QLatin1String(" && ")));
}

void EntryTexts::escapeViews() const
{
    const QList<QAction*> entries = MenuParts(m_menu).views();
    for (QAction* entry : entries) {
        const QString name = entry->data().toString();
        const bool isBare = entry->text() == name;
        if (isBare && name.contains(QLatin1Char('&')))
            entry->setText(actionText(name));
    }
}

void EntryTexts::escape(const QMenu& subMenu) const
{
    const QList<QAction*> entries = MenuParts::viewEntries(subMenu);
    const QStringList names = sortedNames();
    for (int i = 0; i < entries.size() && i < names.size(); ++i) {
        if (names[i].contains(QLatin1Char('&')))
            entries[i]->setText(actionText(names[i]));
    }
}

void EntryTexts::restore(const QMenu& subMenu, QAction* triggered) const
{
    const int index = MenuParts::viewEntries(subMenu).indexOf(triggered);
    const QStringList names = sortedNames();
    if (index >= 0 && index < names.size() && triggered->text() != names[index])
        triggered->setText(names[index]);
}

// In the order of the sub-menus' entries.
QStringList EntryTexts::sortedNames() const
{
    QStringList names = m_manager.views();
    names.sort(Qt::CaseSensitive);
    return names;
}

} // namespace Panorel::Kit::Detail
