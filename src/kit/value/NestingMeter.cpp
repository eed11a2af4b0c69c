// SPDX-License-Identifier: MIT
#include "value/NestingMeter.h"

#include <panorel/kit/WindowState.h>

namespace Panorel::Kit::Detail {

namespace {

double costOf(int depth)
{
    const double square = static_cast<double>(depth) * depth;
    return square * square;
}

} // namespace

int NestingMeter::offsetOfExcess(const StateTree& tree, const StatePlaces& places)
{
    NestingMeter meter;
    for (std::size_t i = 0; i < tree.items.size() && meter.m_excess < 0; ++i) {
        while (!meter.m_open.empty() &&
               static_cast<std::size_t>(meter.m_open.back().block->end) <= i)
            meter.close();
        const StateItem& item = tree.items[i];
        if (item.isBlock)
            meter.open(item);
        else if (places.items[i] == Place::Taken)
            meter.m_open.back().holdsDockWidget = true;
    }
    while (!meter.m_open.empty() && meter.m_excess < 0)
        meter.close();
    return meter.m_excess;
}

void NestingMeter::open(const StateItem& block)
{
    const int around = m_open.empty() ? 0 : m_open.back().depth;
    const int depth = around + (block.isTabbed ? 2 : 1);
    if (depth > WindowState::Limits::standard().nesting)
        m_excess = block.offset;
    m_open.push_back({&block, depth});
}

void NestingMeter::close()
{
    const OpenBlock closed = m_open.back();
    m_open.pop_back();
    if (closed.holdsDockWidget && !closed.hasFullBlockInside)
        m_cost += costOf(closed.depth);
    if (m_cost > costOf(WindowState::Limits::standard().nesting))
        m_excess = closed.block->offset;
    if (!m_open.empty() && (closed.holdsDockWidget || closed.hasFullBlockInside))
        m_open.back().hasFullBlockInside = true;
}

} // namespace Panorel::Kit::Detail
