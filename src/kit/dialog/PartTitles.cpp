// SPDX-License-Identifier: MIT
#include "PartTitles.h"

#include "../window/Parts.h"
#include "../window/WindowOwner.h"

namespace Panorel::Kit::Detail {

PartTitles::PartTitles(const WindowOwner& owner)
{
    const QList<ManagedWindow> windows = owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (!managed.window)
            continue;
        const QList<QWidget*> parts =
            Parts::dockWidgets(*managed.window) + Parts::toolBars(*managed.window);
        for (const QWidget* part : parts)
            m_titles.insert({managed.descriptorId, part->objectName()}, part->windowTitle());
    }
}

QString PartTitles::title(const QString& window, const QString& part) const
{
    const QString title = m_titles.value({window, part});
    return title.isEmpty() ? part : title;
}

} // namespace Panorel::Kit::Detail
