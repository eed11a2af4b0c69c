// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/Manager.h>

#include <QList>

namespace Panorel::Tests {

// What has rules of its own but no public way in. An explicit instantiation may name private
// members, which opens these few without a friend or a macro in the public header.

template<typename Tag, typename Tag::Type member>
struct Opened
{
    friend typename Tag::Type open(Tag) { return member; }
};

struct ActiveGroupTag
{
    using Type = Group* Manager::*;
    friend Type open(ActiveGroupTag);
};
template struct Opened<ActiveGroupTag, &Manager::m_activeGroup>;

struct ManagedWindowsTag
{
    using Type = QList<ManagedWindow> (Manager::*)();
    friend Type open(ManagedWindowsTag);
};
template struct Opened<ManagedWindowsTag, &Manager::managedWindows>;

struct MergeStatesTag
{
    using Type = StateMap (Manager::*)(const StateMap&, const StateMap&);
    friend Type open(MergeStatesTag);
};
template struct Opened<MergeStatesTag, &Manager::mergeStates>;

inline Group& activeGroupOf(Manager& manager)
{
    return *(manager.*open(ActiveGroupTag()));
}

inline QList<ManagedWindow> managedWindowsOf(Manager& manager)
{
    return (manager.*open(ManagedWindowsTag()))();
}

inline StateMap mergeStates(Manager& manager, const StateMap& stored, const StateMap& live)
{
    return (manager.*open(MergeStatesTag()))(stored, live);
}

} // namespace Panorel::Tests
