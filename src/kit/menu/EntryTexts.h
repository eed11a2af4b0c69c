// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class QAction;
class QMenu;

namespace Panorel {
class Manager;
class Menu;
} // namespace Panorel

namespace Panorel::Kit::Detail {

/**
 * Shows names as they are. An ampersand in an action's text is not shown but underlines the next
 * letter, and some desktops put ampersands into texts by themselves. The sub-menus take a view's
 * name from the text, so it is the bare name again when an entry is triggered.
 */
class EntryTexts : public QObject
{
    Q_OBJECT

public:
    /** @param menu owns this object. */
    EntryTexts(Menu& menu, Manager& manager);

private:
    void escapeViews() const;
    void escape(const QMenu& subMenu) const;
    void restore(const QMenu& subMenu, QAction* triggered) const;
    QStringList sortedNames() const;

    Menu& m_menu;
    const Manager& m_manager;
};

} // namespace Panorel::Kit::Detail
