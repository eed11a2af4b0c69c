// SPDX-License-Identifier: MIT
#include "KitEntries.h"

#include "GroupMenu.h"

#include "../window/Session.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/kit/Layouts.h>

namespace Panorel::Kit::Detail {

// The one place for the order of the entries.
KitEntries::KitEntries(Menu& menu, Layouts& layouts, Session& session)
    : QObject(&menu)
    , m_menu(menu)
    , m_session(session)
{
    menu.addSeparator();
    addGroups();
    addUndoAndRedo();
    menu.addSeparator();
    addActions();
    // The menu itself goes on without the kit.
    connect(&layouts, &QObject::destroyed, this, &KitEntries::disable);
    menu.setToolTipsVisible(true);
}

void KitEntries::add(QAction* entry)
{
    m_menu.addAction(entry);
    m_entries.append(entry);
}

// One group needs no choice.
void KitEntries::addGroups()
{
    if (m_session.manager.groups().size() > 1)
        add((new GroupMenu(m_session.manager, &m_menu))->menuAction());
}

void KitEntries::addUndoAndRedo()
{
    if (const QUndoStack* stack = m_session.history.stack()) {
        add(stack->createUndoAction(&m_menu));
        add(stack->createRedoAction(&m_menu));
    }
}

// They belong to the Layouts, so every menu has the same.
void KitEntries::addActions()
{
    add(m_session.actions.next);
    add(m_session.actions.previous);
    add(m_session.actions.shortcuts);
    add(m_session.actions.lock);
}

void KitEntries::disable()
{
    for (QAction* entry : qAsConst(m_entries)) {
        if (entry)
            entry->setEnabled(false);
    }
}

} // namespace Panorel::Kit::Detail
