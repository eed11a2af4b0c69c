// SPDX-License-Identifier: MIT
#include "Delta.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace Panorel::Kit::Detail {

namespace {

using View = Contents::View;

QHash<QString, const View*> viewsByName(const QVector<View>& views)
{
    QHash<QString, const View*> result;
    result.reserve(views.size());
    for (const View& view : views)
        result.insert(view.name, &view);
    return result;
}

QVector<Delta::View> viewsBetween(const QVector<View>& before, const QVector<View>& after)
{
    QVector<Delta::View> result;
    const auto old = viewsByName(before);
    const auto recent = viewsByName(after);
    for (const View& view : before) {
        if (!recent.contains(view.name))
            result.append({view, std::nullopt});
    }
    for (const View& view : after) {
        const View* const known = old.value(view.name);
        if (!known)
            result.append({std::nullopt, view});
        else if (!(*known == view))
            result.append({*known, view});
    }
    return result;
}

Delta::Order orderBetween(const QStringList& before, const QStringList& after)
{
    const int shorter = std::min(before.size(), after.size());
    int first = 0;
    while (first < shorter && before[first] == after[first])
        ++first;
    int last = 0;
    while (last < shorter - first &&
           before[before.size() - 1 - last] == after[after.size() - 1 - last])
        ++last;
    return {first, before.mid(first, before.size() - first - last),
            after.mid(first, after.size() - first - last)};
}

Delta::Group groupBetween(const Contents::Group& before, const Contents::Group& after)
{
    Delta::Group result;
    result.name = before.name;
    result.activeBefore = before.active;
    result.activeAfter = after.active;
    // Most changes are switches; then both share their views.
    if (before.views.constData() != after.views.constData()) {
        result.views = viewsBetween(before.views, after.views);
        result.order = orderBetween(before.names(), after.names());
    }
    return result;
}

bool isEmpty(const Delta::Group& group)
{
    return group.views.isEmpty() && group.order.before == group.order.after &&
           group.activeBefore == group.activeAfter &&
           group.activeBefore.isNull() == group.activeAfter.isNull() && !group.currentAfter;
}

// The names in their new order. If they are not what they were, the new ones come last.
QStringList orderAfter(const QStringList& names, const Delta::Group& change)
{
    const Delta::Order& order = change.order;
    if (names.mid(order.first, order.before.size()) == order.before)
        return names.mid(0, order.first) + order.after +
               names.mid(order.first + order.before.size());
    QStringList result = names;
    for (const Delta::View& view : change.views) {
        if (!view.after)
            result.removeAll(view.before->name);
        else if (!result.contains(view.after->name))
            result.append(view.after->name);
    }
    return result;
}

// Whether a view is no longer what the change began with, nor what it leads to.
bool isChanged(const Contents::Group& group, const Delta::View& change)
{
    const View* const present =
        group.find(change.before ? change.before->name : change.after->name);
    return present && !(change.before && *present == *change.before) &&
           !(change.after && *present == *change.after);
}

// Adds @p view under its name with a number after it, unless it is there already.
QString addCopy(Contents::Group& group, View view)
{
    const QString name = view.name;
    for (int number = 2; const View* const present = group.find(view.name); ++number) {
        if (*present == view)
            return view.name;
        view.name = name + QStringLiteral(" (%1)").arg(number);
    }
    group.views.append(view);
    return view.name;
}

void applyViews(Contents::Group& group, const Delta::Group& change, QString& active)
{
    if (change.views.isEmpty() && change.order.before == change.order.after)
        return;
    const Contents::Group from = group;
    auto views = viewsByName(from.views);
    QStringList names = orderAfter(from.names(), change);
    QVector<View> copies;
    for (const Delta::View& view : change.views) {
        const bool stays = isChanged(from, view);
        if (stays && view.after)
            copies.append(*view.after);
        else if (view.after)
            views.insert(view.after->name, &*view.after);
        if (stays && !view.after && !names.contains(view.before->name))
            names.insert(std::min(from.indexOf(view.before->name), names.size()),
                         view.before->name);
    }
    group.views.clear();
    for (const QString& name : qAsConst(names)) {
        if (const View* const view = views.take(name))
            group.views.append(*view);
    }
    for (const View& copy : qAsConst(copies)) {
        const QString name = addCopy(group, copy);
        if (active == copy.name)
            active = name;
    }
}

} // namespace

Delta Delta::between(const Contents& before, const Contents& after)
{
    Delta result;
    result.groupBefore = before.activeGroup;
    result.groupAfter = after.activeGroup;
    for (const Contents::Group& group : after.groups) {
        const Contents::Group* const old = before.find(group.name);
        if (!old)
            continue;
        Group change = groupBetween(*old, group);
        const bool isShown = group.name == after.activeGroup;
        const bool wasShown = group.name == before.activeGroup;
        if (!isShown && !wasShown && old->current != group.current) {
            change.currentBefore = old->current;
            change.currentAfter = group.current;
        }
        if (!Detail::isEmpty(change))
            result.groups.append(change);
    }
    return result;
}

Delta Delta::reversed() const
{
    Delta result = *this;
    std::swap(result.groupBefore, result.groupAfter);
    for (Group& group : result.groups) {
        std::swap(group.order.before, group.order.after);
        std::swap(group.activeBefore, group.activeAfter);
        std::swap(group.currentBefore, group.currentAfter);
        for (View& view : group.views)
            std::swap(view.before, view.after);
    }
    return result;
}

void Delta::apply(Contents& contents) const
{
    if (groupBefore != groupAfter)
        contents.activeGroup = groupAfter;
    for (const Group& change : groups) {
        Contents::Group* const group = contents.find(change.name);
        if (!group)
            continue;
        QString active = change.activeAfter;
        applyViews(*group, change, active);
        if (change.currentAfter)
            group->current = *change.currentAfter;
        if (change.activeAfter != change.activeBefore)
            group->active = active;
        if (!group->active.isNull() && !group->find(group->active))
            group->active = QString();
    }
}

void Delta::forEachStates(const std::function<void(StateMap&)>& function)
{
    for (Group& group : groups) {
        for (View& view : group.views) {
            if (view.before)
                function(view.before->states);
            if (view.after)
                function(view.after->states);
        }
        if (group.currentBefore)
            function(*group.currentBefore);
        if (group.currentAfter)
            function(*group.currentAfter);
    }
}

} // namespace Panorel::Kit::Detail
