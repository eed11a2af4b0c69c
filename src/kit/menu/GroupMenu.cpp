// SPDX-License-Identifier: MIT
#include "GroupMenu.h"

#include "../window/ActionText.h"

#include <panorel/Manager.h>

#include <QActionGroup>

namespace Panorel::Kit::Detail {

GroupMenu::GroupMenu(Manager& manager, QWidget* parent)
    : QMenu(tr("&Group"), parent)
{
    auto* choice = new QActionGroup(this);
    const QStringList names = manager.groups();
    for (const QString& name : names) {
        QAction* action = addAction(actionText(name));
        choice->addAction(action)->setCheckable(true);
        action->setChecked(name == manager.activeGroup());
        connect(action, &QAction::triggered, &manager,
                [&manager, name] { (void)manager.activateGroup(name); });
        connect(&manager, &Manager::groupActivated, action, [action, name](const QString& active) {
            if (active == name)
                action->setChecked(true);
        });
    }
}

} // namespace Panorel::Kit::Detail
