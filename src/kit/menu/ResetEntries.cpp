// SPDX-License-Identifier: MIT
#include "ResetEntries.h"

#include "MenuParts.h"

#include "../window/Session.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QAction>

namespace Panorel::Kit::Detail {

namespace {

void reset(Session& session, const QAction& entry, bool (Manager::*activate)())
{
    session.history.nameDocument(entry.text());
    const Activity::Reading reading(session.activity);
    (void)(session.manager.*activate)();
}

} // namespace

ResetEntries::ResetEntries(Menu& menu, Session& session)
    : QObject(&menu)
    , m_menu(menu)
{
    const Manager& manager = session.manager;
    const MenuParts parts(menu);
    QAction* const start = parts.programStart();
    QAction* const factory = parts.factoryDefault();
    QAction* action = replace(start, manager.programStartViewSet());
    connect(&manager, &Manager::programStartViewChanged, action, &QAction::setEnabled);
    connect(action, &QAction::triggered, &session.history,
            [&session, action] { reset(session, *action, &Manager::activateProgramStartView); });
    action = replace(factory, manager.factoryDefaultViewSet());
    connect(&manager, &Manager::factoryDefaultViewChanged, action, &QAction::setEnabled);
    connect(action, &QAction::triggered, &session.history,
            [&session, action] { reset(session, *action, &Manager::activateFactoryDefaultView); });
}

QAction* ResetEntries::replace(QAction* entry, bool isEnabled)
{
    auto* action = new QAction(entry->text(), &m_menu);
    action->setEnabled(isEnabled);
    m_menu.insertAction(entry, action);
    m_menu.removeAction(entry);
    return action;
}

} // namespace Panorel::Kit::Detail
