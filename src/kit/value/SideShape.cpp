// SPDX-License-Identifier: MIT
#include "value/SideShape.h"

namespace Panorel::Kit::Detail {

namespace {

// What a node of the side is for its shape.
struct Place
{
    // Whether there is a unit in it, and how many of its items have one.
    bool hasUnit = false;
    int branches = 0;
    // Of the innermost row or column that it is in or that it is: nesting depth, -1 outside of all.
    int depth = -1;
    bool isRow = false;
};

} // namespace

SideShape::SideShape(const Arrangement& arrangement, int root, const std::vector<int>& units)
{
    if (root < 0)
        return;
    const int end = arrangement.at(root).end;
    const auto at = [root](int node) { return static_cast<std::size_t>(node - root); };
    std::vector<Place> places(static_cast<std::size_t>(end - root));
    for (int i = end - 1; i > root; --i) {
        Place& place = places[at(i)];
        place.hasUnit = place.hasUnit || units[static_cast<std::size_t>(i)] >= 0;
        if (!place.hasUnit)
            continue;
        Place& around = places[at(arrangement.at(i).parent)];
        around.hasUnit = true;
        ++around.branches;
    }
    int last = -1;
    bool isFirst = true;
    for (int i = root; i < end; ++i) {
        const Arrangement::Node& node = arrangement.at(i);
        Place& place = places[at(i)];
        if (!place.hasUnit)
            continue;
        const Place around = i == root ? Place() : places[at(node.parent)];
        place.depth = around.depth;
        place.isRow = around.isRow;
        if (node.isBlock && !node.isTabbed && place.branches > 1 &&
            (around.depth < 0 || around.isRow != node.isHorizontal)) {
            ++place.depth;
            place.isRow = node.isHorizontal;
        }
        // The first node with a unit after another unit is where the two part.
        if (!isFirst && last == -1)
            last = around.depth;
        const int unit = units[static_cast<std::size_t>(i)];
        if (unit < 0)
            continue;
        if (m_units.empty() || m_units.back() != unit) {
            m_depths.push_back(m_units.empty() ? 0 : last);
            m_units.push_back(unit);
            m_isBeside.push_back(around.isRow);
        }
        isFirst = false;
        last = -1;
    }
    for (const Place& place : places) {
        if (place.depth == 0) {
            m_isRow = place.isRow;
            break;
        }
    }
}

bool SideShape::operator==(const SideShape& other) const
{
    return m_units == other.m_units && m_depths == other.m_depths &&
           (m_isRow == other.m_isRow || m_units.size() < 2);
}

} // namespace Panorel::Kit::Detail
