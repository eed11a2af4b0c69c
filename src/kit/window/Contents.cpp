// SPDX-License-Identifier: MIT
#include "Contents.h"

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

const QLatin1String documentVersion("1.1.0");

Contents::Group groupOf(const Snapshot::Group& group)
{
    Contents::Group result;
    result.name = group.name;
    result.current = group.current.states;
    result.currentUserData = group.current.userData;
    result.views.reserve(group.views.size());
    for (const Snapshot::View& view : group.views) {
        result.views.append({view.name, view.states, view.userData});
        if (view.isActive)
            result.active = view.name;
    }
    return result;
}

Snapshot::Group groupOf(const Contents::Group& group)
{
    Snapshot::Group result;
    result.name = group.name;
    result.current = {QStringLiteral("__current__"), false, group.current, group.currentUserData};
    result.views.reserve(group.views.size());
    for (const Contents::View& view : group.views) {
        const bool isActive = !group.active.isNull() && view.name == group.active;
        result.views.append({view.name, isActive, view.states, view.userData});
    }
    return result;
}

} // namespace

QStringList Contents::Group::names() const
{
    QStringList result;
    result.reserve(views.size());
    for (const View& view : views)
        result.append(view.name);
    return result;
}

int Contents::Group::indexOf(const QString& view) const
{
    const auto found = std::find_if(views.cbegin(), views.cend(),
                                    [&](const View& known) { return known.name == view; });
    return found == views.cend() ? -1 : static_cast<int>(found - views.cbegin());
}

const Contents::View* Contents::Group::find(const QString& view) const
{
    const int index = indexOf(view);
    return index < 0 ? nullptr : &views[index];
}

StateMap Contents::Group::activeStates() const
{
    const View* const view = active.isNull() ? nullptr : find(active);
    return view ? view->states : StateMap();
}

Contents::Group* Contents::find(const QString& group)
{
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [&](const Group& known) { return known.name == group; });
    return found == groups.end() ? nullptr : &*found;
}

const Contents::Group* Contents::find(const QString& group) const
{
    const auto found = std::find_if(groups.cbegin(), groups.cend(),
                                    [&](const Group& known) { return known.name == group; });
    return found == groups.cend() ? nullptr : &*found;
}

Contents Contents::of(const Snapshot& snapshot, const QString& activeGroup)
{
    Contents result;
    result.activeGroup = activeGroup;
    for (const Snapshot::Group& group : snapshot.groups)
        result.groups.append(groupOf(group));
    return result;
}

Snapshot Contents::toSnapshot() const
{
    Snapshot result;
    result.version = documentVersion;
    for (const Group& group : groups)
        result.groups.append(groupOf(group));
    return result;
}

bool operator==(const Contents::View& a, const Contents::View& b)
{
    return a.name == b.name && a.states == b.states && a.userData == b.userData;
}

} // namespace Panorel::Kit::Detail
