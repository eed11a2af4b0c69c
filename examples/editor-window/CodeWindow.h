// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class QPlainTextEdit;

/**
 * The main window of a small editor, and nothing that knows of Panorel. Qt finds its dock
 * widgets and tool bars in a stored layout by their object names.
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
    QDockWidget* addDock(const QString& name, const QString& title, QWidget* content,
                         Qt::DockWidgetArea area);
    QAction* addCommand(QWidget* bar, const QString& text, int icon);

    QPlainTextEdit* m_editor;
    QPlainTextEdit* m_console;
};
