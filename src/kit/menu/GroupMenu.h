// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

/** Switches between the groups of a Manager, which a Panorel::Menu does not. */
class GroupMenu : public QMenu
{
    Q_OBJECT

public:
    /** @param manager outlives the entries. */
    GroupMenu(Manager& manager, QWidget* parent);
};

} // namespace Panorel::Kit::Detail
