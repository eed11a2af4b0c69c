// SPDX-License-Identifier: MIT
#include "StoredViews.h"

#include "Snapshot.h"
#include "WindowOwner.h"

#include <panorel/Manager.h>

namespace Panorel::Kit::Detail {

StoredViews::StoredViews(Manager& manager, WindowOwner& owner)
    : m_manager(manager)
    , m_owner(owner)
{}

StateMap StoredViews::view(const QString& group, const QString& view)
{
    fetchViews();
    return m_views.value({group, view});
}

bool StoredViews::has(const QString& group, const QString& view)
{
    fetchViews();
    return m_views.contains({group, view});
}

void StoredViews::setView(const QString& group, const QString& view, const StateMap& states)
{
    m_views.insert({group, view}, states);
}

void StoredViews::setCurrent(const QString& group, const StateMap& states)
{
    m_currents.insert(group, states);
}

void StoredViews::readCurrents()
{
    // With a single group there is none but the active one.
    if (!m_knowsCurrents && m_manager.groups().size() > 1)
        fetch();
    m_knowsCurrents = true;
}

void StoredViews::read(const Snapshot& snapshot)
{
    m_views.clear();
    m_currents.clear();
    for (const Snapshot::Group& group : snapshot.groups) {
        m_currents.insert(group.name, group.current.states);
        for (const Snapshot::View& view : group.views)
            m_views.insert({group.name, view.name}, view.states);
    }
    m_knowsViews = true;
    m_knowsCurrents = true;
}

void StoredViews::fetchViews()
{
    if (m_knowsViews)
        return;
    // Kept, because the Manager may be just about to give one of them.
    const QHash<QString, StateMap> currents = m_currents;
    const bool knewCurrents = m_knowsCurrents;
    fetch();
    m_currents = currents;
    m_knowsCurrents = knewCurrents;
}

void StoredViews::fetch()
{
    const WindowOwner::Silence silence(m_owner);
    read(Snapshot::fromXml(m_manager.toXml(/*markActive=*/false)));
}

} // namespace Panorel::Kit::Detail
