// SPDX-License-Identifier: MIT
#pragma once

#include "support/NamedPartsWindow.h"
#include "support/Text.h"

#include <QList>
#include <QTextEdit>

namespace Panorel::Tests {

/**
 * A window as real applications have it. Left: "Files" and "Outline" as tabs, Outline on top;
 * right: "Properties"; bottom: "Output"; floating: "Palette". Tool bars on top: "Main" and "Edit"
 * in the first line, "View" in the second.
 */
class SampleWindow : public NamedPartsWindow
{
public:
    SampleWindow()
    {
        resize(1000, 700);
        setCentralWidget(new QTextEdit);
        addDocks();
        addBars();
    }

    QDockWidget* files = dock("Files"_s);
    QDockWidget* outline = dock("Outline"_s);
    QDockWidget* properties = dock("Properties"_s);
    QDockWidget* output = dock("Output"_s);
    QDockWidget* palette = dock("Palette"_s);
    QToolBar* mainBar = bar("Main"_s);
    QToolBar* editBar = bar("Edit"_s);
    QToolBar* viewBar = bar("View"_s);

    QList<QDockWidget*> docks() const { return {files, outline, properties, output, palette}; }
    QList<QToolBar*> bars() const { return {mainBar, editBar, viewBar}; }

    /** Top: Files; right: Outline and Palette; left: Properties; Output is hidden. */
    void rearrangeDocks()
    {
        addDockWidget(Qt::TopDockWidgetArea, files);
        addDockWidget(Qt::RightDockWidgetArea, outline);
        addDockWidget(Qt::LeftDockWidgetArea, properties);
        output->hide();
        palette->setFloating(false);
    }

    /** Left: Main; bottom: View, without a line of its own; Edit is hidden. */
    void rearrangeBars()
    {
        addToolBar(Qt::LeftToolBarArea, mainBar);
        removeToolBarBreak(viewBar);
        addToolBar(Qt::BottomToolBarArea, viewBar);
        editBar->hide();
    }

private:
    QDockWidget* dock(const QString& name) { return NamedPartsWindow::dock(name, new QTextEdit); }

    void addDocks()
    {
        addDockWidget(Qt::LeftDockWidgetArea, files);
        addDockWidget(Qt::LeftDockWidgetArea, outline);
        tabifyDockWidget(files, outline);
        outline->raise();
        addDockWidget(Qt::RightDockWidgetArea, properties);
        addDockWidget(Qt::BottomDockWidgetArea, output);
        addDockWidget(Qt::RightDockWidgetArea, palette);
        palette->setFloating(true);
    }

    void addBars()
    {
        addToolBar(Qt::TopToolBarArea, mainBar);
        addToolBar(Qt::TopToolBarArea, editBar);
        addToolBarBreak(Qt::TopToolBarArea);
        addToolBar(Qt::TopToolBarArea, viewBar);
    }
};

} // namespace Panorel::Tests
