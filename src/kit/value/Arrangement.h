// SPDX-License-Identifier: MIT
#pragma once

#include "value/StateTree.h"

#include <QRect>

#include <array>
#include <vector>

namespace Panorel::Kit::Detail {

/**
 * What a window makes of a state: each dock widget and tool bar once, at the place where
 * QMainWindow::restoreState() puts it, and whether it is seen there. It points into the StateTree
 * that it was made of, which must outlive it.
 */
class Arrangement
{
public:
    /** A dock widget or a block of items. The ones inside a block come right after it. */
    struct Node
    {
        /** What was stored. Of a side with several records, the last one's block. */
        const StateItem* item = nullptr;
        /** The block around it, -1 for a side and for a floating tab group. */
        int parent = -1;
        /** The index after the last node inside this one. */
        int end = 0;
        bool isBlock = false;
        bool isTabbed = false;
        bool isHorizontal = false;
        /** Of a dock widget: whether this is its place and not a repeat. */
        bool isTaken = false;
        /** Whether it takes room: an open dock widget that does not float by itself, or a block
            with one. */
        bool isShown = false;
        /** Of a tab group: how many of its pages take room, and the node of the one in front, -1
            for none. A block is no page: where one is an item of a tab group it takes room, but
            what is in it is not seen. */
        int pageCount = 0;
        int front = -1;
    };

    /** A side of the window, or a floating tab group. */
    struct Container
    {
        /** Index of its block in nodes; -1 for a side that the state does not mention. */
        int node = -1;
        /** As stored; no QRect, which cannot hold all numbers. A side has a size only. */
        QPoint position;
        QSize size;
    };

    /** A dock widget that is a window of its own. */
    struct FloatingDock
    {
        int node = -1;
        QPoint position;
        QSize size;
    };

    /** A tool bar, and its geometry on the desktop if it floats. */
    struct Bar
    {
        const StateToolBar* bar = nullptr;
        QRect geometry;
        bool isFloating = false;
    };

    /** The tool bars of one line that are seen in it. */
    using Line = std::vector<Bar>;

    explicit Arrangement(const StateTree& tree);

    /** Whether anything is seen on a side: 0 left, 1 right, 2 top, 3 bottom. */
    bool isShown(int side) const;
    /** Whether @p side owns the corner that it shares with the side @p other, or has it because
        nothing is seen there. */
    bool reaches(int side, int other) const;
    /** Index of the first node inside @p block that is shown, and of the next after @p node in the
        same block; -1 if there is none. */
    int firstShown(int block) const;
    int nextShown(int node) const;

    /** Takes the room from all dock widgets that are not in @p nodesToKeep, which has a value for
        each node, as if these were closed. */
    void keepOnly(const std::vector<bool>& nodesToKeep);

    const Node& at(int node) const { return nodes[static_cast<std::size_t>(node)]; }

    std::vector<Node> nodes;
    std::array<Container, 4> sides;
    std::vector<Container> groups;
    /** The open ones, in stored order. */
    std::vector<FloatingDock> floatingDocks;
    /** On each side, from the window's edge; lines without a tool bar that is seen are left out. */
    std::array<std::vector<Line>, 4> lines;
    /** The open ones, in stored order. */
    std::vector<Bar> floatingBars;
    /** Every tool bar, also those that are not seen. */
    std::vector<Bar> hiddenBars;
    /** Size of the central widget's area; invalid if the state has no dock areas. */
    QSize centralSize;
    std::array<int, 4> corners{};

private:
    void addSection(const StateSection& section);
    void addSide(Container& side, const std::vector<const StateDock*>& docks);
    void beginContainer(Container& container, const StateItem& block);
    void addItems(int top, int container);
    void add(int item, int parent);
    void findFloating();
    void findPages();
    void addLine(const StateLine& line, bool canFloat);

    const StateTree& m_tree;
    std::vector<bool> m_isTaken;
    std::vector<bool> m_isBarTaken;
    // The records of each side.
    std::array<std::vector<const StateDock*>, 4> m_docks;
};

} // namespace Panorel::Kit::Detail
