// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace Panorel {
class Manager;
class ViewButton;
} // namespace Panorel

namespace Panorel::Kit::Detail {

/** What a view button tells about itself: its tool tip, also for screen readers, names the active
    layout and what a click does. */
class ButtonCures : public QObject
{
    Q_OBJECT

public:
    /** @param button owns this object. */
    ButtonCures(ViewButton& button, Manager& manager);

private:
    void describe();

    ViewButton& m_button;
    const Manager& m_manager;
};

} // namespace Panorel::Kit::Detail
