// SPDX-License-Identifier: MIT
#include "ManagerWriter.h"

#include "../window/WindowOwner.h"

#include <panorel/Manager.h>

#include <QSet>
#include <QSignalBlocker>

namespace Panorel::Kit::Detail {

namespace {

// How many of the first views of @p to can stay where they are once those between them are removed.
// All others have to come after them.
int keptViews(const Contents::Group& from, const Contents::Group& to)
{
    int kept = 0;
    for (const Contents::View& view : from.views) {
        if (kept < to.views.size() && view.name == to.views[kept].name)
            ++kept;
    }
    return kept;
}

// Which no view has.
QString freeName(const Contents::Group& group)
{
    QString name = QStringLiteral("none");
    while (group.find(name))
        name += QLatin1Char('_');
    return name;
}

bool hasSameActive(const Contents::Group& a, const Contents::Group& b)
{
    return a.active == b.active && a.active.isNull() == b.active.isNull();
}

} // namespace

ManagerWriter::ManagerWriter(Manager& manager, WindowOwner& owner)
    : m_manager(manager)
    , m_owner(owner)
{}

void ManagerWriter::write(const Contents& from, const Contents& to)
{
    const WindowOwner::Silence silence(m_owner);
    const QSignalBlocker blocker(m_manager);
    for (const Contents::Group& group : to.groups) {
        if (const Contents::Group* const old = from.find(group.name))
            removeViews(*old, group);
    }
    enter(to.activeGroup);
    // Last, because it also gives back what leaving a group has lost.
    add(from, to);
    const Contents::Group* const shown = to.find(m_manager.activeGroup());
    if (shown && shown->active != m_manager.activeView())
        (void)m_manager.activateView(shown->active);
}

void ManagerWriter::removeViews(const Contents::Group& from, const Contents::Group& to)
{
    const int kept = keptViews(from, to);
    QSet<QString> staying;
    for (int i = 0; i < kept; ++i)
        staying.insert(to.views[i].name);
    const bool losesActive = to.active.isNull() && !from.active.isNull();
    if (staying.size() == from.views.size() && !losesActive)
        return;
    enter(from.name);
    for (const Contents::View& view : from.views) {
        if (!staying.contains(view.name))
            m_manager.deleteView(view.name);
    }
    if (losesActive)
        removeActive(from);
}

void ManagerWriter::enter(const QString& group)
{
    if (group == m_manager.activeGroup() || !m_manager.groups().contains(group))
        return;
    m_left.append(m_manager.activeGroup());
    (void)m_manager.activateGroup(group);
}

// There is no operation for it.
void ManagerWriter::removeActive(const Contents::Group& from)
{
    if (m_manager.activeView().isNull())
        return;
    const QString name = freeName(from);
    (void)m_manager.saveCurrentViewAs(name);
    m_manager.deleteView(name);
}

void ManagerWriter::add(const Contents& from, const Contents& to)
{
    Contents added;
    for (const Contents::Group& group : to.groups) {
        const Contents::Group* const old = from.find(group.name);
        if (!old)
            continue;
        Contents::Group changed = group;
        changed.views.clear();
        const int kept = keptViews(*old, group);
        const bool isActiveGroup = group.name == m_manager.activeGroup();
        // In the active group it is activated, which takes no document.
        const bool marks = !isActiveGroup && !hasSameActive(*old, group);
        for (int i = 0; i < group.views.size(); ++i) {
            const Contents::View& view = group.views[i];
            const bool isMarked = marks && view.name == group.active;
            const Contents::View* const before = i < kept ? old->find(view.name) : nullptr;
            if (!before || isMarked || !(*before == view))
                changed.views.append(view);
        }
        const bool losesCurrent = m_left.contains(group.name) || old->current != group.current;
        if (!changed.views.isEmpty() || (!isActiveGroup && losesCurrent))
            added.groups.append(changed);
    }
    if (!added.groups.isEmpty())
        (void)m_manager.fromXml(added.toSnapshot().toXml(), /*merge=*/true); // It is valid.
}

} // namespace Panorel::Kit::Detail
