// SPDX-License-Identifier: MIT
#include "ButtonCures.h"

#include <panorel/Manager.h>
#include <panorel/ViewButton.h>

namespace Panorel::Kit::Detail {

ButtonCures::ButtonCures(ViewButton& button, Manager& manager)
    : QObject(&button)
    , m_button(button)
    , m_manager(manager)
{
    // Whatever changes the active view is followed by this signal.
    connect(&manager, &Manager::viewActivated, this, &ButtonCures::describe);
    describe();
}

void ButtonCures::describe()
{
    const QString active = m_manager.activeView();
    const QString state =
        active.isEmpty() ? tr("No layout is active.") : tr("\"%1\" is active.").arg(active);
    const QString description = state + QLatin1Char(' ') + tr("A click goes to the next layout.");
    // Escaped, because a name may look like markup.
    m_button.setToolTip(QStringLiteral("<qt>%1</qt>").arg(description.toHtmlEscaped()));
    m_button.setAccessibleDescription(description);
}

} // namespace Panorel::Kit::Detail
