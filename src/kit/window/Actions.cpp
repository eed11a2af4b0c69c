// SPDX-License-Identifier: MIT
#include "Actions.h"

#include "Slots.h"

#include <QAction>

namespace Panorel::Kit::Detail {

namespace {

QAction* disabledAction(QObject& owner)
{
    auto* action = new QAction(&owner);
    action->setEnabled(false);
    return action;
}

} // namespace

Actions::Actions(QObject& owner)
    : shortcuts(disabledAction(owner))
    , next(disabledAction(owner))
    , previous(disabledAction(owner))
    , lock(disabledAction(owner))
    , history(new QUndoStack(&owner))
{
    for (int slot = 1; slot <= Slots::count; ++slot)
        layouts.append(disabledAction(owner));
}

} // namespace Panorel::Kit::Detail
