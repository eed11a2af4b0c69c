// SPDX-License-Identifier: MIT
#include "value/Arrangement.h"

#include "value/StatePlaces.h"

#include <panorel/QtState.h>

#include <limits>

namespace Panorel::Kit::Detail {

namespace {

constexpr unsigned char visibleFlag = 1;
constexpr unsigned char floatingFlag = 2;

std::size_t index(int number)
{
    return static_cast<std::size_t>(number);
}

bool isSide(int area)
{
    return area >= 0 && area < 4;
}

// The corner between a side at the left or right and one at the top or bottom.
int cornerOf(int side, int other)
{
    const bool isRight = side == 1 || other == 1;
    const bool isBottom = side == 3 || other == 3;
    return (isBottom ? 2 : 0) + (isRight ? 1 : 0);
}

// A floating tool bar's geometry is packed into two integers. Bit 0 of the first says that it
// floats, the next 16 bits are x, the rest is the width; the second is y in its low half and the
// height in its high half. 0x7FFF is added to both coordinates.
QRect unpacked(unsigned first, unsigned second)
{
    first >>= 1;
    return QRect(static_cast<int>(first & 0xFFFF) - 0x7FFF,
                 static_cast<int>(second & 0xFFFF) - 0x7FFF, static_cast<int>(first >> 16),
                 static_cast<int>(second >> 16));
}

// What QRect::size() is, without its overflow.
QSize sizeOf(const QRect& rect)
{
    const auto extent = [](int first, int last) {
        constexpr qint64 largest = std::numeric_limits<int>::max();
        return static_cast<int>(qBound<qint64>(-1, qint64(last) - first + 1, largest));
    };
    return QSize(extent(rect.left(), rect.right()), extent(rect.top(), rect.bottom()));
}

std::vector<bool> takenOf(const std::vector<Place>& places)
{
    std::vector<bool> taken(places.size());
    for (std::size_t i = 0; i < places.size(); ++i)
        taken[i] = places[i] == Place::Taken;
    return taken;
}

} // namespace

Arrangement::Arrangement(const StateTree& tree)
    : m_tree(tree)
{
    const StatePlaces places(tree);
    m_isTaken = takenOf(places.items);
    m_isBarTaken = takenOf(places.toolBars);
    for (const StateSection& section : tree.sections)
        addSection(section);
    for (std::size_t side = 0; side < sides.size(); ++side)
        addSide(sides[side], m_docks[side]);
    for (const StateFloating& floating : tree.floating) {
        Container& group = groups.emplace_back();
        group.position = floating.geometry.topLeft();
        group.size = sizeOf(floating.geometry);
        beginContainer(group, tree.items[index(floating.block)]);
        addItems(floating.block, group.node);
    }
    findFloating();
    findPages();
}

void Arrangement::addSection(const StateSection& section)
{
    if (holdsToolBars(section)) {
        const bool canFloat = section.marker == QtState::QToolBarAreaLayout_ToolBarStateMarkerEx;
        for (int i = section.first; i < section.end; ++i)
            addLine(m_tree.lines[index(i)], canFloat);
    } else if (section.marker == QtState::QDockAreaLayout_DockWidgetStateMarker) {
        centralSize = section.centralSize;
        corners = section.corners;
        for (int i = section.first; i < section.end; ++i) {
            const StateDock& dock = m_tree.docks[index(i)];
            if (isSide(dock.area))
                m_docks[index(dock.area)].push_back(&dock);
        }
    }
}

// A window adds the items of a side's later records to those of the earlier ones.
void Arrangement::addSide(Container& side, const std::vector<const StateDock*>& docks)
{
    if (docks.empty())
        return;
    side.size = docks.back()->size;
    beginContainer(side, m_tree.items[index(docks.back()->block)]);
    for (const StateDock* const dock : docks)
        addItems(dock->block, side.node);
}

void Arrangement::beginContainer(Container& container, const StateItem& block)
{
    container.node = static_cast<int>(nodes.size());
    Node& node = nodes.emplace_back();
    node.item = &block;
    node.isBlock = true;
    node.isTabbed = block.isTabbed;
    node.isHorizontal = block.orientation == Qt::Horizontal;
}

// Adds what is inside the stored block @p top to the container with the block @p container, which
// is the last one so far.
void Arrangement::addItems(int top, int container)
{
    const int end = m_tree.items[index(top)].end;
    // From an item's index to its node's; the same for all of them.
    const int shift = static_cast<int>(nodes.size()) - (top + 1);
    int parent = container;
    for (int i = top + 1; i < end; ++i) {
        while (parent != container && at(parent).end <= i + shift)
            parent = at(parent).parent;
        add(i, parent);
        nodes.back().end = m_tree.items[index(i)].end + shift;
        if (nodes.back().isBlock)
            parent = i + shift;
    }
    nodes[index(container)].end = static_cast<int>(nodes.size());
}

void Arrangement::add(int item, int parent)
{
    const StateItem& stored = m_tree.items[index(item)];
    Node node;
    node.item = &stored;
    node.parent = parent;
    node.isBlock = stored.isBlock;
    node.isTabbed = stored.isBlock && stored.isTabbed;
    node.isHorizontal = stored.orientation == Qt::Horizontal;
    node.isTaken = !stored.isBlock && m_isTaken[index(item)];
    node.isShown = node.isTaken && (stored.flags & visibleFlag) != 0;
    nodes.push_back(node);
}

void Arrangement::findFloating()
{
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        Node& node = nodes[i];
        if (!node.isShown || (node.item->flags & floatingFlag) == 0)
            continue;
        const std::array<int, 4>& values = node.item->values;
        floatingDocks.push_back(
            {static_cast<int>(i), QPoint(values[0], values[1]), QSize(values[2], values[3])});
        node.isShown = false;
    }
}

void Arrangement::keepOnly(const std::vector<bool>& nodesToKeep)
{
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        Node& node = nodes[i];
        node.isShown = node.isShown && !node.isBlock && nodesToKeep[i];
        node.pageCount = 0;
        node.front = -1;
    }
    findPages();
}

void Arrangement::findPages()
{
    for (std::size_t i = nodes.size(); i-- > 0;) {
        if (nodes[i].isShown && nodes[i].parent >= 0)
            nodes[index(nodes[i].parent)].isShown = true;
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        Node& tabs = nodes[i];
        if (!tabs.isTabbed)
            continue;
        int place = 0;
        for (int page = static_cast<int>(i) + 1; page < tabs.end; page = at(page).end, ++place) {
            if (!at(page).isShown || at(page).isBlock)
                continue;
            ++tabs.pageCount;
            // The first page stays in front if the stored one is not seen.
            if (tabs.front < 0 || place == tabs.item->currentIndex)
                tabs.front = page;
        }
    }
}

void Arrangement::addLine(const StateLine& line, bool canFloat)
{
    if (!isSide(line.area))
        return;
    Line shown;
    for (int i = line.first; i < line.end; ++i) {
        if (!m_isBarTaken[index(i)])
            continue;
        Bar bar;
        bar.bar = &m_tree.toolBars[index(i)];
        bar.isFloating = canFloat && (bar.bar->values[2] & 1) != 0;
        if (bar.isFloating)
            bar.geometry = unpacked(static_cast<unsigned>(bar.bar->values[2]),
                                    static_cast<unsigned>(bar.bar->values[3]));
        if ((bar.bar->flags & visibleFlag) == 0)
            hiddenBars.push_back(bar);
        else
            (bar.isFloating ? floatingBars : shown).push_back(bar);
    }
    if (!shown.empty())
        lines[index(line.area)].push_back(shown);
}

bool Arrangement::isShown(int side) const
{
    const int node = sides[index(side)].node;
    return node >= 0 && at(node).isShown;
}

bool Arrangement::reaches(int side, int other) const
{
    // Qt::DockWidgetArea counts the sides in bits.
    return !isShown(other) || corners[index(cornerOf(side, other))] == 1 << side;
}

int Arrangement::firstShown(int block) const
{
    return at(block).end > block + 1 ? (at(block + 1).isShown ? block + 1 : nextShown(block + 1))
                                     : -1;
}

int Arrangement::nextShown(int node) const
{
    const int end = at(node).parent >= 0 ? at(at(node).parent).end : node;
    for (int next = at(node).end; next < end; next = at(next).end) {
        if (at(next).isShown)
            return next;
    }
    return -1;
}

} // namespace Panorel::Kit::Detail
