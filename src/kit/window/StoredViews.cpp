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

const Contents& StoredViews::contents()
{
    fetchViews();
    return m_contents;
}

StateMap StoredViews::view(const QString& group, const QString& view)
{
    fetchViews();
    const Contents::Group* const known = m_contents.find(group);
    const Contents::View* const found = known ? known->find(view) : nullptr;
    return found ? found->states : StateMap();
}

bool StoredViews::has(const QString& group, const QString& view)
{
    fetchViews();
    const Contents::Group* const known = m_contents.find(group);
    return known && known->find(view);
}

StateMap StoredViews::current(const QString& group) const
{
    const Contents::Group* const known = m_contents.find(group);
    return known ? known->current : StateMap();
}

void StoredViews::setView(const QString& group, const QString& view, const StateMap& states)
{
    Contents::Group* const known = m_contents.find(group);
    if (!known)
        return;
    const int index = known->indexOf(view);
    if (index < 0)
        known->views.append({view, states, QString()});
    else
        known->views[index].states = states;
}

void StoredViews::removeView(const QString& group, const QString& view)
{
    Contents::Group* const known = m_contents.find(group);
    const int index = known ? known->indexOf(view) : -1;
    if (index < 0)
        return;
    known->views.remove(index);
    if (known->active == view)
        known->active = QString();
}

void StoredViews::removeViews()
{
    for (Contents::Group& group : m_contents.groups) {
        group.views.clear();
        group.active = QString();
    }
}

void StoredViews::setCurrent(const QString& group, const StateMap& states)
{
    if (Contents::Group* const known = m_contents.find(group))
        known->current = states;
}

void StoredViews::setActive(const QString& group, const QString& view)
{
    m_contents.activeGroup = group;
    Contents::Group* const known = m_contents.find(group);
    if (known)
        known->active = view;
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
    set(Contents::of(snapshot, m_manager.activeGroup()));
}

void StoredViews::set(const Contents& contents)
{
    m_contents = contents;
    m_knowsViews = true;
    m_knowsCurrents = true;
}

void StoredViews::fetchViews()
{
    if (m_knowsViews)
        return;
    // Kept, because the Manager may be just about to give one of them.
    const Contents before = m_contents;
    const bool knewCurrents = m_knowsCurrents;
    fetch();
    m_knowsCurrents = knewCurrents;
    for (const Contents::Group& group : before.groups)
        setCurrent(group.name, group.current);
}

void StoredViews::fetch()
{
    const WindowOwner::Silence silence(m_owner);
    read(Snapshot::fromXml(m_manager.toXml(/*markActive=*/true)));
}

} // namespace Panorel::Kit::Detail
