// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

namespace Panorel {
class Manager;
class Menu;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class Slots;

/** Shows the shortcuts of layouts at their entries. They are only part of the texts, because two
    actions with the same shortcut would make it ambiguous. */
class SlotTexts : public QObject
{
    Q_OBJECT

public:
    /**
     * @param menu owns this object.
     * @param layoutSlots may be destroyed first; then no shortcuts are shown.
     */
    SlotTexts(Menu& menu, const Manager& manager, Slots& layoutSlots);

private:
    void update();

    const Menu& m_menu;
    const Manager& m_manager;
    QPointer<Slots> m_slots;
};

} // namespace Panorel::Kit::Detail
