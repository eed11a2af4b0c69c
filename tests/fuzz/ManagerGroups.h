// SPDX-License-Identifier: MIT
#pragma once

#include "Group.h"
#include "manager/ManagerPrivate.h"
#include "support/Text.h"

#include <panorel/Manager.h>

#include <QVector>

namespace Panorel::Tests {

struct GroupsTag
{
    using Type = QVector<Group*> Manager::*;
    friend Type open(GroupsTag);
};
template struct Opened<GroupsTag, &Manager::m_groups>;

inline QVector<Group*> groupsOf(Manager& manager)
{
    return manager.*open(GroupsTag());
}

/** The view's content, one line each. */
inline QString describe(const View& view)
{
    QString text = "  view "_s + quoted(view.name) + ", data "_s +
                   (view.userData.isValid() ? quoted(view.userData.toString()) : "invalid"_s) +
                   "\n"_s;
    for (auto it = view.states.cbegin(); it != view.states.cend(); ++it)
        text += "    "_s + quoted(it.key()) + ": "_s + QString::fromLatin1(it->toHex()) + "\n"_s;
    return text;
}

/** The saved views in their order, and which of them is active. */
inline QString describeViews(const Group& group)
{
    QString text = "group "_s + quoted(group.name) + ", active "_s +
                   (group.activeView ? quoted(group.activeView->name) : "none"_s) + "\n"_s;
    for (const auto& view : group.views)
        text += describe(*view);
    return text;
}

/** All that a Manager keeps. */
inline QString describe(Manager& manager)
{
    QString text = QString(QStringLiteral("active ") + manager.activeGroup() + u'\n');
    for (const Group* group : groupsOf(manager))
        text += describeViews(*group) + describe(*group->currentView);
    return text;
}

} // namespace Panorel::Tests
