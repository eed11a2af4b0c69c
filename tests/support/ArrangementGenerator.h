// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QDataStream>
#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QRandomGenerator>
#include <QTextEdit>
#include <QToolBar>
#include <QVector>

namespace Panorel::Tests {

/**
 * A window with dock widgets "dock 0" and so on and tool bars "bar 0" and so on, arranged at random
 * as users do: on all sides, beside each other and split, as tabs, floating alone or as a floating
 * tab group, closed, with other corners and sizes. The same seed makes the same arrangement. It
 * works without being shown; show it and process events for sizes that a screen has.
 */
class ArrangedWindow : public QMainWindow
{
public:
    /** What an arrangement may hold beside docked dock widgets and tabs. */
    enum Content { Everything, WithoutFloatingTabs };

    /** The parts alone, all in their first places, to restore a state in. */
    ArrangedWindow(int docks, int bars)
    {
        resize(900, 700);
        setDockNestingEnabled(true);
        setDockOptions(dockOptions() & ~QMainWindow::AnimatedDocks);
        setCentralWidget(new QTextEdit);
        for (int i = 0; i < docks; ++i)
            addDock(i);
        for (int i = 0; i < bars; ++i)
            addBar(i);
    }

    /** The parts arranged as @p seed says. */
    explicit ArrangedWindow(quint32 seed, Content content = Everything)
        : ArrangedWindow(2 + static_cast<int>(seed % 7), static_cast<int>(seed / 7 % 5))
    {
        QRandomGenerator random(seed);
        resize(700 + random.bounded(500), 500 + random.bounded(400));
        for (QDockWidget* const dock : docks())
            place(dock, random);
        arrangeBars(random);
        arrangeCorners(random);
        for (QDockWidget* const dock : docks())
            changeState(dock, random);
        resizeSomeDocks(random);
        if (content == Everything && random.bounded(5) == 0)
            floatSomeAsTabs(random);
    }

    /** A window with the same parts in their first places. */
    ArrangedWindow* twin() const
    {
        auto* const window = new ArrangedWindow(m_docks.size(), m_bars.size());
        window->resize(size());
        return window;
    }

    const QVector<QDockWidget*>& docks() const { return m_docks; }
    const QVector<QToolBar*>& bars() const { return m_bars; }

private:
    void addDock(int number)
    {
        auto* const dock = new QDockWidget("Dock %1"_s.arg(number), this);
        dock->setObjectName("dock %1"_s.arg(number));
        auto* const content = new QLabel("Content"_s);
        content->setMinimumSize(30, 30);
        dock->setWidget(content);
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        m_docks.append(dock);
    }

    void addBar(int number)
    {
        QToolBar* const bar = addToolBar("Bar %1"_s.arg(number));
        bar->setObjectName("bar %1"_s.arg(number));
        bar->addAction("Do"_s);
        m_bars.append(bar);
    }

    static Qt::DockWidgetArea side(QRandomGenerator& random)
    {
        return static_cast<Qt::DockWidgetArea>(1 << random.bounded(4));
    }

    // Beside one that has its place already, or on a side of its own.
    void place(QDockWidget* dock, QRandomGenerator& random)
    {
        QDockWidget* const other = m_docks[random.bounded(m_docks.size())];
        const auto orientation = random.bounded(2) == 0 ? Qt::Horizontal : Qt::Vertical;
        switch (random.bounded(5)) {
        case 0:
        case 1:
            addDockWidget(side(random), dock);
            break;
        case 2:
            addDockWidget(side(random), dock, orientation);
            break;
        case 3:
            if (other != dock)
                tabifyDockWidget(other, dock);
            break;
        default:
            if (other != dock)
                splitDockWidget(other, dock, orientation);
            break;
        }
    }

    void changeState(QDockWidget* dock, QRandomGenerator& random)
    {
        switch (random.bounded(9)) {
        case 0:
            dock->hide();
            break;
        case 1:
        case 2:
            dock->setFloating(true);
            dock->setGeometry(random.bounded(300), random.bounded(300), 120 + random.bounded(200),
                              120 + random.bounded(150));
            dock->setVisible(random.bounded(4) != 0);
            break;
        case 3:
            dock->raise();
            break;
        default:
            break;
        }
    }

    void arrangeBars(QRandomGenerator& random)
    {
        for (QToolBar* const bar : bars()) {
            const int area = random.bounded(6);
            addToolBar(area < 4 ? static_cast<Qt::ToolBarArea>(1 << area) : Qt::TopToolBarArea,
                       bar);
            if (random.bounded(3) == 0)
                insertToolBarBreak(bar);
            bar->setVisible(random.bounded(6) != 0);
        }
    }

    void arrangeCorners(QRandomGenerator& random)
    {
        const auto either = [&random](Qt::DockWidgetArea one, Qt::DockWidgetArea other) {
            return random.bounded(2) == 0 ? one : other;
        };
        using namespace Qt;
        setCorner(TopLeftCorner, either(TopDockWidgetArea, LeftDockWidgetArea));
        setCorner(TopRightCorner, either(TopDockWidgetArea, RightDockWidgetArea));
        setCorner(BottomLeftCorner, either(BottomDockWidgetArea, LeftDockWidgetArea));
        setCorner(BottomRightCorner, either(BottomDockWidgetArea, RightDockWidgetArea));
    }

    void resizeSomeDocks(QRandomGenerator& random)
    {
        QDockWidget* const dock = m_docks[random.bounded(m_docks.size())];
        resizeDocks({dock}, {100 + random.bounded(200)}, Qt::Horizontal);
        resizeDocks({dock}, {100 + random.bounded(200)}, Qt::Vertical);
    }

    // A user drops one floating dock widget on another. A program cannot, but it can restore a
    // state that says so; the window then saves it in its own words.
    void floatSomeAsTabs(QRandomGenerator& random)
    {
        setDockOptions(dockOptions() | QMainWindow::GroupedDragging);
        const int first = random.bounded(m_docks.size() - 1);
        const QRect geometry(random.bounded(200), random.bounded(200), 250, 200);
        QByteArray group;
        QDataStream stream(&group, QIODevice::WriteOnly);
        stream << quint8(0xF9) << geometry;
        stream << quint8(0xFA) << random.bounded(2) << quint8(Qt::Horizontal) << 2;
        for (const int i : {first, first + 1})
            stream << quint8(0xFB) << m_docks[i]->objectName() << quint8(1) << 0 << -1 << 0 << 0;
        // Sections may come in any order, so it may as well be the last.
        restoreState(saveState() + group);
    }

    QVector<QDockWidget*> m_docks;
    QVector<QToolBar*> m_bars;
};

} // namespace Panorel::Tests
