// SPDX-License-Identifier: MIT
#pragma once

#include "value/PictureMetrics.h"
#include "value/PictureShare.h"

namespace Panorel::Kit::Detail {

/** What a widget can have at most in Qt. */
constexpr int largestExtent = (1 << 24) - 1;
/** Larger than any desktop. What is stored beyond it no window system takes, and no picture. */
constexpr int largestWindow = 16383;
/** What a part has in a picture if its size was not stored. */
constexpr int usualExtent = 100;

/**
 * Divides a window between its four sides and the central widget, which has what they leave.
 * Arrangement and metrics must outlive it.
 */
class PictureGrid
{
public:
    enum Side { Left, Right, Top, Bottom };

    PictureGrid(const Arrangement& arrangement, const PictureMetrics& metrics);

    /** Whether the window had sizes when it was stored, which one that was never shown has not. */
    bool isLaidOut() const;
    /** Whether there is a central widget. */
    bool hasCentral() const;
    /** The size of all that was divided. */
    QSize storedSize() const;
    /** The minimum size of each node, as far as the state tells it. */
    const std::vector<QSize>& minimumSizes() const { return m_minimum; }

    /** Divides @p area. */
    void divide(const QRect& area);
    /** Where the central widget is in that area, and a side that is shown. */
    QRect central() const { return m_central; }
    QRect sideRect(int side) const;

private:
    // Where the middle of the area lies in one direction, between the sides before and after.
    struct Middle
    {
        int begin = 0;
        int end = 0;
    };

    int extentOf(int side) const;
    int storedExtent(bool isHorizontal) const;
    void findMinimumSizes();
    void addMinimum(int node, const QSize& size);
    bool isBeyond(int side, int other) const;
    Share shareOf(int side, bool isHorizontal) const;
    Share shareOfMiddle(bool isHorizontal) const;
    Middle middle(bool isHorizontal, int space) const;

    const Arrangement& m_arrangement;
    const PictureMetrics& m_metrics;
    std::vector<QSize> m_minimum;
    QRect m_area;
    QRect m_central;
};

} // namespace Panorel::Kit::Detail
