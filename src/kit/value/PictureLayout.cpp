// SPDX-License-Identifier: MIT
#include "value/PictureLayout.h"

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

using Node = Arrangement::Node;

constexpr int largestDistance = 8192;
const QSize usualWindow(640, 480);
const QSize usualFloating(240, 180);

std::size_t index(int number)
{
    return static_cast<std::size_t>(number);
}

int bounded(int extent)
{
    return qBound(0, extent, largestExtent);
}

QRect onDesktop(const QPoint& position, const QSize& stored)
{
    const QSize size = stored.isEmpty() ? usualFloating : stored;
    return QRect(qBound(-largestDistance, position.x(), largestWindow),
                 qBound(-largestDistance, position.y(), largestWindow),
                 qMin(size.width(), largestDistance), qMin(size.height(), largestDistance));
}

} // namespace

PictureLayout::PictureLayout(const Arrangement& arrangement)
    : m_arrangement(arrangement)
    , m_metrics(arrangement)
    , m_grid(arrangement, m_metrics)
{}

QSize PictureLayout::windowSize() const
{
    const QSize size = m_grid.isLaidOut() ? m_grid.storedSize() : usualWindow;
    const QSize around(m_metrics.origin.x() + m_metrics.beyond.width(),
                       m_metrics.origin.y() + m_metrics.beyond.height());
    return (size + around).boundedTo(QSize(largestWindow, largestWindow));
}

QVector<Picture::Part> PictureLayout::parts(const QSize& window)
{
    m_window = QRect(QPoint(0, 0), window.boundedTo(QSize(largestWindow, largestWindow)));
    const QSize beyond = m_metrics.beyond;
    const QRect area = m_window.adjusted(m_metrics.origin.x(), m_metrics.origin.y(),
                                         -beyond.width(), -beyond.height());
    m_rects.assign(m_arrangement.nodes.size(), QRect());
    m_parts.clear();
    m_grid.divide(area);
    addSides();
    addToolBars(area);
    addFloating();
    return m_parts;
}

std::vector<QRect> PictureLayout::dockRects(const QSize& area)
{
    m_rects.assign(m_arrangement.nodes.size(), QRect());
    m_grid.divide(QRect(QPoint(0, 0), area));
    addSides();
    return m_rects;
}

void PictureLayout::addSides()
{
    if (m_grid.hasCentral()) {
        Picture::Part central;
        central.rect = m_grid.central();
        m_parts.append(central);
    }
    for (int side = PictureGrid::Left; side <= PictureGrid::Bottom; ++side) {
        if (m_arrangement.isShown(side))
            placeInside(m_arrangement.sides[index(side)].node, m_grid.sideRect(side));
    }
}

void PictureLayout::placeInside(int container, const QRect& rect)
{
    m_rects[index(container)] = rect;
    for (int i = container; i < m_arrangement.at(container).end; ++i) {
        const Node& node = m_arrangement.at(i);
        if (!node.isShown)
            continue;
        if (node.isTabbed) {
            addPages(i);
            i = node.end - 1;
        } else if (node.isBlock) {
            placeRow(i);
        } else {
            add(Kind::DockWidget, i, m_rects[index(i)]);
        }
    }
}

Share PictureLayout::shareOfItem(int node, bool isHorizontal) const
{
    const std::array<int, 4>& values = m_arrangement.at(node).item->values;
    const int extent = values[1] > 0 ? bounded(values[1]) : usualExtent;
    const QSize least = m_grid.minimumSizes()[index(node)];
    const double minimum = std::min(isHorizontal ? least.width() : least.height(), extent);
    const double maximum = values[3] >= extent ? bounded(values[3]) : largestExtent;
    return {minimum, minimum, maximum, static_cast<double>(extent)};
}

void PictureLayout::placeRow(int block)
{
    const bool isHorizontal = m_arrangement.at(block).isHorizontal;
    const QRect rect = m_rects[index(block)];
    std::vector<Share> shares;
    double most = 0;
    for (int i = m_arrangement.firstShown(block); i >= 0; i = m_arrangement.nextShown(i)) {
        shares.push_back(shareOfItem(i, isHorizontal));
        most += shares.back().maximum;
    }
    const qint64 separators = (qint64(shares.size()) - 1) * m_metrics.separator;
    const int space = isHorizontal ? rect.width() : rect.height();
    const int free = static_cast<int>(std::max<qint64>(0, space - separators));
    // What none of them can take goes to the last one.
    if (most < free)
        shares.back().maximum = largestExtent;
    const std::vector<int> ends = divided(free, shares);
    int begin = isHorizontal ? rect.x() : rect.y();
    std::size_t number = 0;
    for (int i = m_arrangement.firstShown(block); i >= 0; i = m_arrangement.nextShown(i)) {
        const int extent = ends[number] - (number > 0 ? ends[number - 1] : 0);
        m_rects[index(i)] = isHorizontal ? QRect(begin, rect.y(), extent, rect.height())
                                         : QRect(rect.x(), begin, rect.width(), extent);
        begin += extent + m_metrics.separator;
        ++number;
    }
}

QStringList PictureLayout::pagesOf(int tabs) const
{
    QStringList names;
    if (m_arrangement.at(tabs).pageCount < 2)
        return names;
    for (int page = m_arrangement.firstShown(tabs); page >= 0;
         page = m_arrangement.nextShown(page)) {
        if (!m_arrangement.at(page).isBlock)
            names.append(m_arrangement.at(page).item->name);
    }
    return names;
}

// Below the page, where a main window has it by default.
QRect PictureLayout::tabBarOf(int tabs) const
{
    const QRect rect = m_rects[index(tabs)];
    if (m_arrangement.at(tabs).pageCount < 2)
        return QRect();
    const int height = std::min(m_metrics.tabBar, rect.height() / 2);
    return QRect(rect.x(), rect.bottom() + 1 - height, rect.width(), height);
}

void PictureLayout::addPages(int tabs)
{
    if (m_arrangement.at(tabs).front < 0)
        return;
    const QRect bar = tabBarOf(tabs);
    const int front = m_arrangement.at(tabs).front;
    m_rects[index(front)] = m_rects[index(tabs)].adjusted(0, 0, 0, -bar.height());
    add(Kind::DockWidget, front, m_rects[index(front)]);
    m_parts.last().tabs = pagesOf(tabs);
    m_parts.last().tabBar = bar;
}

void PictureLayout::add(Kind kind, int node, const QRect& rect)
{
    Picture::Part part;
    part.kind = kind;
    part.name = m_arrangement.at(node).item->name;
    part.rect = rect;
    m_parts.append(part);
}

// Those at the top and bottom are as wide as the window; of several lines the first is at its edge.
void PictureLayout::addToolBars(const QRect& area)
{
    for (int side = PictureGrid::Left; side <= PictureGrid::Bottom; ++side) {
        const bool isHorizontal = side == PictureGrid::Top || side == PictureGrid::Bottom;
        const int across = isHorizontal ? m_metrics.horizontalLine : m_metrics.verticalLine;
        int distance = side == PictureGrid::Top ? m_metrics.menuBar : 0;
        for (const Arrangement::Line& line : m_arrangement.lines[index(side)]) {
            QRect rect = isHorizontal
                             ? m_window
                             : QRect(m_window.x(), area.y(), m_window.width(), area.height());
            if (isHorizontal)
                rect.setHeight(across);
            else
                rect.setWidth(across);
            switch (side) {
            case PictureGrid::Left:
                rect.moveLeft(m_window.left() + distance);
                break;
            case PictureGrid::Right:
                rect.moveRight(m_window.right() - distance);
                break;
            case PictureGrid::Top:
                rect.moveTop(m_window.top() + distance);
                break;
            default:
                rect.moveBottom(m_window.bottom() - distance);
            }
            distance += across;
            if (m_window.contains(rect))
                addLine(line, rect, isHorizontal);
        }
    }
}

// The stored positions are where the bars of a line begin; each reaches to the next one, and the
// last to the end. Without such positions all are alike.
void PictureLayout::addLine(const Arrangement::Line& line, const QRect& rect, bool isHorizontal)
{
    const int length = isHorizontal ? rect.width() : rect.height();
    const int count = static_cast<int>(line.size());
    bool isTold = true;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const int before = i > 0 ? line[i - 1].bar->values[0] : -1;
        const int position = line[i].bar->values[0];
        isTold = isTold && position > before && position < length && (i > 0 || position == 0);
    }
    const auto beginOf = [&](int i) {
        if (i == count)
            return length;
        return isTold ? line[index(i)].bar->values[0]
                      : static_cast<int>(qint64(length) * i / count);
    };
    for (int i = 0; i < count; ++i) {
        const int extent = beginOf(i + 1) - beginOf(i);
        addBar(line[index(i)],
               isHorizontal ? QRect(rect.x() + beginOf(i), rect.y(), extent, rect.height())
                            : QRect(rect.x(), rect.y() + beginOf(i), rect.width(), extent),
               !isHorizontal);
    }
}

void PictureLayout::addBar(const Arrangement::Bar& bar, const QRect& rect, bool isVertical)
{
    Picture::Part part;
    part.kind = Kind::ToolBar;
    part.name = bar.bar->name;
    part.rect = rect;
    part.isVertical = isVertical;
    part.isFloating = bar.isFloating;
    m_parts.append(part);
}

void PictureLayout::addFloating()
{
    for (const Arrangement::FloatingDock& dock : m_arrangement.floatingDocks)
        add(Kind::FloatingWindow, dock.node, onDesktop(dock.position, dock.size));
    for (const Arrangement::Container& group : m_arrangement.groups) {
        if (m_arrangement.at(group.node).isShown)
            addGroup(group);
    }
    for (const Arrangement::Bar& bar : m_arrangement.floatingBars)
        addBar(bar, onDesktop(bar.geometry.topLeft(), bar.geometry.size()),
               (bar.bar->flags & 2) != 0);
}

void PictureLayout::addGroup(const Arrangement::Container& group)
{
    const QRect rect = onDesktop(group.position, group.size);
    const int front = m_arrangement.at(group.node).front;
    if (front < 0) {
        int first = m_arrangement.firstShown(group.node);
        while (m_arrangement.at(first).isBlock)
            first = m_arrangement.firstShown(first);
        add(Kind::FloatingWindow, first, rect);
        placeInside(group.node, rect);
        return;
    }
    m_rects[index(group.node)] = rect;
    add(Kind::FloatingWindow, front, rect);
    m_parts.last().tabs = pagesOf(group.node);
    m_parts.last().tabBar = tabBarOf(group.node);
}

} // namespace Panorel::Kit::Detail
