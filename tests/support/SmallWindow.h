// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QByteArray>
#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

#include <functional>

namespace Panorel::Tests {

/**
 * The smallest window with a layout worth keeping: one dock widget, on the left at first, and one
 * tool bar, on top at first. It works without being shown.
 */
class SmallWindow : public QMainWindow
{
public:
    SmallWindow()
    {
        m_dock->setObjectName("Dock"_s);
        m_bar->setObjectName("Bar"_s);
        connect(m_dock, &QDockWidget::dockLocationChanged, this, [this] {
            ++placed;
            if (onPlaced)
                onPlaced();
        });
        arrange(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    }

    void arrange(Qt::DockWidgetArea dockArea, Qt::ToolBarArea barArea)
    {
        addDockWidget(dockArea, m_dock);
        addToolBar(barArea, m_bar);
    }
    void moveDock(Qt::DockWidgetArea area) { addDockWidget(area, m_dock); }
    void moveBar(Qt::ToolBarArea area) { addToolBar(area, m_bar); }

    Qt::DockWidgetArea dockArea() const { return dockWidgetArea(m_dock); }
    Qt::ToolBarArea barArea() const { return toolBarArea(m_bar); }

    /** How often the dock widget was placed: once by each move and once by each restored blob. */
    int placed = 0;
    /** Runs after the dock widget was placed. */
    std::function<void()> onPlaced;

    /** What such a window saves when it is arranged so. */
    static QByteArray stateOf(Qt::DockWidgetArea dockArea, Qt::ToolBarArea barArea)
    {
        SmallWindow window;
        window.arrange(dockArea, barArea);
        return window.saveState(0);
    }

private:
    QDockWidget* m_dock = new QDockWidget(this);
    QToolBar* m_bar = new QToolBar(this);
};

} // namespace Panorel::Tests
