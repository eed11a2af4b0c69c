// SPDX-License-Identifier: MIT
#include "Workbench.h"

#include "GroupMenu.h"
#include "NameDialog.h"

#include <panorel/ViewButton.h>

#include <QDockWidget>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

using Panorel::Manager;

namespace {

const QString editing = QStringLiteral("Editing");
const QString debugging = QStringLiteral("Debugging");
const QString review = QStringLiteral("Review");

const QKeySequence buttonKeys(QStringLiteral("Ctrl+L"));

} // namespace

Workbench::Workbench(const QString& layoutsFile, bool mergeOnApply)
    : m_manager({editing, debugging, review}, mergeOnApply)
    , m_undo(m_manager)
    , m_menu(&m_manager, /*extended=*/true)
    , m_store(layoutsFile)
    , m_session(QFileInfo(layoutsFile).absolutePath() + QStringLiteral("/windows.ini"),
                QSettings::IniFormat)
    , m_status(new StatusLine(*m_editor.statusBar()))
{
    m_manager.registerManagable(*this);
    m_editor.installEventFilter(this);
    addMenus();
    addToolBar();
    addCures();
    followManager();
}

QList<Panorel::ManagedWindow> Workbench::managedWindows()
{
    return {{QStringLiteral("editor"), &m_editor}, {QStringLiteral("plot"), &m_plot}};
}

void Workbench::start()
{
    placeSideBySide();
    m_editor.start();
    m_plot.start();
    makeFactoryDefault();
    m_editor.restoreGeometry(m_session.value(QStringLiteral("editor")).toByteArray());
    m_plot.restoreGeometry(m_session.value(QStringLiteral("plot")).toByteArray());
    load();
    m_manager.setProgramStartView(m_manager.toXml(/*markActive=*/true));
    m_isStarted = true;
    m_editor.activateWindow();
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

void Workbench::addMenus()
{
    m_editor.menuBar()->addMenu(new GroupMenu(m_manager, &m_editor));
    m_editor.menuBar()->addMenu(&m_menu);
    QMenu* window = m_editor.menuBar()->addMenu(tr("&Window"));
    window->addAction(m_plot.windowTitle(), this, [this] {
        m_plot.show();
        m_plot.raise();
        m_plot.activateWindow();
    });
}

void Workbench::addToolBar()
{
    QToolBar* bar = m_editor.addToolBar(tr("Layouts"));
    bar->setObjectName(QStringLiteral("Layouts"));
    m_button = new Panorel::ViewButton(&m_manager, tr("Next Layout"), bar);
    m_button->setIcon(m_button->style()->standardIcon(QStyle::SP_BrowserReload));
    m_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addWidget(m_button);
    QAction* saveAs = bar->addAction(tr("Save As..."), this, &Workbench::askForName);
    saveAs->setShortcut(QStringLiteral("Ctrl+Shift+S"));
    saveAs->setToolTip(tr("Save the layout under a name (%1)")
                           .arg(saveAs->shortcut().toString(QKeySequence::NativeText)));
}

void Workbench::addCures()
{
    const LayoutCures::Tell tell = [this](const QString& message) { this->tell(message); };
    auto* buttonMenu = qobject_cast<Panorel::Menu*>(m_button->menu());
    for (Panorel::Menu* menu : {&m_menu, buttonMenu}) {
        LayoutCures::focusNameField(*menu);
        LayoutCures::leaveMenuBar(*menu);
        LayoutCures::refuseEmptyNames(*menu, tell);
        LayoutCures::rememberChanges(*menu, m_manager, m_undo, tell);
        LayoutCures::makeScrollable(*menu);
    }
    LayoutCures::setTitle(m_menu, tr("&Layouts"));
    LayoutCures::showAmpersand(m_menu);
    LayoutCures::explainImports(m_menu, m_manager, m_undo, tell);
    LayoutCures::removeNamelessViews(m_manager, tell);
    LayoutCures::openByKeys(*m_button, buttonKeys, m_editor);
    LayoutCures::describeButton(*m_button, m_manager,
                                tr("Click for the next layout; %1 opens all of them.")
                                    .arg(buttonKeys.toString(QKeySequence::NativeText)));
    m_status->setUndoAction(LayoutCures::createUndoAction(m_undo, {&m_editor, &m_plot}, tell));
}

void Workbench::followManager()
{
    const auto showActive = [this] {
        m_status->showActive(m_manager.activeGroup(), m_manager.activeView());
    };
    connect(&m_manager, &Manager::viewActivated, this, [this, showActive](const QString& name) {
        showActive();
        if (!name.isEmpty())
            tell(tr("Switched to \"%1\".").arg(name));
    });
    // Later, for the activation of the group's view is told after this.
    connect(&m_manager, &Manager::groupActivated, this, [this](const QString& name) {
        if (!m_isStarted)
            return;
        QTimer::singleShot(0, this,
                           [this, name] { tell(tr("Group \"%1\", as you left it.").arg(name)); });
    });
    // Once for all that one change emits.
    m_saveSoon.setSingleShot(true);
    connect(&m_saveSoon, &QTimer::timeout, this, &Workbench::save);
    connect(&m_manager, &Manager::groupModified, &m_saveSoon, qOverload<>(&QTimer::start));
    connect(&m_manager, &Manager::viewActivated, &m_saveSoon, qOverload<>(&QTimer::start));
    showActive();
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

void Workbench::load()
{
    const QString problem = m_store.load(m_manager);
    // A document does not tell which group was active.
    const QString group = m_session.value(QStringLiteral("group")).toString();
    if (!group.isEmpty() && group != m_manager.activeGroup())
        (void)m_manager.activateGroup(group); // One that is no more is no loss.
    tell(problem.isEmpty() ? tr("Arrange the windows, then save that as a layout.") : problem);
    if (problem.isEmpty())
        return;
    auto* box =
        new QMessageBox(QMessageBox::Warning, tr("Layouts"), problem, QMessageBox::Ok, &m_editor);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void Workbench::save()
{
    if (!m_isStarted)
        return;
    const QString problem = m_store.save(m_manager);
    m_session.setValue(QStringLiteral("editor"), m_editor.saveGeometry());
    m_session.setValue(QStringLiteral("plot"), m_plot.saveGeometry());
    m_session.setValue(QStringLiteral("group"), m_manager.activeGroup());
    if (!problem.isEmpty())
        tell(problem);
}

void Workbench::askForName()
{
    auto* dialog = new Panorel::NameDialog(&m_manager, m_manager.views(),
                                           /*allowActiveName=*/true, &m_editor);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        LayoutCures::saveAs(m_manager, dialog->name(), m_undo,
                            [this](const QString& message) { tell(message); });
    });
    dialog->open();
}

void Workbench::tell(const QString& message)
{
    m_status->tell(message);
}

// With the editor the program ends, and its windows are still as the user left them.
bool Workbench::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_editor && event->type() == QEvent::Close) {
        save();
        m_plot.close();
    }
    return QObject::eventFilter(watched, event);
}
