// SPDX-License-Identifier: MIT
#include "Cycle.h"

#include "Actions.h"

#include <panorel/Manager.h>

#include <QAction>

namespace Panorel::Kit::Detail {

Cycle::Cycle(Manager& manager, const Actions& actions)
    : m_manager(manager)
    , m_next(*actions.next)
    , m_previous(*actions.previous)
{
    m_next.setText(tr("&Next Layout"));
    m_previous.setText(tr("&Previous Layout"));
    connect(&m_next, &QAction::triggered, this, [this] { go(1); });
    connect(&m_previous, &QAction::triggered, this, [this] { go(-1); });
    connect(&manager, &Manager::groupModified, this, &Cycle::update);
    connect(&manager, &Manager::groupActivated, this, &Cycle::update);
    connect(&manager, &Manager::viewActivated, this, &Cycle::update);
    update();
}

Cycle::~Cycle()
{
    m_next.setEnabled(false);
    m_previous.setEnabled(false);
}

void Cycle::update()
{
    const QStringList views = m_manager.views();
    const bool hasOther =
        views.size() > 1 || (!views.isEmpty() && m_manager.activeView() != views[0]);
    m_next.setEnabled(hasOther);
    m_previous.setEnabled(hasOther);
}

void Cycle::go(int step)
{
    const QStringList views = m_manager.views();
    if (views.isEmpty())
        return;
    const int active = views.indexOf(m_manager.activeView());
    const int first = step > 0 ? -1 : 0; // Where to begin if none is active.
    const int index = ((active < 0 ? first : active) + step + views.size()) % views.size();
    (void)m_manager.activateView(views[index]); // It exists.
}

} // namespace Panorel::Kit::Detail
