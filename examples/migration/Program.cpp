// SPDX-License-Identifier: MIT
#include "Program.h"

#include "WhenShown.h"

#include <panorel/Menu.h>

#include <QDockWidget>
#include <QMenuBar>
#include <QTextEdit>
#include <QToolBar>

namespace {

QDockWidget* addDock(QMainWindow& window, const QString& name, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(name, &window);
    dock->setObjectName(name);
    dock->setWidget(new QTextEdit);
    window.addDockWidget(area, dock);
    return dock;
}

} // namespace

Window::Window()
{
    setCentralWidget(new QTextEdit);
    addDock(*this, QStringLiteral("files"), Qt::LeftDockWidgetArea);
    addDock(*this, QStringLiteral("output"), Qt::BottomDockWidgetArea);
    addToolBar(QStringLiteral("Edit"))->setObjectName(QStringLiteral("edit"));
}

Program::Program(const QString& settingsFile, const QString& layoutsFile)
    : m_settings(settingsFile, QSettings::IniFormat)
    , m_store(layoutsFile)
    , m_manager({QStringLiteral("Editing")}, /*mergeOnApply=*/false)
{
    m_manager.registerManagable(*this);
    m_window.menuBar()->addMenu(new Panorel::Menu(&m_manager, /*extended=*/true, &m_window));
}

QList<Panorel::ManagedWindow> Program::managedWindows()
{
    return {{QStringLiteral("main"), &m_window}};
}

//! [start]
void Program::start()
{
    m_window.restoreGeometry(m_settings.value(QStringLiteral("window/geometry")).toByteArray());
    m_window.show();
    new WhenShown({&m_window}, [this] { load(); });
}

void Program::load()
{
    tell(m_store.load(m_manager));
    adoptOldLayout();
    m_isLoaded = true;
}
//! [start]

//! [adopt]
// Makes what the earlier release has kept the first layout. Done once: when it is stored among the
// layouts, it is removed from the settings.
void Program::adoptOldLayout()
{
    const QString key = QStringLiteral("window/state");
    const int oldVersion = 3; // What the earlier release gave to saveState().
    if (!m_manager.views().isEmpty()) {
        m_settings.remove(key);
        return;
    }
    const QByteArray state = m_settings.value(key).toByteArray();
    // Without an old layout, or with a broken one, the window stays as the program arranges it.
    if (!m_window.restoreState(state, oldVersion))
        return;
    m_manager.saveCurrentViewAs(tr("My layout"));
    const QString problem = m_store.save(m_manager);
    if (problem.isEmpty())
        m_settings.remove(key);
    tell(problem);
}
//! [adopt]

//! [save]
void Program::save()
{
    m_settings.setValue(QStringLiteral("window/geometry"), m_window.saveGeometry());
    if (m_isLoaded)
        tell(m_store.save(m_manager));
}
//! [save]

void Program::tell(const QString& problem)
{
    if (!problem.isEmpty())
        qWarning("%s", qPrintable(problem));
}
