// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

class QLabel;
class QMainWindow;

namespace Panorel {
class Manager;
}

/**
 * A plain menu over a Manager, in the menu bar of a window, and the active group and layout in its
 * status bar. Both must outlive it.
 */
class LayoutsMenu : public QMenu
{
    Q_OBJECT

public:
    LayoutsMenu(Panorel::Manager& manager, QMainWindow& window);
    ~LayoutsMenu() override;

private:
    void rebuild();
    void addGroups();
    void addViews();
    void saveAs();
    void updateStatus();

    Panorel::Manager& m_manager;
    QMainWindow& m_window;
    QLabel* m_status;
};
