// SPDX-License-Identifier: MIT
#pragma once

#include "value/PictureGrid.h"

#include <panorel/kit/Picture.h>

namespace Panorel::Kit::Detail {

/**
 * Finds the places that a window of a given size gives to what an arrangement shows, by the rules
 * of QMainWindow: tool bars first, then the dock widgets at the sizes that were stored, and the
 * rest to the central widget.
 */
class PictureLayout
{
public:
    explicit PictureLayout(const Arrangement& arrangement);

    /** The size of the window that was stored. */
    QSize windowSize() const;

    /** All parts in a window of that size, whose top left corner is also that of the desktop. */
    QVector<Picture::Part> parts(const QSize& window);

    /** The size of the dock areas in the window that was stored. */
    QSize dockAreaSize() const { return m_grid.storedSize(); }
    /** The place of each node in dock areas of that size; invalid for what is not seen. */
    std::vector<QRect> dockRects(const QSize& area);

    /** Where the window is among the parts. */
    QRect window() const { return m_window; }

private:
    using Kind = Picture::Part::Kind;

    void addSides();
    void placeInside(int container, const QRect& rect);
    void placeRow(int block);
    Share shareOfItem(int node, bool isHorizontal) const;
    QStringList pagesOf(int tabs) const;
    QRect tabBarOf(int tabs) const;
    void addPages(int tabs);
    void add(Kind kind, int node, const QRect& rect);
    void addToolBars(const QRect& area);
    void addLine(const Arrangement::Line& line, const QRect& rect, bool isHorizontal);
    void addBar(const Arrangement::Bar& bar, const QRect& rect, bool isVertical);
    void addFloating();
    void addGroup(const Arrangement::Container& group);

    const Arrangement& m_arrangement;
    const PictureMetrics m_metrics;
    PictureGrid m_grid;
    // Of each node.
    std::vector<QRect> m_rects;
    QRect m_window;
    QVector<Picture::Part> m_parts;
};

} // namespace Panorel::Kit::Detail
