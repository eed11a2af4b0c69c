// SPDX-License-Identifier: MIT
#pragma once

#include "value/Arrangement.h"

#include <vector>

namespace Panorel::Kit::Detail {

/**
 * How the units of one side lie to each other, a unit being a dock widget or a tab group: beside or
 * below, and in what order. Blocks that make no difference do not count: those with one unit only,
 * and rows in rows. Two shapes of the same units are equal exactly if each two units lie to each
 * other in the same way.
 */
class SideShape
{
public:
    /**
     * @param root the block that is looked at; -1 for none.
     * @param units for each node of the arrangement the number of the unit that it belongs to; -1
     * for one that is left out.
     */
    SideShape(const Arrangement& arrangement, int root, const std::vector<int>& units);

    bool operator==(const SideShape& other) const;
    bool operator!=(const SideShape& other) const { return !(*this == other); }

    /** The units in reading order. */
    const std::vector<int>& units() const { return m_units; }
    /** Whether the unit at @p place of units() is beside its neighbours and not below them. */
    bool isBeside(std::size_t place) const { return m_isBeside[place]; }

private:
    std::vector<int> m_units;
    // How deep the row or column is nested in which a unit and the one before it part.
    std::vector<int> m_depths;
    std::vector<bool> m_isBeside;
    bool m_isRow = false;
};

} // namespace Panorel::Kit::Detail
