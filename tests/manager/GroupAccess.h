// SPDX-License-Identifier: MIT
#pragma once

#include "Group.h"

#include <panorel/Manager.h>

#include <QString>

namespace Panorel::Tests {

// A group beside the Manager's own is the way to hand it blobs that no window ever saved.

inline StateMap capture(Manager& manager)
{
    Group group(&manager, QString());
    group.captureCurrentView();
    return group.currentView->states;
}

inline void apply(Manager& manager, const StateMap& states)
{
    Group group(&manager, QString());
    group.currentView->states = states;
    group.applyCurrentView();
}

} // namespace Panorel::Tests
