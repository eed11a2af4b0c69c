// SPDX-License-Identifier: MIT
#pragma once

#include "support/Owner.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/QtState.h>

#include <QMainWindow>

namespace Panorel::Tests {

/** What merging makes of @p blob with itself, which is what a window gets in a round of it. */
inline QByteArray mergedOnce(const QByteArray& blob)
{
    QtState state;
    (void)state.read(blob);
    return QtState::merge(state, state).write();
}

/** What @p window saves after @p rounds of saving and activating a view with merging. */
inline QByteArray grownState(QMainWindow& window, int rounds)
{
    Owner owner({{"window"_s, &window}});
    Manager manager({"Group"_s}, /*mergeOnApply=*/true);
    manager.registerManagable(owner);
    for (int i = 0; i < rounds; ++i) {
        manager.saveCurrentViewAs("View"_s);
        manager.activateView("View"_s);
    }
    return window.saveState();
}

} // namespace Panorel::Tests
