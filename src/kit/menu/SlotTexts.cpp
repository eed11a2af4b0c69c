// SPDX-License-Identifier: MIT
#include "SlotTexts.h"

#include "MenuParts.h"

#include "../window/Slots.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QAction>
#include <QVariant>

namespace Panorel::Kit::Detail {

namespace {

// What the text of an entry ends with since the last time.
constexpr auto addition = "_panorel_kit_shortcut";

} // namespace

SlotTexts::SlotTexts(Menu& menu, const Manager& manager, Slots& layoutSlots)
    : QObject(&menu)
    , m_menu(menu)
    , m_manager(manager)
    , m_slots(&layoutSlots)
{
    connect(&menu, &QMenu::aboutToShow, this, &SlotTexts::update);
}

void SlotTexts::update()
{
    const QList<QAction*> entries = MenuParts(m_menu).views();
    for (QAction* entry : entries) {
        const QString shortcut =
            m_slots ? m_slots->shortcutText(m_manager.activeGroup(), entry->data().toString())
                    : QString();
        const QString before = entry->property(addition).toString();
        const QString now = shortcut.isEmpty() ? QString() : QLatin1Char('\t') + shortcut;
        if (now == before)
            continue;
        QString text = entry->text();
        if (text.endsWith(before))
            text.chop(before.size());
        entry->setText(text + now);
        entry->setProperty(addition, now);
    }
}

} // namespace Panorel::Kit::Detail
