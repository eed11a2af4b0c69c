// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace Panorel {
class Manager;
}

/** Switches between the groups of a Manager, which Panorel's own menu does not. */
class GroupMenu : public QMenu
{
    Q_OBJECT

public:
    /** @param manager must outlive the menu. The groups get Ctrl+1, Ctrl+2 and so on. */
    explicit GroupMenu(Panorel::Manager& manager, QWidget* parent = nullptr);
};
