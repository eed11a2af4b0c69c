// SPDX-License-Identifier: MIT
#pragma once

#include "CodeWindow.h"
#include "LayoutCures.h"
#include "LayoutStore.h"
#include "LayoutUndo.h"
#include "PlotWindow.h"
#include "StatusLine.h"

#include <panorel/IManagable.h>
#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QSettings>
#include <QTimer>

class GroupMenu;

/**
 * An application with all that the library offers: an editor and a second window, three groups of
 * layouts, the menu, the button and the dialog for names, and layouts that are kept between runs.
 */
class Workbench : public QObject, public Panorel::IManagable
{
    Q_OBJECT

public:
    /** @param layoutsFile where the layouts are kept; a file for the windows' places is beside it.
     */
    Workbench(const QString& layoutsFile, bool mergeOnApply);

    /** Shows the windows as the last run has left them. */
    void start();

    QList<Panorel::ManagedWindow> managedWindows() override;

    CodeWindow& editor() { return m_editor; }
    PlotWindow& plot() { return m_plot; }
    Panorel::Manager& manager() { return m_manager; }
    Panorel::Menu& menu() { return m_menu; }
    Panorel::ViewButton& button() { return *m_button; }
    const StatusLine& status() const { return *m_status; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addMenus();
    void addToolBar();
    void addCures();
    void followManager();

    void placeSideBySide();
    void makeFactoryDefault();
    void arrangeFocus();
    void arrangeForDebugging();
    void arrangeForReview();

    void load();
    void save();
    void askForName();
    void tell(const QString& message);

    // In this order: the menus, one of them in a window, end before what they use.
    Panorel::Manager m_manager;
    LayoutUndo m_undo;
    CodeWindow m_editor;
    PlotWindow m_plot;
    Panorel::Menu m_menu;
    LayoutStore m_store;
    QSettings m_session;
    QTimer m_saveSoon;
    StatusLine* m_status;
    Panorel::ViewButton* m_button = nullptr;
    bool m_isStarted = false;
};
