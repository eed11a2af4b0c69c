// SPDX-License-Identifier: MIT
#include "LayoutEdits.h"

#include <panorel/kit/LayoutDocument.h>

#include <algorithm>
#include <utility>

namespace Panorel::Kit::Detail {

namespace {

Snapshot::View* find(Snapshot& snapshot, const LayoutId& layout)
{
    Snapshot::Group* const group = snapshot.find(layout.group);
    return group ? const_cast<Snapshot::View*>(std::as_const(*group).find(layout.name)) : nullptr;
}

int rowOf(const Snapshot::Group& group, const QString& name)
{
    const Snapshot::View* const view = group.find(name);
    return view ? static_cast<int>(view - group.views.constData()) : -1;
}

} // namespace

LayoutEdits::LayoutEdits(const Snapshot& snapshot)
    : m_snapshot(snapshot)
{}

QString LayoutEdits::nameFor(const LayoutId& layout, const QString& text)
{
    return text == layout.name ? text : text.trimmed();
}

QString LayoutEdits::refusal(const Snapshot& snapshot, const LayoutId& layout, const QString& text)
{
    const QString name = nameFor(layout, text);
    if (name.isEmpty())
        return tr("A layout needs a name.");
    if (!LayoutDocument::withGroups({name}).isReadable())
        return tr("A name cannot have control characters.");
    const Snapshot::Group* const group = snapshot.find(layout.group);
    if (name != layout.name && group && group->find(name))
        return tr("There is a layout of this name already.");
    return QString();
}

void LayoutEdits::rename(const LayoutId& layout, const QString& name)
{
    if (Snapshot::View* const view = find(m_snapshot, layout))
        view->name = name;
}

void LayoutEdits::remove(const LayoutIds& layouts)
{
    (void)take(layouts);
}

LayoutIds LayoutEdits::duplicate(const LayoutIds& layouts)
{
    LayoutIds copies;
    for (const LayoutId& layout : layouts) {
        Snapshot::Group* const group = m_snapshot.find(layout.group);
        const int row = group ? rowOf(*group, layout.name) : -1;
        if (row < 0)
            continue;
        Snapshot::View copy = group->views[row];
        copy.name = group->freeName(layout.name);
        copy.isActive = false;
        group->views.insert(row + 1, copy);
        copies.append({layout.group, copy.name});
    }
    return copies;
}

LayoutIds LayoutEdits::move(const LayoutIds& layouts, const QString& group, int row)
{
    Snapshot::Group* const target = m_snapshot.find(group);
    if (!target)
        return {};
    // Those that are taken from before the row make it smaller.
    const auto before = target->views.mid(0, row);
    const auto isTaken = [&](const Snapshot::View& view) {
        return layouts.contains({group, view.name});
    };
    row = before.size() - static_cast<int>(std::count_if(before.cbegin(), before.cend(), isTaken));
    const QVector<Taken> all = take(layouts);
    LayoutIds moved;
    for (const Taken& taken : all) {
        Snapshot::View view = taken.view;
        view.isActive = view.isActive && taken.group == group;
        view.name = target->freeName(view.name);
        target->views.insert(row++, view);
        moved.append({group, view.name});
    }
    return moved;
}

QString LayoutEdits::add(const QString& group, Snapshot::View view, OnTaken onTaken)
{
    Snapshot::Group* const target = m_snapshot.find(group);
    if (!target)
        return QString();
    view.isActive = false;
    Snapshot::View* const old = find(m_snapshot, {group, view.name});
    if (old && onTaken == OnTaken::Replace) {
        view.isActive = old->isActive;
        *old = view;
        return view.name;
    }
    view.name = target->freeName(view.name);
    target->views.append(view);
    return view.name;
}

void LayoutEdits::keepOnly(const LayoutIds& layouts)
{
    m_snapshot.toolBarStates.clear();
    for (Snapshot::Group& group : m_snapshot.groups) {
        const QVector<Snapshot::View> all = std::exchange(group.views, {});
        for (Snapshot::View view : all) {
            if (!layouts.contains({group.name, view.name}))
                continue;
            view.isActive = false;
            group.views.append(view);
        }
        group.current = {group.current.name, false, {}, QString()};
    }
}

QVector<LayoutEdits::Taken> LayoutEdits::take(const LayoutIds& layouts)
{
    QVector<Taken> taken;
    for (const LayoutId& layout : layouts) {
        Snapshot::Group* const group = m_snapshot.find(layout.group);
        const int row = group ? rowOf(*group, layout.name) : -1;
        if (row >= 0)
            taken.append({layout.group, group->views.takeAt(row)});
    }
    return taken;
}

} // namespace Panorel::Kit::Detail
