// SPDX-License-Identifier: MIT
#pragma once

#include "value/StatePlaces.h"

#include <vector>

namespace Panorel::Kit::Detail {

/**
 * Measures nested blocks by what they cost Qt.
 *
 * The time for laying out a window grows with the fourth power of the depth of the innermost block
 * that holds a dock widget, and such blocks add up. A block of tabs counts as two levels: it costs
 * more, in time and above all in stack. Places that stay empty cost next to nothing, but the stack.
 */
class NestingMeter
{
public:
    /** Where the block begins with which @p tree exceeds the limit; -1 if none does. */
    static int offsetOfExcess(const StateTree& tree, const StatePlaces& places);

private:
    struct OpenBlock
    {
        const StateItem* block;
        int depth;
        bool holdsDockWidget = false;
        bool hasFullBlockInside = false;
    };

    void open(const StateItem& block);
    void close();

    std::vector<OpenBlock> m_open;
    double m_cost = 0;
    int m_excess = -1;
};

} // namespace Panorel::Kit::Detail
