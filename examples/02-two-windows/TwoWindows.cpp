// SPDX-License-Identifier: MIT
#include "TwoWindows.h"

#include "GroupMenu.h"

#include <QDockWidget>
#include <QMenuBar>

namespace {

const QString editing = QStringLiteral("Editing");
const QString measuring = QStringLiteral("Measuring");
const QString standard = QStringLiteral("Standard");

} // namespace

TwoWindows::TwoWindows()
    : m_manager({editing, measuring}, /*mergeOnApply=*/false)
    , m_menu(&m_manager, /*extended=*/true)
{
    m_manager.registerManagable(*this);
    m_menu.setTitle(QStringLiteral("&Layouts"));
    m_editor.menuBar()->addMenu(new GroupMenu(m_manager, &m_editor));
    m_editor.menuBar()->addMenu(&m_menu);
}

void TwoWindows::start()
{
    m_editor.start();
    m_plot.start();
    // Each group gets a layout to start with. The document of all this is the factory default.
    m_manager.saveCurrentViewAs(standard);
    m_manager.activateGroup(measuring);
    arrangeForMeasuring();
    m_manager.saveCurrentViewAs(standard);
    m_manager.activateGroup(editing);
    m_manager.setFactoryDefaultView(m_manager.toXml(/*markActive=*/true));
}

QList<Panorel::ManagedWindow> TwoWindows::managedWindows()
{
    return {{QStringLiteral("editor"), &m_editor}, {QStringLiteral("plot"), &m_plot}};
}

void TwoWindows::arrangeForMeasuring()
{
    m_editor.dock(QStringLiteral("Outline"))->close();
    m_editor.dock(QStringLiteral("Search"))->close();
    m_editor.dock(QStringLiteral("Properties"))->close();
    m_editor.dock(QStringLiteral("Variables"))->show();
    m_plot.addDockWidget(Qt::BottomDockWidgetArea, m_plot.dock(QStringLiteral("Readings")));
}
