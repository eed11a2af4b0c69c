// SPDX-License-Identifier: MIT
#include "Workbench.h"

#include <QDockWidget>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>

using Panorel::Manager;
using Panorel::Kit::Layouts;

namespace {

const QString editing = QStringLiteral("Editing");
const QString debugging = QStringLiteral("Debugging");
const QString review = QStringLiteral("Review");

} // namespace

Workbench::Workbench(bool mergeOnApply)
    : m_manager({editing, debugging, review}, mergeOnApply)
{
    m_layouts.addWindow(m_editor, QStringLiteral("editor"));
    m_layouts.addWindow(m_plot, QStringLiteral("plot"));
    m_editor.installEventFilter(this);
    addMenus();
    addStatus();
}

void Workbench::start(const QString& layoutsFile)
{
    placeSideBySide();
    m_editor.start();
    m_plot.start();
    makeFactoryDefault();
    m_layouts.start(layoutsFile);
    m_layouts.history()->clear(); // The user has done nothing yet.
    m_manager.setProgramStartView(m_manager.toXml(/*markActive=*/true));
    m_editor.activateWindow();
}

void Workbench::addMenus()
{
    m_menu = m_layouts.createMenu(&m_editor);
    m_editor.menuBar()->addMenu(m_menu);
    QMenu* window = m_editor.menuBar()->addMenu(tr("&Window"));
    window->addAction(m_plot.windowTitle(), this, [this] {
        m_plot.show();
        m_plot.raise();
        m_plot.activateWindow();
    });
    // Not Ctrl+Z, which undoes what is typed.
    QAction* undo = m_layouts.history()->createUndoAction(this);
    undo->setShortcut(QStringLiteral("Ctrl+Alt+Z"));
    m_layouts.nextAction()->setShortcut(QStringLiteral("Ctrl+L"));
    m_layouts.previousAction()->setShortcut(QStringLiteral("Ctrl+Shift+L"));
    m_editor.addActions({undo, m_layouts.nextAction(), m_layouts.previousAction()});
    m_plot.addActions({undo, m_layouts.nextAction(), m_layouts.previousAction()});
}

// The button is where no layout moves it.
void Workbench::addStatus()
{
    QStatusBar* bar = m_editor.statusBar();
    m_active = new QLabel;
    m_active->setTextFormat(Qt::PlainText);
    m_button = m_layouts.createButton(bar);
    m_button->setIcon(m_button->style()->standardIcon(QStyle::SP_BrowserReload));
    m_button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    bar->addPermanentWidget(m_active);
    bar->addPermanentWidget(m_button);
    connect(&m_layouts, &Layouts::message, bar,
            [bar](const QString& message) { bar->showMessage(message); });
    connect(&m_manager, &Manager::viewActivated, this, &Workbench::showActive);
    connect(&m_manager, &Manager::groupActivated, this, &Workbench::showActive);
    connect(&m_layouts, &Layouts::modifiedChanged, this, &Workbench::showActive);
    showActive();
}

// A long name must leave room for messages.
void Workbench::showActive()
{
    const QString view = m_manager.activeView();
    const QString text = view.isEmpty() ? m_manager.activeGroup() : view;
    const int width = 24 * m_active->fontMetrics().averageCharWidth();
    const QString name = m_active->fontMetrics().elidedText(text, Qt::ElideRight, width);
    m_active->setText(m_layouts.isModified() ? name + QLatin1Char('*') : name);
}

// As far as the screen is wide enough.
void Workbench::placeSideBySide()
{
    constexpr int gap = 20;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const int width = screen.width() - m_plot.width() - 3 * gap;
    m_editor.resize(qBound(700, width, m_editor.width()),
                    qMin(m_editor.height(), screen.height() - 4 * gap));
    m_editor.move(screen.topLeft() + QPoint(gap, gap));
    const int x = qMin(m_editor.x() + m_editor.width() + gap, screen.right() - m_plot.width());
    m_plot.move(qMax(x, screen.left()), screen.top() + gap);
}

// A program that is shipped has this document as a file.
void Workbench::makeFactoryDefault()
{
    m_manager.saveCurrentViewAs(tr("Standard"));
    arrangeFocus();
    m_manager.saveCurrentViewAs(tr("Focus"));
    m_manager.activateView(tr("Standard"));

    m_manager.activateGroup(debugging);
    arrangeForDebugging();
    m_manager.saveCurrentViewAs(tr("Inspect"));
    m_manager.activateGroup(review);
    arrangeForReview();
    m_manager.saveCurrentViewAs(tr("Side by Side"));

    m_manager.activateGroup(editing);
    m_manager.setFactoryDefaultView(m_manager.toXml(/*markActive=*/true));
}

void Workbench::arrangeFocus()
{
    for (const char* name : {"Project", "Outline", "Search", "Console", "Properties"})
        m_editor.dock(QLatin1String(name))->hide();
    m_editor.toolBar(QStringLiteral("Debug"))->hide();
    m_plot.dock(QStringLiteral("Stations"))->hide();
}

void Workbench::arrangeForDebugging()
{
    m_editor.dock(QStringLiteral("Outline"))->hide();
    m_editor.dock(QStringLiteral("Search"))->hide();
    m_editor.dock(QStringLiteral("Properties"))->hide();
    QDockWidget* variables = m_editor.dock(QStringLiteral("Variables"));
    variables->show();
    m_editor.resizeDocks({m_editor.dock(QStringLiteral("Console")), variables}, {300, 200},
                         Qt::Horizontal);
    m_editor.addToolBar(Qt::LeftToolBarArea, m_editor.toolBar(QStringLiteral("Debug")));
}

void Workbench::arrangeForReview()
{
    for (const char* name : {"Project", "Console", "Variables"})
        m_editor.dock(QLatin1String(name))->hide();
    m_editor.toolBar(QStringLiteral("Debug"))->hide();
    QDockWidget* outline = m_editor.dock(QStringLiteral("Outline"));
    QDockWidget* search = m_editor.dock(QStringLiteral("Search"));
    m_editor.addDockWidget(Qt::LeftDockWidgetArea, outline);
    outline->show();
    search->show();
}

// The program ends with the editor.
bool Workbench::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_editor && event->type() == QEvent::Close)
        m_plot.close();
    return QObject::eventFilter(watched, event);
}
