// SPDX-License-Identifier: MIT
#include "Session.h"

namespace Panorel::Kit::Detail {

Session::Session(Manager& theManager, WindowOwner& theOwner, const Actions& theActions)
    : manager(theManager)
    , owner(theOwner)
    , actions(theActions)
    , stored(manager, owner)
    , giver(owner, names, docks)
    , activity(manager, owner, stored, giver)
    , windows(owner, giver)
    , keeper(manager, owner, stored, activity, windows)
    , history(manager, owner, stored, giver, activity, windows, actions)
    , modification(owner, stored, giver, activity, windows)
    , transfer(manager, activity)
    , layoutSlots(manager, stored, windows, keeper, actions)
    , cycle(manager, actions)
    , lock(owner, windows, keeper, actions)
{
    QObject::connect(&keeper, &Keeper::replaced, &history, &History::forget);
    QObject::connect(&transfer, &Transfer::importing, &history, &History::nameImport);
}

} // namespace Panorel::Kit::Detail
