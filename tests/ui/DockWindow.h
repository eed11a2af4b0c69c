// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <panorel/IManagable.h>

#include <QDockWidget>
#include <QMainWindow>

namespace Panorel::Tests {

/** A main window that manages itself, with one dock widget, on the left at first. */
class DockWindow : public QMainWindow, public IManagable
{
public:
    DockWindow()
    {
        m_dock->setObjectName("Dock"_s);
        moveDock(Qt::LeftDockWidgetArea);
    }

    QList<ManagedWindow> managedWindows() override
    {
        ++asked;
        return {{"Window"_s, this}};
    }

    void moveDock(Qt::DockWidgetArea area) { addDockWidget(area, m_dock); }
    Qt::DockWidgetArea dockArea() const { return dockWidgetArea(m_dock); }

    /** How often a layout was captured or restored. */
    int asked = 0;

private:
    QDockWidget* m_dock = new QDockWidget(this);
};

} // namespace Panorel::Tests
