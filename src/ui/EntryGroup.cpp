// SPDX-License-Identifier: MIT
#include "EntryGroup.h"

#include <QWidget>

#include <algorithm>

namespace Panorel {

void EntryGroup::hold(QAction* action)
{
    const auto isOver = [](const Held& held) { return !held.keeper || !held.action; };
    m_held.erase(std::remove_if(m_held.begin(), m_held.end(), isOver), m_held.end());
    // Not a timer: an event loop that a receiver runs would end it too early.
    auto* keeper = new QObject(this);
    keeper->deleteLater();
    m_held.push_back({action, keeper});
}

void EntryGroup::removeHeld()
{
    for (const Held& held : m_held) {
        if (!held.keeper || !held.action)
            continue;
        const QList<QWidget*> widgets = held.action->associatedWidgets();
        for (QWidget* widget : widgets)
            widget->removeAction(held.action);
        held.action->setActionGroup(nullptr);
        held.action->setParent(held.keeper);
    }
    m_held.clear();
}

} // namespace Panorel
