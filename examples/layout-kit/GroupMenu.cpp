// SPDX-License-Identifier: MIT
#include "GroupMenu.h"

#include <panorel/Manager.h>

#include <QActionGroup>

using Panorel::Manager;

GroupMenu::GroupMenu(Manager& manager, QWidget* parent)
    : QMenu(tr("&Group"), parent)
{
    auto* choice = new QActionGroup(this);
    const QStringList names = manager.groups();
    for (const QString& name : names) {
        QAction* action = addAction(name);
        choice->addAction(action)->setCheckable(true);
        action->setChecked(name == manager.activeGroup());
        action->setShortcut(QStringLiteral("Ctrl+%1").arg(choice->actions().size()));
        connect(action, &QAction::triggered, &manager,
                [&manager, name] { manager.activateGroup(name); });
        connect(&manager, &Manager::groupActivated, action, [action, name](const QString& active) {
            if (active == name)
                action->setChecked(true);
        });
    }
}
