// SPDX-License-Identifier: MIT
#include "value/StateParts.h"

#include <panorel/QtState.h>

namespace Panorel::Kit::Detail {

namespace {

constexpr unsigned char visibleFlag = 1;
constexpr unsigned char floatingFlag = 2;
constexpr unsigned char verticalFlag = 2;
constexpr int noSide = 4;

// One of the four sides, or noSide.
int sideOf(int area)
{
    return area >= 0 && area < noSide ? area : noSide;
}

Qt::DockWidgetArea dockAreaOf(int area)
{
    const Qt::DockWidgetArea areas[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                        Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea,
                                        Qt::NoDockWidgetArea};
    return areas[sideOf(area)];
}

Qt::ToolBarArea toolBarAreaOf(int area)
{
    const Qt::ToolBarArea areas[] = {Qt::LeftToolBarArea, Qt::RightToolBarArea, Qt::TopToolBarArea,
                                     Qt::BottomToolBarArea, Qt::NoToolBarArea};
    return areas[sideOf(area)];
}

// Whether the part at such a place is one of the state's parts, rather than named again.
bool isListed(Place place)
{
    return place == Place::Taken || place == Place::RepeatedNameless;
}

QSize storedSize(const QSize& size)
{
    return size.isEmpty() ? QSize() : size;
}

// A floating tool bar's geometry is packed into two integers: bit 0 of the first says that it
// floats, the next 16 bits hold x; the low 16 bits of the second y; both with 0x7FFF added.
bool isPackedGeometry(const StateToolBar& toolBar)
{
    return (toolBar.values[2] & 1) != 0;
}

QPoint packedPosition(const StateToolBar& toolBar)
{
    const auto x = static_cast<unsigned>(toolBar.values[2]) >> 1;
    const auto y = static_cast<unsigned>(toolBar.values[3]);
    return QPoint(static_cast<int>(x & 0xFFFF) - 0x7FFF, static_cast<int>(y & 0xFFFF) - 0x7FFF);
}

} // namespace

StateParts::StateParts(const StateTree& tree)
    : m_tree(tree)
    , m_places(tree)
{
    for (const StateSection& section : tree.sections) {
        if (holdsToolBars(section))
            addToolBars(section);
        else if (section.marker == floatingMarker)
            addFloating(section);
        else
            addDockAreas(section);
    }
}

void StateParts::addDockAreas(const StateSection& section)
{
    for (int i = section.first; i < section.end; ++i) {
        const StateDock& dock = m_tree.docks[static_cast<std::size_t>(i)];
        addBlock(dock.block, dock.size, dockAreaOf(dock.area));
    }
}

void StateParts::addFloating(const StateSection& section)
{
    for (int i = section.first; i < section.end; ++i) {
        const StateFloating& floating = m_tree.floating[static_cast<std::size_t>(i)];
        const int group = addBlock(floating.block, floating.geometry.size(), Qt::NoDockWidgetArea);
        floatingTabs.append({floating.geometry, group});
    }
}

// Returns the number of the tab group that the block is, or -1.
int StateParts::addBlock(int top, const QSize& size, Qt::DockWidgetArea area)
{
    const std::size_t end = static_cast<std::size_t>(m_tree.items[std::size_t(top)].end);
    open(m_tree.items[static_cast<std::size_t>(top)], size);
    for (auto i = static_cast<std::size_t>(top) + 1; i < end; ++i) {
        while (static_cast<std::size_t>(m_open.back().block->end) <= i)
            m_open.pop_back();
        const StateItem& item = m_tree.items[i];
        ++m_open.back().next;
        if (item.isBlock)
            open(item, sizeInside(item));
        else if (isListed(m_places.items[i]))
            addDockWidget(item, sizeInside(item), area);
    }
    const int group = m_open.front().group;
    m_open.clear();
    return group;
}

void StateParts::open(const StateItem& block, const QSize& size)
{
    OpenBlock opened{&block, size};
    if (block.isTabbed)
        opened.tabs = static_cast<int>(m_open.size());
    else if (!m_open.empty())
        opened.tabs = m_open.back().tabs;
    m_open.push_back(opened);
}

// The size of an item of the innermost open block.
QSize StateParts::sizeInside(const StateItem& item) const
{
    const OpenBlock& around = m_open.back();
    if (around.block->isTabbed)
        return around.size;
    const int extent = item.values[1];
    // As Qt reads it, what is not horizontal is vertical.
    return around.block->orientation == Qt::Horizontal ? QSize(extent, around.size.height())
                                                       : QSize(around.size.width(), extent);
}

void StateParts::addDockWidget(const StateItem& item, const QSize& size, Qt::DockWidgetArea area)
{
    WindowState::DockWidget dockWidget;
    dockWidget.name = item.name;
    dockWidget.area = area;
    dockWidget.isVisible = (item.flags & visibleFlag) != 0;
    dockWidget.isFloating = (item.flags & floatingFlag) != 0;
    dockWidget.offset = item.offset;
    if (dockWidget.isFloating) {
        dockWidget.position = QPoint(item.values[0], item.values[1]);
        dockWidget.size = storedSize(QSize(item.values[2], item.values[3]));
    } else {
        dockWidget.size = storedSize(size);
    }
    if (m_open.back().tabs >= 0) {
        OpenBlock& tabs = m_open[static_cast<std::size_t>(m_open.back().tabs)];
        if (tabs.group < 0)
            tabs.group = m_groups++;
        const int index = tabs.next - 1;
        dockWidget.tab = {tabs.group, index, index == tabs.block->currentIndex};
    }
    dockWidgets.append(dockWidget);
}

void StateParts::addToolBars(const StateSection& section)
{
    const bool isExtended = section.marker == QtState::QToolBarAreaLayout_ToolBarStateMarkerEx;
    for (int i = section.first; i < section.end; ++i) {
        const StateLine& line = m_tree.lines[static_cast<std::size_t>(i)];
        const int number = m_lines[static_cast<std::size_t>(sideOf(line.area))]++;
        for (auto j = static_cast<std::size_t>(line.first); j < static_cast<std::size_t>(line.end);
             ++j) {
            if (m_places.toolBars[j] == Place::Taken)
                addToolBar(m_tree.toolBars[j], line.area, number, isExtended);
        }
    }
}

void StateParts::addToolBar(const StateToolBar& stored, int area, int line, bool canFloat)
{
    WindowState::ToolBar toolBar;
    toolBar.name = stored.name;
    toolBar.area = toolBarAreaOf(area);
    toolBar.line = line;
    toolBar.isVisible = (stored.flags & visibleFlag) != 0;
    toolBar.isVertical = (stored.flags & verticalFlag) != 0;
    toolBar.isFloating = canFloat && isPackedGeometry(stored);
    if (toolBar.isFloating)
        toolBar.position = packedPosition(stored);
    toolBar.offset = stored.offset;
    toolBars.append(toolBar);
}

} // namespace Panorel::Kit::Detail
