// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

/** A second window, with a plot and its dock widgets. It knows nothing of Panorel either. */
class PlotWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit PlotWindow(QWidget* parent = nullptr);

    /** Shows the window in the arrangement of its first start. */
    void start();

    QDockWidget* dock(const QString& name) const;

private:
    void addDock(const QString& name, const QString& title, QWidget* content,
                 Qt::DockWidgetArea area);
};
