// SPDX-License-Identifier: MIT
#pragma once

#include "../window/Contents.h"

#include <QStringList>

namespace Panorel {
class Manager;
} // namespace Panorel

namespace Panorel::Kit::Detail {

class WindowOwner;

/**
 * Makes a Manager have other layouts, by its public operations. Its signals are blocked meanwhile,
 * because a view cannot be put in a place other than the last, nor the active view be taken away,
 * without states in between that nobody should see. The windows are not touched.
 */
class ManagerWriter
{
public:
    ManagerWriter(Manager& manager, WindowOwner& owner);

    /** @param from what the Manager has. Groups that it does not have are skipped. */
    void write(const Contents& from, const Contents& to);

private:
    void removeViews(const Contents::Group& from, const Contents::Group& to);
    void enter(const QString& group);
    void removeActive(const Contents::Group& from);
    void add(const Contents& from, const Contents& to);

    Manager& m_manager;
    WindowOwner& m_owner;
    /** The groups that were left; their current views are lost by that. */
    QStringList m_left;
};

} // namespace Panorel::Kit::Detail
