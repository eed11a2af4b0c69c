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

void KitEntries::disable()
{
    for (QAction* entry : qAsConst(m_entries)) {
        if (entry)
            entry->setEnabled(false);
    }
}

} // namespace Panorel::Kit::Detail
