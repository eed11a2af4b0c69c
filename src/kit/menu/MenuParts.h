// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QAction;
class QLineEdit;
class QMenu;
class QWidgetAction;

namespace Panorel {
class Menu;
} // namespace Panorel

namespace Panorel::Kit::Detail {

/** The entries of a menu. They are found by their places, because their texts are translated. */
class MenuParts
{
public:
    explicit MenuParts(const Menu& menu);

    /** The entries of the saved views, in the Manager's order. */
    const QList<QAction*>& views() const { return m_views; }
    QMenu* saveAs() const { return m_subMenus.value(0); }
    QMenu* deletion() const { return m_subMenus.value(1); }
    /** These are null in a menu that is not extended. */
    QAction* exportation() const { return m_commands.value(0); }
    QAction* import() const { return m_commands.value(1); }
    QAction* importAndMerge() const { return m_commands.value(2); }
    QAction* programStart() const { return m_commands.value(3); }
    QAction* factoryDefault() const { return m_commands.value(4); }

    /** The field for a new name; both are null if there is none. */
    struct NameField
    {
        QWidgetAction* action = nullptr;
        QLineEdit* edit = nullptr;
    };
    /** The field in a "Save Current Layout As..." sub-menu. Each rebuilding makes a new one. */
    static NameField nameField(const QMenu& saveAs);

    /** The entries of a sub-menu of views, which are sorted by name. */
    static QList<QAction*> viewEntries(const QMenu& subMenu);

private:
    QList<QAction*> m_views;
    QList<QMenu*> m_subMenus;
    QList<QAction*> m_commands;
};

} // namespace Panorel::Kit::Detail
