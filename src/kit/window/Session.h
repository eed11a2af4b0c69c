// SPDX-License-Identifier: MIT
#pragma once

#include "Actions.h"
#include "Activity.h"
#include "Cycle.h"
#include "DockFactory.h"
#include "Giver.h"
#include "Keeper.h"
#include "Lock.h"
#include "Modification.h"
#include "Names.h"
#include "Slots.h"
#include "StoredViews.h"
#include "Transfer.h"
#include "WindowOwner.h"
#include "Windows.h"

#include "../history/History.h"

namespace Panorel::Kit::Detail {

/** All that a Layouts is made of, as long as its Manager lives. Each knows those before it only. */
struct Session
{
    Session(Manager& manager, WindowOwner& owner, const Actions& actions);

    Manager& manager;
    WindowOwner& owner;
    const Actions& actions;
    Names names;
    DockFactory docks;
    StoredViews stored;
    Giver giver;
    Activity activity;
    Windows windows;
    Keeper keeper;
    History history;
    Modification modification;
    Transfer transfer;
    Slots layoutSlots;
    Cycle cycle;
    Lock lock;
};

} // namespace Panorel::Kit::Detail
