// SPDX-License-Identifier: MIT
#pragma once

#include "value/StatePlaces.h"

#include <panorel/kit/WindowState.h>

namespace Panorel::Kit::Detail {

/** Turns a StateTree into the parts that WindowState names, each at the place where Qt takes it. */
class StateParts
{
public:
    explicit StateParts(const StateTree& tree);

    QVector<WindowState::DockWidget> dockWidgets;
    QVector<WindowState::FloatingTabs> floatingTabs;
    QVector<WindowState::ToolBar> toolBars;

private:
    // A block whose items are being looked at.
    struct OpenBlock
    {
        const StateItem* block;
        // Width and height of the block, negative where unknown.
        QSize size;
        // Number of the next item in it.
        int next = 0;
        // Of the innermost block of tabs, which may be this one: where it is in m_open; -1 for
        // none.
        int tabs = -1;
        // Number of the tab group; given when the first dock widget comes.
        int group = -1;
    };

    void addDockAreas(const StateSection& section);
    void addFloating(const StateSection& section);
    void addToolBars(const StateSection& section);
    int addBlock(int top, const QSize& size, Qt::DockWidgetArea area);
    void open(const StateItem& block, const QSize& size);
    QSize sizeInside(const StateItem& item) const;
    void addDockWidget(const StateItem& item, const QSize& size, Qt::DockWidgetArea area);
    void addToolBar(const StateToolBar& toolBar, int area, int line, bool canFloat);

    const StateTree& m_tree;
    const StatePlaces m_places;
    std::vector<OpenBlock> m_open;
    int m_groups = 0;
    // Lines so far on each side, and on sides that do not exist.
    std::array<int, 5> m_lines{};
};

} // namespace Panorel::Kit::Detail
