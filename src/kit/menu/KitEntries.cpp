// SPDX-License-Identifier: MIT
#include "KitEntries.h"

#include "GroupMenu.h"
#include "ModifiedEntries.h"

#include "../dialog/LayoutsDialog.h"
#include "../history/StepActions.h"
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
    addSaveAndBack();
    addUndoAndRedo();
    menu.addSeparator();
    addActions();
    addDialog(layouts);
    // The menu itself goes on without the kit.
    connect(&layouts, &QObject::destroyed, this, &KitEntries::disable);
    menu.setToolTipsVisible(true);
}

KitEntries::~KitEntries()
{
    delete m_dialog;
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

void KitEntries::addSaveAndBack()
{
    const auto* const entries = new ModifiedEntries(m_menu, m_session);
    add(entries->save());
    add(entries->back());
}

void KitEntries::addUndoAndRedo()
{
    if (const QUndoStack* stack = m_session.history.stack()) {
        add(StepActions::createUndo(*stack, &m_menu));
        add(StepActions::createRedo(*stack, &m_menu));
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

void KitEntries::addDialog(Layouts& layouts)
{
    auto* entry = new QAction(tr("&Manage Layouts..."), &m_menu);
    connect(entry, &QAction::triggered, this, [this, &layouts] { openDialog(layouts); });
    m_menu.addSeparator();
    add(entry);
}

// One for a window, whose child it is, not the menu's, which is a window of its own.
void KitEntries::openDialog(Layouts& layouts)
{
    QWidget* const window = m_menu.parentWidget() ? m_menu.parentWidget()->window() : nullptr;
    QDialog* dialog = window ? LayoutsDialog::find(*window, m_session) : m_dialog.data();
    if (!dialog) {
        dialog = layouts.createDialog(window);
        m_dialog = window ? nullptr : dialog;
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void KitEntries::disable()
{
    for (QAction* entry : qAsConst(m_entries)) {
        if (entry)
            entry->setEnabled(false);
    }
}

} // namespace Panorel::Kit::Detail
