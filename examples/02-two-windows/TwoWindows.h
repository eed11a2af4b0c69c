// SPDX-License-Identifier: MIT
#pragma once

#include "EditorWindow.h"
#include "PlotWindow.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

/**
 * Two main windows whose layouts are switched together, in two groups. One IManagable may name any
 * number of windows.
 */
class TwoWindows : public Panorel::IManagable
{
public:
    TwoWindows();

    /** Shows the windows and makes what they show the factory default. */
    void start();

    QList<Panorel::ManagedWindow> managedWindows() override;

    EditorWindow& editor() { return m_editor; }
    PlotWindow& plot() { return m_plot; }
    Panorel::Manager& manager() { return m_manager; }

private:
    void arrangeForMeasuring();

    // In this order: the menu ends before the Manager that it works on.
    EditorWindow m_editor;
    PlotWindow m_plot;
    Panorel::Manager m_manager;
    Panorel::Menu m_menu;
};
