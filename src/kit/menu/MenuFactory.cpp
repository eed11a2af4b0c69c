// SPDX-License-Identifier: MIT
#include "MenuFactory.h"

#include "ButtonCures.h"
#include "ButtonReach.h"
#include "EntryTexts.h"
#include "FileEntries.h"
#include "KitEntries.h"
#include "NameField.h"
#include "ResetEntries.h"
#include "SlotTexts.h"

#include "../window/Session.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>
#include <panorel/ViewButton.h>
#include <panorel/kit/Layouts.h>

#include <QCoreApplication>

namespace Panorel::Kit::Detail {

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Kit::Menu)
};

// Without the Manager nothing in the menu may call it.
void retire(Menu& menu)
{
    qDeleteAll(menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    QList<QAction*> actions = menu.findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    actions.removeOne(menu.menuAction()); // It belongs to the menu itself.
    qDeleteAll(actions);
    menu.setEnabled(false);
}

void cure(Menu& menu, Layouts& layouts, Session& session)
{
    Manager& manager = session.manager;
    // A hundred layouts are more than a screen has room for.
    menu.setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }"));
    new EntryTexts(menu, manager);
    new SlotTexts(menu, manager, session.layoutSlots);
    auto* nameField = new NameField(menu);
    QObject::connect(nameField, &NameField::message, &layouts, &Layouts::message);
    QObject::connect(&manager, &QObject::destroyed, &menu, [&menu] { retire(menu); });
}

} // namespace

Menu* MenuFactory::createMenu(Layouts& layouts, Session& session, QWidget* parent)
{
    auto* menu = new Menu(&session.manager, /*extended=*/true, parent);
    menu->setTitle(Text::tr("&Layouts"));
    cure(*menu, layouts, session);
    auto* files = new FileEntries(*menu, session.transfer);
    QObject::connect(files, &FileEntries::message, &layouts, &Layouts::message);
    new ResetEntries(*menu, session);
    new KitEntries(*menu, layouts, session);
    return menu;
}

ViewButton* MenuFactory::createButton(Layouts& layouts, Session& session, QWidget* parent)
{
    auto* button = new ViewButton(&session.manager, Text::tr("Layouts"), parent);
    // The button's menu is its child.
    cure(*static_cast<Menu*>(button->menu()), layouts, session);
    new ButtonCures(*button, session.manager);
    new ButtonReach(*button, session.activity, session.giver);
    return button;
}

} // namespace Panorel::Kit::Detail
