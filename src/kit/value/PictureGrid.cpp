// SPDX-License-Identifier: MIT
#include "value/PictureGrid.h"

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

using Node = Arrangement::Node;

std::size_t index(int number)
{
    return static_cast<std::size_t>(number);
}

int bounded(int extent)
{
    return qBound(0, extent, largestExtent);
}

int along(bool isHorizontal, const QSize& size)
{
    return bounded(isHorizontal ? size.width() : size.height());
}

QSize oriented(bool isHorizontal, int extent, int across)
{
    return isHorizontal ? QSize(extent, across) : QSize(across, extent);
}

// The sides at both ends of a row or column of all areas.
std::array<int, 2> endsOf(bool isHorizontal)
{
    return isHorizontal ? std::array<int, 2>{PictureGrid::Left, PictureGrid::Right}
                        : std::array<int, 2>{PictureGrid::Top, PictureGrid::Bottom};
}

} // namespace

PictureGrid::PictureGrid(const Arrangement& arrangement, const PictureMetrics& metrics)
    : m_arrangement(arrangement)
    , m_metrics(metrics)
{
    findMinimumSizes();
}

QSize PictureGrid::storedSize() const
{
    return QSize(storedExtent(true), storedExtent(false));
}

// A window that was never shown stores no sizes.
bool PictureGrid::isLaidOut() const
{
    if (!m_arrangement.centralSize.isEmpty())
        return true;
    for (int side = Left; side <= Bottom; ++side) {
        if (m_arrangement.isShown(side) && !m_arrangement.sides[index(side)].size.isEmpty())
            return true;
    }
    return false;
}

bool PictureGrid::hasCentral() const
{
    return !m_arrangement.centralSize.isEmpty() || !isLaidOut();
}

// How far a side reaches into the window.
int PictureGrid::extentOf(int side) const
{
    const QSize size = m_arrangement.sides[index(side)].size;
    const int extent = along(side == Left || side == Right, size);
    return extent > 0 ? extent : usualExtent;
}

// Of the dock areas in one direction: of a side that lies along it and of the sides at its ends, or
// of all that is beside each other.
int PictureGrid::storedExtent(bool isHorizontal) const
{
    const std::array<int, 2> ends = endsOf(isHorizontal);
    int middle = along(isHorizontal, m_arrangement.centralSize);
    std::array<bool, 2> isBeside{m_arrangement.isShown(ends[0]), m_arrangement.isShown(ends[1])};
    for (const int side : endsOf(!isHorizontal)) {
        const int extent = along(isHorizontal, m_arrangement.sides[index(side)].size);
        if (!m_arrangement.isShown(side) || extent == 0)
            continue;
        middle = extent;
        isBeside = {!m_arrangement.reaches(side, ends[0]), !m_arrangement.reaches(side, ends[1])};
        break;
    }
    qint64 sum = middle;
    for (const std::size_t end : {0U, 1U}) {
        if (isBeside[end])
            sum += extentOf(ends[end]) + (sum > 0 ? m_metrics.separator : 0);
    }
    return static_cast<int>(qBound<qint64>(1, sum, largestWindow));
}

// The minimum sizes are stored along the row or column that an item is in, not across it.
void PictureGrid::findMinimumSizes()
{
    m_minimum.assign(m_arrangement.nodes.size(), QSize(0, 0));
    for (int i = static_cast<int>(m_arrangement.nodes.size()) - 1; i >= 0; --i) {
        const Node& node = m_arrangement.at(i);
        QSize& minimum = m_minimum[index(i)];
        if (node.isTabbed && node.pageCount > 1)
            minimum.rheight() += m_metrics.tabBar;
        if (!node.isShown || node.parent < 0)
            continue;
        const int extent = node.item->values[1];
        int stored = bounded(node.item->values[2]);
        if (extent > 0)
            stored = std::min(stored, extent);
        minimum =
            minimum.expandedTo(oriented(m_arrangement.at(node.parent).isHorizontal, stored, 0));
        addMinimum(node.parent, minimum);
    }
}

void PictureGrid::addMinimum(int node, const QSize& size)
{
    const Node& block = m_arrangement.at(node);
    QSize& minimum = m_minimum[index(node)];
    const QSize together = minimum + size;
    QSize result = minimum.expandedTo(size);
    if (!block.isTabbed && !minimum.isNull()) {
        if (block.isHorizontal)
            result.setWidth(together.width() + m_metrics.separator);
        else
            result.setHeight(together.height() + m_metrics.separator);
    }
    minimum = result.boundedTo(QSize(largestExtent, largestExtent));
}

Share PictureGrid::shareOf(int side, bool isHorizontal) const
{
    const double extent = extentOf(side);
    const QSize minimum = m_minimum[index(m_arrangement.sides[index(side)].node)];
    return {std::min<double>(along(isHorizontal, minimum), extent), extent, largestExtent,
            hasCentral() ? 0.0 : 1.0};
}

// Whether a side lies along the whole of another that is shown, and of the middle.
bool PictureGrid::isBeyond(int side, int other) const
{
    return m_arrangement.isShown(other) && m_arrangement.reaches(side, other);
}

// Of the central widget and of the sides that are no longer than it.
Share PictureGrid::shareOfMiddle(bool isHorizontal) const
{
    const std::array<int, 2> ends = endsOf(isHorizontal);
    Share share{0, 0, largestExtent, 1};
    for (const int side : endsOf(!isHorizontal)) {
        if (!m_arrangement.isShown(side) || isBeyond(side, ends[0]) || isBeyond(side, ends[1]))
            continue;
        const Arrangement::Container& container = m_arrangement.sides[index(side)];
        share.minimum =
            std::max<double>(share.minimum, along(isHorizontal, m_minimum[index(container.node)]));
        share.preferred = std::max<double>(share.preferred, along(isHorizontal, container.size));
    }
    if (hasCentral()) {
        share.weight = std::max(1, along(isHorizontal, m_arrangement.centralSize));
        share.preferred = share.minimum;
    }
    share.preferred = std::max(share.preferred, share.minimum);
    return share;
}

PictureGrid::Middle PictureGrid::middle(bool isHorizontal, int space) const
{
    const int before = isHorizontal ? Left : Top;
    const int after = isHorizontal ? Right : Bottom;
    std::vector<Share> shares;
    if (m_arrangement.isShown(before))
        shares.push_back(shareOf(before, isHorizontal));
    if (hasCentral() ||
        (!isHorizontal && (m_arrangement.isShown(Left) || m_arrangement.isShown(Right))))
        shares.push_back(shareOfMiddle(isHorizontal));
    if (m_arrangement.isShown(after))
        shares.push_back(shareOf(after, isHorizontal));
    const int count = static_cast<int>(shares.size());
    if (count == 0)
        return {0, space};
    const int separators = (count - 1) * m_metrics.separator;
    const std::vector<int> ends = divided(std::max(0, space - separators), shares);
    Middle result{0, space};
    if (m_arrangement.isShown(before))
        result.begin = ends.front() + m_metrics.separator;
    if (m_arrangement.isShown(after))
        result.end = count > 1 ? ends[index(count - 2)] + (count - 2) * m_metrics.separator
                               : -m_metrics.separator;
    return result;
}

void PictureGrid::divide(const QRect& area)
{
    const Middle columns = middle(true, area.width());
    const Middle rows = middle(false, area.height());
    m_area = area;
    m_central = QRect(area.x() + columns.begin, area.y() + rows.begin, columns.end - columns.begin,
                      rows.end - rows.begin);
}

QRect PictureGrid::sideRect(int side) const
{
    const int separator = m_metrics.separator;
    const bool isColumn = side == Left || side == Right;
    const bool toBegin = m_arrangement.reaches(side, isColumn ? Top : Left);
    const bool toEnd = m_arrangement.reaches(side, isColumn ? Bottom : Right);
    QRect rect = m_area;
    if (isColumn) {
        rect.setTop(toBegin ? m_area.top() : m_central.top());
        rect.setBottom(toEnd ? m_area.bottom() : m_central.bottom());
    } else {
        rect.setLeft(toBegin ? m_area.left() : m_central.left());
        rect.setRight(toEnd ? m_area.right() : m_central.right());
    }
    switch (side) {
    case Left:
        rect.setRight(m_central.left() - separator - 1);
        break;
    case Right:
        rect.setLeft(m_central.right() + separator + 1);
        break;
    case Top:
        rect.setBottom(m_central.top() - separator - 1);
        break;
    default:
        rect.setTop(m_central.bottom() + separator + 1);
    }
    return rect;
}

} // namespace Panorel::Kit::Detail
