// SPDX-License-Identifier: MIT
#pragma once

#include "LayoutStore.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>

#include <QCoreApplication>
#include <QMainWindow>
#include <QSettings>

/** The main window, as it was in the release before: "files" on the left, "output" at the bottom.
 */
class Window : public QMainWindow
{
public:
    Window();
};

/**
 * A program that kept its one layout as saveState() in the settings until now. The place and size
 * of its window stay there.
 */
class Program : public Panorel::IManagable
{
    Q_DECLARE_TR_FUNCTIONS(Program)

public:
    /** The settings of the earlier release, and the file for the layouts. */
    Program(const QString& settingsFile, const QString& layoutsFile);

    /** Shows the window. Layouts are loaded as soon as it is on the screen. */
    void start();
    /** Saves the layouts. Called before the windows are closed, see SaveAtEnd. */
    void save();

    QList<Panorel::ManagedWindow> managedWindows() override;

    Window& window() { return m_window; }
    Panorel::Manager& manager() { return m_manager; }
    bool isLoaded() const { return m_isLoaded; }

private:
    void load();
    void adoptOldLayout();
    static void tell(const QString& problem);

    QSettings m_settings;
    LayoutStore m_store;
    Panorel::Manager m_manager;
    Window m_window;
    bool m_isLoaded = false;
};
