// SPDX-License-Identifier: MIT
#include "LayoutsMenu.h"

#include <panorel/Manager.h>

#include <QInputDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

using Panorel::Manager;

LayoutsMenu::LayoutsMenu(Manager& manager, QMainWindow& window)
    : QMenu(tr("&Layouts"))
    , m_manager(manager)
    , m_window(window)
    , m_status(new QLabel)
{
    window.menuBar()->addMenu(this);
    window.statusBar()->addPermanentWidget(m_status);
    // Not on the Manager's signals: they come while an action of this menu is still being handled.
    connect(this, &QMenu::aboutToShow, this, &LayoutsMenu::rebuild);
    connect(&manager, &Manager::groupActivated, this, &LayoutsMenu::updateStatus);
    connect(&manager, &Manager::viewActivated, this, &LayoutsMenu::updateStatus);
    updateStatus();
}

LayoutsMenu::~LayoutsMenu()
{
    delete m_status;
}

void LayoutsMenu::rebuild()
{
    clear();
    addGroups();
    addSeparator();
    addViews();
    addSeparator();
    addAction(tr("&Save Layout As..."), this, &LayoutsMenu::saveAs);
    const QString active = m_manager.activeView();
    if (!active.isNull()) {
        addAction(tr("&Update \"%1\"").arg(active), this,
                  [this, active] { m_manager.saveCurrentViewAs(active); });
        addAction(tr("&Delete \"%1\"").arg(active), this,
                  [this, active] { m_manager.deleteView(active); });
    }
}

void LayoutsMenu::addGroups()
{
    const QStringList groups = m_manager.groups();
    for (const QString& name : groups) {
        QAction* action = addAction(tr("Group %1").arg(name));
        action->setCheckable(true);
        action->setChecked(name == m_manager.activeGroup());
        connect(action, &QAction::triggered, &m_manager,
                [this, name] { m_manager.activateGroup(name); });
    }
}

void LayoutsMenu::addViews()
{
    const QStringList views = m_manager.views();
    for (const QString& name : views) {
        QAction* action = addAction(name);
        action->setCheckable(true);
        action->setChecked(name == m_manager.activeView());
        connect(action, &QAction::triggered, &m_manager,
                [this, name] { m_manager.activateView(name); });
    }
}

void LayoutsMenu::saveAs()
{
    const QString name =
        QInputDialog::getText(&m_window, tr("Save Layout"), tr("Name of the layout:"));
    if (!name.isEmpty())
        m_manager.saveCurrentViewAs(name);
}

void LayoutsMenu::updateStatus()
{
    const QString view = m_manager.activeView();
    m_status->setText(tr("%1: %2").arg(m_manager.activeGroup(), view.isNull() ? tr("none") : view));
}
