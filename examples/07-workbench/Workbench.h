// SPDX-License-Identifier: MIT
#pragma once

#include "CodeWindow.h"
#include "PlotWindow.h"

#include <panorel/Manager.h>
#include <panorel/kit/Layouts.h>

class QLabel;
class QMenu;
class QToolButton;

/**
 * An application whose layouts look after themselves: an editor and a second window, three groups
 * of layouts, the kit's menu and button, and a factory default to go back to.
 */
class Workbench : public QObject
{
    Q_OBJECT

public:
    explicit Workbench(bool mergeOnApply);

    /** Shows the windows as the last run has left them. */
    void start(const QString& layoutsFile);

    Panorel::Manager& manager() { return m_manager; }
    Panorel::Kit::Layouts& layouts() { return m_layouts; }
    CodeWindow& editor() { return m_editor; }
    PlotWindow& plot() { return m_plot; }
    QMenu& menu() { return *m_menu; }
    QToolButton& button() { return *m_button; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addMenus();
    void addStatus();
    void showActive();

    void placeSideBySide();
    void makeFactoryDefault();
    void arrangeFocus();
    void arrangeForDebugging();
    void arrangeForReview();

    Panorel::Manager m_manager;
    CodeWindow m_editor;
    PlotWindow m_plot;
    Panorel::Kit::Layouts m_layouts{m_manager};
    QMenu* m_menu = nullptr;
    QLabel* m_active = nullptr;
    QToolButton* m_button = nullptr;
};
