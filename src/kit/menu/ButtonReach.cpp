// SPDX-License-Identifier: MIT
#include "ButtonReach.h"

#include "../window/Activity.h"
#include "../window/Giver.h"

#include <panorel/ViewButton.h>

#include <QToolBar>

#include <utility>

namespace Panorel::Kit::Detail {

ButtonReach::ButtonReach(ViewButton& button, Activity& activity, Giver& giver)
    : QObject(&button)
    , m_button(button)
{
    connect(&activity, &Activity::switching, this, &ButtonReach::note);
    // Before a document, too, which restores a layout without a switch.
    connect(&activity, &Activity::capturing, this, &ButtonReach::note);
    connect(&activity, &Activity::changed, this, &ButtonReach::keep);
    // At once, so that it does not count as a change of the layout.
    connect(&giver, &Giver::given, this, &ButtonReach::keep);
}

void ButtonReach::note()
{
    const QToolBar* bar = toolBar();
    m_wasShown = bar && !bar->isHidden();
    // What is hidden once control has returned to the event loop was hidden by the user.
    QMetaObject::invokeMethod(
        this, [this] { m_wasShown = false; }, Qt::QueuedConnection);
}

void ButtonReach::keep()
{
    QToolBar* bar = toolBar();
    if (m_wasShown && bar && bar->isHidden())
        bar->show();
}

QToolBar* ButtonReach::toolBar() const
{
    QWidget* ancestor = m_button.parentWidget();
    while (ancestor && !qobject_cast<QToolBar*>(ancestor))
        ancestor = ancestor->parentWidget();
    return static_cast<QToolBar*>(ancestor);
}

} // namespace Panorel::Kit::Detail
