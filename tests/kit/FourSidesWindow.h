// SPDX-License-Identifier: MIT
#pragma once

#include "support/NamedPartsWindow.h"
#include "support/Text.h"

#include <QDataStream>
#include <QLabel>
#include <QTextEdit>

namespace Panorel::Tests {

/**
 * A window with dock widgets on all sides, "left" with "leftTab" as tabs, "right", "top" and
 * "bottom", two more that can float as tabs, "one" and "two", and tool bars "Main" on top and
 * "Edit" at the left.
 */
class FourSidesWindow : public NamedPartsWindow
{
public:
    FourSidesWindow()
    {
        resize(1000, 700);
        setDockOptions(QMainWindow::AllowTabbedDocks | QMainWindow::AllowNestedDocks |
                       QMainWindow::GroupedDragging);
        setCentralWidget(new QTextEdit);
        addDockWidget(Qt::LeftDockWidgetArea, left);
        addDockWidget(Qt::LeftDockWidgetArea, leftTab);
        tabifyDockWidget(left, leftTab);
        addDockWidget(Qt::RightDockWidgetArea, right);
        addDockWidget(Qt::TopDockWidgetArea, top);
        addDockWidget(Qt::BottomDockWidgetArea, bottom);
        addDockWidget(Qt::RightDockWidgetArea, one);
        addDockWidget(Qt::RightDockWidgetArea, two);
        addToolBar(Qt::TopToolBarArea, mainBar);
        addToolBar(Qt::LeftToolBarArea, editBar);
    }

    QDockWidget* left = dock("left"_s);
    QDockWidget* leftTab = dock("leftTab"_s);
    QDockWidget* right = dock("right"_s);
    QDockWidget* top = dock("top"_s);
    QDockWidget* bottom = dock("bottom"_s);
    QDockWidget* one = dock("one"_s);
    QDockWidget* two = dock("two"_s);
    QToolBar* mainBar = bar("Main"_s);
    QToolBar* editBar = bar("Edit"_s);

    /** Swaps left and right, and top and bottom. */
    void rearrangeDocks()
    {
        addDockWidget(Qt::RightDockWidgetArea, left);
        addDockWidget(Qt::LeftDockWidgetArea, right);
        addDockWidget(Qt::BottomDockWidgetArea, top);
        addDockWidget(Qt::TopDockWidgetArea, bottom);
    }

    /** Makes a floating tab group of "one" and "two", which a program can do by a state only. */
    void floatAsTabs()
    {
        QByteArray group;
        QDataStream stream(&group, QIODevice::WriteOnly);
        stream << quint8(0xF9) << QRect(100, 100, 250, 200);
        stream << quint8(0xFA) << 0 << quint8(Qt::Horizontal) << 2;
        for (const QString& name : {"one"_s, "two"_s})
            stream << quint8(0xFB) << name << quint8(1) << 0 << -1 << 0 << 0;
        // Or they would be in the group and on their sides at once.
        removeDockWidget(one);
        removeDockWidget(two);
        restoreState(saveState() + group);
    }

    /** Whether "one" and "two" are in a floating tab group. */
    bool floatsAsTabs() const { return one->parentWidget() != this && two->parentWidget() != this; }

private:
    QDockWidget* dock(const QString& name)
    {
        auto* content = new QLabel(name);
        content->setMinimumSize(30, 30);
        return NamedPartsWindow::dock(name, content);
    }
};

} // namespace Panorel::Tests
