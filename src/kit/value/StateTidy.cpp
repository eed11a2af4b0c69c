// SPDX-License-Identifier: MIT
#include "value/StateTidy.h"

#include <panorel/QtState.h>

#include <QtEndian>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

constexpr int intSize = sizeof(qint32);

int bytesOf(const StateItem& item)
{
    const int values = 1 + 4 * intSize;
    return item.isBlock ? values : values + intSize + 2 * item.name.size() + 1;
}

int bytesOf(const StateToolBar& toolBar, int valueCount)
{
    return intSize + 2 * toolBar.name.size() + 1 + valueCount * intSize;
}

} // namespace

QByteArray StateTidy::tidied(const StateTree& tree, const StatePlaces& places)
{
    StateTidy tidy(tree, places);
    tidy.copy(0, 2 * intSize);
    for (const StateSection& section : tree.sections) {
        if (holdsToolBars(section))
            tidy.writeToolBars(section);
        else if (section.marker == floatingMarker)
            tidy.writeFloating(section);
        else
            tidy.writeDockAreas(section);
    }
    return tidy.m_bytes;
}

StateTidy::StateTidy(const StateTree& tree, const StatePlaces& places)
    : m_tree(tree)
    , m_places(places)
    , m_parents(tree.items.size(), -1)
    , m_isKept(tree.items.size(), true)
    , m_blocks(tree.items.size())
{
    m_bytes.reserve(tree.bytes.size());
    findKept();
    findFrontTabs();
}

void StateTidy::findKept()
{
    std::vector<int> open;
    for (std::size_t i = 0; i < m_tree.items.size(); ++i) {
        const auto endOf = [this](int block) {
            return static_cast<std::size_t>(m_tree.items[static_cast<std::size_t>(block)].end);
        };
        while (!open.empty() && endOf(open.back()) <= i)
            open.pop_back();
        m_parents[i] = open.empty() ? -1 : open.back();
        if (m_tree.items[i].isBlock)
            open.push_back(static_cast<int>(i));
    }
    // From the last to the first, so that what is inside a block comes before the block.
    for (std::size_t i = m_tree.items.size(); i-- > 0;) {
        const bool wasEmpty = m_tree.items[i].end == static_cast<int>(i) + 1;
        m_isKept[i] = m_tree.items[i].isBlock ? wasEmpty || m_blocks[i].itemsKept > 0
                                              : !StatePlaces::isRepeat(m_places.items[i]);
        if (m_isKept[i] && m_parents[i] >= 0)
            ++m_blocks[static_cast<std::size_t>(m_parents[i])].itemsKept;
    }
}

void StateTidy::findFrontTabs()
{
    for (std::size_t i = 0; i < m_tree.items.size(); ++i) {
        m_blocks[i].currentIndex = m_tree.items[i].currentIndex;
        if (m_parents[i] >= 0)
            countIn(static_cast<std::size_t>(m_parents[i]), i);
    }
}

// Counts an item in its block, and finds the new number of the tab in front. If its tab goes, the
// first one comes to the front, as it does in a window whose tab in front is an empty place.
void StateTidy::countIn(std::size_t block, std::size_t item)
{
    if (!m_tree.items[item].isBlock && m_tree.items[item].name.isEmpty())
        return;
    Block& counts = m_blocks[block];
    if (counts.counted++ == m_tree.items[block].currentIndex)
        counts.currentIndex = m_isKept[item] ? counts.countedKept : 0;
    counts.countedKept += m_isKept[item] ? 1 : 0;
}

void StateTidy::writeDockAreas(const StateSection& section)
{
    const auto first = m_tree.docks.begin() + section.first;
    const auto end = m_tree.docks.begin() + section.end;
    copy(section.offset, 1);
    writeInt(static_cast<int>(
        std::count_if(first, end, [this](const StateDock& dock) { return isKept(dock.block); })));
    for (auto dock = first; dock != end; ++dock) {
        if (!isKept(dock->block))
            continue;
        copy(dock->offset, 3 * intSize);
        writeBlock(dock->block);
    }
    writeInt(section.centralSize.width());
    writeInt(section.centralSize.height());
    for (const int corner : section.corners)
        writeInt(corner);
}

void StateTidy::writeFloating(const StateSection& section)
{
    for (int i = section.first; i < section.end; ++i) {
        const StateFloating& floating = m_tree.floating[static_cast<std::size_t>(i)];
        if (!isKept(floating.block))
            continue;
        copy(floating.offset, 1 + 4 * intSize);
        writeBlock(floating.block);
    }
}

void StateTidy::writeToolBars(const StateSection& section)
{
    const bool isExtended = section.marker == QtState::QToolBarAreaLayout_ToolBarStateMarkerEx;
    copy(section.offset, 1);
    writeInt(section.end - section.first);
    for (int i = section.first; i < section.end; ++i)
        writeLine(m_tree.lines[static_cast<std::size_t>(i)], isExtended ? 4 : 3);
}

void StateTidy::writeLine(const StateLine& line, int valueCount)
{
    const auto first = static_cast<std::size_t>(line.first);
    const auto end = static_cast<std::size_t>(line.end);
    int count = 0;
    for (std::size_t i = first; i < end; ++i)
        count += StatePlaces::isRepeat(m_places.toolBars[i]) ? 0 : 1;
    writeInt(line.area);
    writeInt(count);
    for (std::size_t i = first; i < end; ++i) {
        if (!StatePlaces::isRepeat(m_places.toolBars[i]))
            copy(m_tree.toolBars[i].offset, bytesOf(m_tree.toolBars[i], valueCount));
    }
}

void StateTidy::writeBlock(int top)
{
    const auto first = static_cast<std::size_t>(top);
    writeBlockHead(first);
    for (auto i = first + 1; i < static_cast<std::size_t>(m_tree.items[first].end); ++i) {
        if (!m_isKept[i])
            continue;
        const StateItem& item = m_tree.items[i];
        copy(item.offset, bytesOf(item));
        if (item.isBlock)
            writeBlockHead(i);
    }
}

void StateTidy::writeBlockHead(std::size_t block)
{
    const StateItem& head = m_tree.items[block];
    if (head.isTabbed) {
        m_bytes.append(static_cast<char>(QtState::QDockAreaLayoutInfo_TabMarker));
        writeInt(m_blocks[block].currentIndex);
    } else {
        m_bytes.append(static_cast<char>(QtState::QDockAreaLayoutInfo_SequenceMarker));
    }
    m_bytes.append(static_cast<char>(head.orientation));
    writeInt(m_blocks[block].itemsKept);
}

void StateTidy::copy(int offset, int size)
{
    m_bytes.append(m_tree.bytes.constData() + offset, size);
}

void StateTidy::writeInt(int value)
{
    char bytes[intSize];
    qToBigEndian<qint32>(value, bytes);
    m_bytes.append(bytes, intSize);
}

} // namespace Panorel::Kit::Detail
