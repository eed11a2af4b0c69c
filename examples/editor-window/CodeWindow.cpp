// SPDX-License-Identifier: MIT
#include "CodeWindow.h"

#include "EditorContent.h"

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

namespace {

// The style has these icons in black only, which cannot be seen on a dark tool bar.
QIcon tinted(const QIcon& icon, const QColor& color)
{
    QPixmap pixmap = icon.pixmap(32);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    painter.end();
    return QIcon(pixmap);
}

} // namespace

CodeWindow::CodeWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_editor(EditorContent::createEditor())
    , m_console(EditorContent::createConsole())
{
    setWindowTitle(QStringLiteral("TideGauge.cpp - Harbour"));
    setCentralWidget(m_editor);
    addDocks();
    addToolBars();
    addMenus();
    statusBar();
    resize(1000, 680);
}

QDockWidget* CodeWindow::dock(const QString& name) const
{
    return findChild<QDockWidget*>(name);
}

QToolBar* CodeWindow::toolBar(const QString& name) const
{
    return findChild<QToolBar*>(name);
}

void CodeWindow::start()
{
    show();
    resizeDocks({dock(QStringLiteral("Project")), dock(QStringLiteral("Outline"))}, {175, 145},
                Qt::Horizontal);
    resizeDocks({dock(QStringLiteral("Console"))}, {100}, Qt::Vertical);
    // Last: a window manager keeps it above the window only if that is on the screen already.
    QDockWidget* properties = dock(QStringLiteral("Properties"));
    properties->setFloating(true);
    properties->setGeometry(QRect(mapToGlobal(QPoint(width() / 2, height() / 2)), QSize(180, 110)));
    properties->show();
}

void CodeWindow::addMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addActions(toolBar(QStringLiteral("File"))->actions());
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
    menuBar()->addMenu(tr("&Edit"))->addActions(toolBar(QStringLiteral("Edit"))->actions());
    menuBar()->addMenu(addViewMenu());
    menuBar()->addMenu(tr("&Debug"))->addActions(toolBar(QStringLiteral("Debug"))->actions());
}

QMenu* CodeWindow::addViewMenu()
{
    auto* menu = new QMenu(tr("&View"), this);
    const auto docks = findChildren<QDockWidget*>();
    for (const QDockWidget* dock : docks)
        menu->addAction(dock->toggleViewAction());
    menu->addSeparator();
    const auto bars = findChildren<QToolBar*>();
    for (const QToolBar* bar : bars)
        menu->addAction(bar->toggleViewAction());
    return menu;
}

void CodeWindow::addToolBars()
{
    const auto addBar = [this](const QString& name, const QString& title) {
        QToolBar* bar = addToolBar(title);
        bar->setObjectName(name);
        return bar;
    };
    QToolBar* file = addBar(QStringLiteral("File"), tr("File"));
    addCommand(file, tr("New"), QStyle::SP_FileIcon);
    addCommand(file, tr("Open"), QStyle::SP_DialogOpenButton);
    addCommand(file, tr("Save"), QStyle::SP_DialogSaveButton);

    QToolBar* edit = addBar(QStringLiteral("Edit"), tr("Edit"));
    connect(addCommand(edit, tr("Undo"), QStyle::SP_ArrowBack), &QAction::triggered, m_editor,
            &QPlainTextEdit::undo);
    connect(addCommand(edit, tr("Redo"), QStyle::SP_ArrowForward), &QAction::triggered, m_editor,
            &QPlainTextEdit::redo);
    addCommand(edit, tr("Find"), QStyle::SP_FileDialogContentsView);

    addToolBarBreak();
    QToolBar* debug = addBar(QStringLiteral("Debug"), tr("Debug"));
    debug->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const QColor color = palette().color(QPalette::ButtonText);
    const QList<QAction*> commands{addCommand(debug, tr("Run"), QStyle::SP_MediaPlay),
                                   addCommand(debug, tr("Pause"), QStyle::SP_MediaPause),
                                   addCommand(debug, tr("Step"), QStyle::SP_MediaSkipForward),
                                   addCommand(debug, tr("Stop"), QStyle::SP_MediaStop)};
    for (QAction* command : commands)
        command->setIcon(tinted(command->icon(), color));
}

void CodeWindow::addDocks()
{
    addDock(QStringLiteral("Project"), tr("Project"), EditorContent::createProject(),
            Qt::LeftDockWidgetArea);
    QDockWidget* outline = addDock(QStringLiteral("Outline"), tr("Outline"),
                                   EditorContent::createOutline(), Qt::RightDockWidgetArea);
    QDockWidget* search = addDock(QStringLiteral("Search"), tr("Search"),
                                  EditorContent::createSearch(), Qt::RightDockWidgetArea);
    tabifyDockWidget(outline, search);
    outline->raise();
    addDock(QStringLiteral("Console"), tr("Console"), m_console, Qt::BottomDockWidgetArea);
    addDock(QStringLiteral("Variables"), tr("Variables"), EditorContent::createVariables(),
            Qt::BottomDockWidgetArea)
        ->hide();
    addDock(QStringLiteral("Properties"), tr("Properties"), EditorContent::createProperties(),
            Qt::RightDockWidgetArea)
        ->hide();
}

QDockWidget* CodeWindow::addDock(const QString& name, const QString& title, QWidget* content,
                                 Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}

QAction* CodeWindow::addCommand(QWidget* bar, const QString& text, int icon)
{
    auto* action =
        new QAction(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icon)), text, this);
    connect(action, &QAction::triggered, m_console,
            [this, text] { m_console->appendPlainText(QStringLiteral("> ") + text); });
    bar->addAction(action);
    return action;
}
