// SPDX-License-Identifier: MIT
#pragma once

#include <QActionGroup>
#include <QPointer>

#include <vector>

namespace Panorel {

/**
 * The group of a menu's view entries. It also keeps what is being triggered in the menu or one of
 * its sub-menus alive: Qt emits further signals with it after its own.
 */
class EntryGroup : public QActionGroup
{
public:
    explicit EntryGroup(QObject* parent)
        : QActionGroup(parent)
    {}

    /** Keeps @p action until the present event is over. */
    void hold(QAction* action);
    /** Removes what is held from all menus and from the group. It is destroyed after the event. */
    void removeHeld();

private:
    struct Held
    {
        QPointer<QAction> action;
        /** Exists until the event is over, and takes over an action that is removed. */
        QPointer<QObject> keeper;
    };

    std::vector<Held> m_held;
};

} // namespace Panorel
