// SPDX-License-Identifier: MIT
#pragma once

#include "value/PartDifferences.h"
#include "value/SideShape.h"

namespace Panorel::Kit::Detail {

/** Compares the dock widgets of two arrangements. */
class DockDifferences
{
public:
    DockDifferences(const Arrangement& a, const Arrangement& b, QVector<Difference>& differences);

    void find();

private:
    using Pair = PartDifferences::Pair;
    using Aspect = Difference::Aspect;

    // How the units of one side lie in both arrangements, and the place of each in reading order.
    struct Shapes
    {
        SideShape a;
        SideShape b;
        std::vector<int> placesA;
        std::vector<int> placesB;
    };

    void compareNewcomers();
    void compareTabs(const std::vector<Pair>& pairs);
    void compareFronts();
    void compareTabOrder();
    void compareShape(int side);
    Shapes shapesOf(int side) const;
    static std::array<std::vector<int>, 3> suspectsIn(const Shapes& shapes);
    bool isSoleMoved(int unit, int side);
    void leaveOut(int unit);
    void reportMoved(int unit, const Shapes& shapes);
    void compareWindowShapes();
    const Pair& representative(int unit) const;
    void compareSizes();
    static void keepUnits(Arrangement& arrangement, const std::vector<int>& units);
    static bool haveOtherCorners(const Arrangement& a, const Arrangement& b);

    const Arrangement& m_a;
    const Arrangement& m_b;
    const PartPlaces m_placesA;
    const PartPlaces m_placesB;
    PartDifferences m_parts;
    // Tab groups and single dock widgets that stayed what they are, with their members that stayed.
    std::vector<std::vector<Pair>> m_units;
    // For each node of the arrangements its unit, -1 for none.
    std::vector<int> m_unitsA;
    std::vector<int> m_unitsB;
};

} // namespace Panorel::Kit::Detail
