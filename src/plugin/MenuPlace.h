// SPDX-License-Identifier: MIT
#pragma once

#include "ButtonBar.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <QPointer>

namespace Panorel::Kit {
class Layouts;
} // namespace Panorel::Kit

namespace Panorel::Plugin {

/** The menu bar that @p window has, or null; QMainWindow::menuBar() would make one. */
QMenuBar* menuBarOf(const QMainWindow& window);

/** Keeps the menu "Layouts" in a window's menu bar, before Help, whatever the program does to its
    menus. A window without a menu bar gets the menu as soon as it has one. */
class MenuPlace : public QObject
{
    Q_OBJECT

public:
    /** @param layouts is used until the last event that this object gets; the window may end first.
     */
    MenuPlace(QMainWindow& window, Kit::Layouts& layouts);
    ~MenuPlace() override;

    /** Null as soon as the window is being destroyed. */
    QMainWindow* window() const { return qobject_cast<QMainWindow*>(m_widget.data()); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeSoon();
    void place();
    void makeMenu(QMenuBar& bar);

    // Not of a main window, which it is no longer while its parts are destroyed.
    QPointer<QWidget> m_widget;
    Kit::Layouts& m_layouts;
    ButtonBar m_buttonBar;
    QPointer<QMenuBar> m_bar;
    QPointer<QMenu> m_menu;
    bool m_placesSoon = false;
};

} // namespace Panorel::Plugin
