// SPDX-License-Identifier: MIT
#include "DifferencesNow.h"

#include "PartTitles.h"

#include "../window/Session.h"

#include <panorel/kit/Difference.h>
#include <panorel/kit/WindowState.h>

#include <QMainWindow>

namespace Panorel::Kit::Detail {

QStringList DifferencesNow::texts(Session& session, const StateMap& stored)
{
    QStringList texts;
    const PartTitles titles(session.owner);
    const StateMap live = session.windows.states();
    const QList<ManagedWindow> windows = session.owner.windows();
    for (const ManagedWindow& managed : windows) {
        // A window without a part in the layout stays as it is.
        if (!managed.window || !stored.contains(managed.descriptorId))
            continue;
        const auto found = differences(WindowState(live.value(managed.descriptorId)),
                                       WindowState(stored.value(managed.descriptorId)));
        for (const Difference& difference : found) {
            if (session.activity.merges() && difference.part == Difference::Part::ToolBar)
                continue;
            const QString text =
                difference.text(titles.title(managed.descriptorId, difference.name));
            texts.append(
                windows.size() == 1 ? text : tr("%1: %2").arg(managed.window->windowTitle(), text));
        }
    }
    return texts;
}

} // namespace Panorel::Kit::Detail
