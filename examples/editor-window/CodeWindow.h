// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class QPlainTextEdit;

/**
 * The main window of a small editor, and nothing that knows of Panorel. What matters to it are the
 * object names: by them Qt finds the dock widgets and tool bars of a stored layout again.
 */
class CodeWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit CodeWindow(QWidget* parent = nullptr);

    /** Shows the window in the arrangement of its first start. */
    void start();

    QDockWidget* dock(const QString& name) const;
    QToolBar* toolBar(const QString& name) const;

private:
    void addMenus();
    void addToolBars();
    void addDocks();
    QMenu* addViewMenu();
    QDockWidget* addDock(const QString& name, QWidget* content, Qt::DockWidgetArea area);
    QAction* addCommand(QWidget* bar, const QString& text, int icon);

    QPlainTextEdit* m_editor;
    QPlainTextEdit* m_console;
};
