// SPDX-License-Identifier: MIT
#include "value/SizeMeter.h"

#include <panorel/QtState.h>
#include <panorel/kit/WindowState.h>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

constexpr std::size_t sides = 4;
constexpr int itemsOfWindow = 100;

// Whether the dock areas are as a window writes them: one section, with each side once at most.
bool isAsWritten(const StateTree& tree)
{
    const auto holdsDocks = [](const StateSection& section) {
        return section.marker == QtState::QDockAreaLayout_DockWidgetStateMarker;
    };
    return tree.docks.size() <= sides &&
           std::count_if(tree.sections.begin(), tree.sections.end(), holdsDocks) <= 1;
}

} // namespace

int SizeMeter::offsetOfExcess(const StateTree& tree, const StatePlaces& places)
{
    SizeMeter meter(tree, places);
    for (const StateSection& section : tree.sections) {
        if (holdsToolBars(section))
            meter.addLines(section);
        else if (section.marker == floatingMarker)
            meter.addFloating(section);
        else
            meter.addDocks(section);
    }
    return meter.m_excess;
}

SizeMeter::SizeMeter(const StateTree& tree, const StatePlaces& places)
    : m_tree(tree)
    , m_places(places)
    , m_countsRepeats(!isAsWritten(tree))
{}

void SizeMeter::addDocks(const StateSection& section)
{
    for (int i = section.first; i < section.end; ++i) {
        const StateDock& dock = m_tree.docks[static_cast<std::size_t>(i)];
        m_items += 1 + dockWidgetsIn(dock.block);
        add(m_items, dock.offset);
    }
    add(1 + m_items, section.offset);
}

void SizeMeter::addFloating(const StateSection& section)
{
    for (int i = section.first; i < section.end; ++i) {
        const StateFloating& floating = m_tree.floating[static_cast<std::size_t>(i)];
        add(itemsOfWindow + dockWidgetsIn(floating.block), floating.offset);
    }
}

void SizeMeter::addLines(const StateSection& section)
{
    for (int i = section.first; i < section.end; ++i) {
        const StateLine& line = m_tree.lines[static_cast<std::size_t>(i)];
        ++m_toolBars;
        for (auto j = static_cast<std::size_t>(line.first); j < static_cast<std::size_t>(line.end);
             ++j)
            m_toolBars += StatePlaces::isRepeat(m_places.toolBars[j]) ? 0 : 1;
        add(m_toolBars, line.offset);
    }
    add(1 + m_toolBars, section.offset);
}

qint64 SizeMeter::dockWidgetsIn(int block) const
{
    const auto top = static_cast<std::size_t>(block);
    qint64 count = 0;
    for (std::size_t i = top + 1; i < static_cast<std::size_t>(m_tree.items[top].end); ++i) {
        const bool counts = m_countsRepeats || !StatePlaces::isRepeat(m_places.items[i]);
        count += !m_tree.items[i].isBlock && counts ? 1 : 0;
    }
    return count;
}

void SizeMeter::add(qint64 count, int offset)
{
    m_described += count;
    if (m_excess < 0 && m_described > WindowState::Limits::standard().items)
        m_excess = offset;
}

} // namespace Panorel::Kit::Detail
