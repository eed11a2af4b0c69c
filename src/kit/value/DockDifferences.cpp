// SPDX-License-Identifier: MIT
#include "value/DockDifferences.h"

#include "value/GroupMatch.h"
#include "value/PictureLayout.h"

#include <algorithm>
#include <array>

namespace Panorel::Kit::Detail {

namespace {

// How many dock widgets are tried as the only one that was moved on a side.
constexpr std::size_t mostTries = 32;

std::size_t index(int number)
{
    return static_cast<std::size_t>(number);
}

QString direction(bool isBeside)
{
    return isBeside ? QStringLiteral("beside") : QStringLiteral("below");
}

} // namespace

DockDifferences::DockDifferences(const Arrangement& a, const Arrangement& b,
                                 QVector<Difference>& differences)
    : m_a(a)
    , m_b(b)
    , m_placesA(dockPlaces(a))
    , m_placesB(dockPlaces(b))
    , m_parts(Difference::Part::DockWidget, m_placesA, m_placesB, differences)
    , m_unitsA(a.nodes.size(), -1)
    , m_unitsB(b.nodes.size(), -1)
{}

void DockDifferences::find()
{
    const std::vector<Pair> pairs = m_parts.compareEach();
    for (const Pair& pair : pairs) {
        if (pair.a->kind == PartPlace::Floating)
            compareFloating(m_parts, pair);
    }
    compareNewcomers();
    compareTabs(pairs);
    compareFronts();
    compareTabOrder();
    for (int side = 0; side < 4; ++side)
        compareShape(side);
    compareWindowShapes();
    compareSizes();
}

// Who comes from another side or from the desktop may come into a tab group.
void DockDifferences::compareNewcomers()
{
    for (const PartPlace& b : m_placesB.parts) {
        const PartPlace* const a = m_placesA.find(b.key);
        if (!a || a->kind == PartPlace::Closed || b.kind == PartPlace::Closed ||
            (a->kind == b.kind && a->side == b.side))
            continue;
        const QStringList partners = partnersOf(m_b, b);
        if (!partners.isEmpty())
            m_parts.add(b, Aspect::Tabs, partnersOf(m_a, *a), partners);
    }
}

void DockDifferences::compareTabs(const std::vector<Pair>& pairs)
{
    std::vector<GroupPair> groups;
    groups.reserve(pairs.size());
    for (const Pair& pair : pairs)
        groups.push_back({pair.a->group, pair.b->group, pair.b->place});
    const std::vector<bool> stayed = stayedInGroup(groups);
    QHash<int, int> numbers;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const Pair& pair = pairs[i];
        if (!stayed[i]) {
            m_parts.add(*pair.b, Aspect::Tabs, partnersOf(m_a, *pair.a), partnersOf(m_b, *pair.b));
            continue;
        }
        if (!numbers.contains(pair.a->group)) {
            numbers.insert(pair.a->group, static_cast<int>(m_units.size()));
            m_units.emplace_back();
        }
        const int unit = numbers[pair.a->group];
        m_units[index(unit)].push_back(pair);
        // One that floats is stored in a side, too.
        if (pair.a->kind == PartPlace::Floating)
            continue;
        m_unitsA[index(pair.a->node)] = unit;
        m_unitsB[index(pair.b->node)] = unit;
    }
}

// Another page in front is reported unless one of the two has come or gone.
void DockDifferences::compareFronts()
{
    for (const std::vector<Pair>& unit : m_units) {
        const int frontA = m_a.at(unit.front().a->group).front;
        const int frontB = m_b.at(unit.front().b->group).front;
        const Pair* a = nullptr;
        const Pair* b = nullptr;
        for (const Pair& pair : unit) {
            a = pair.a->node == frontA ? &pair : a;
            b = pair.b->node == frontB ? &pair : b;
        }
        if (a && b && a != b)
            m_parts.add(*b->b, Aspect::Tabs, QStringList(a->a->name), QStringList(b->b->name));
    }
}

void DockDifferences::compareTabOrder()
{
    for (const std::vector<Pair>& unit : m_units) {
        std::vector<int> places;
        places.reserve(unit.size());
        for (const Pair& pair : unit)
            places.push_back(pair.b->place);
        const std::vector<bool> stayed = stayedInOrder(places);
        std::vector<int> sorted = places;
        std::sort(sorted.begin(), sorted.end());
        for (std::size_t i = 0; i < unit.size(); ++i) {
            if (stayed[i])
                continue;
            const auto found = std::lower_bound(sorted.begin(), sorted.end(), places[i]);
            m_parts.add(*unit[i].b, Aspect::Order, static_cast<int>(i),
                        static_cast<int>(found - sorted.begin()));
        }
    }
}

// If only one was moved, the others are arranged as before. Otherwise those that may have been
// moved are reported, the likeliest first, until the others are arranged as before.
void DockDifferences::compareShape(int side)
{
    const Shapes shapes = shapesOf(side);
    if (shapes.a == shapes.b)
        return;
    const std::array<std::vector<int>, 3> suspects = suspectsIn(shapes);
    std::size_t tries = 0;
    for (const std::vector<int>& units : suspects) {
        for (const int unit : units) {
            if (++tries > mostTries || !isSoleMoved(unit, side))
                continue;
            reportMoved(unit, shapes);
            return;
        }
    }
    for (const std::vector<int>& units : suspects) {
        const Shapes rest = shapesOf(side);
        if (rest.a == rest.b)
            return;
        for (const int unit : units)
            reportMoved(unit, shapes);
    }
}

DockDifferences::Shapes DockDifferences::shapesOf(int side) const
{
    Shapes shapes{SideShape(m_a, m_a.sides[index(side)].node, m_unitsA),
                  SideShape(m_b, m_b.sides[index(side)].node, m_unitsB),
                  std::vector<int>(m_units.size(), -1), std::vector<int>(m_units.size(), -1)};
    for (std::size_t i = 0; i < shapes.a.units().size(); ++i) {
        shapes.placesA[index(shapes.a.units()[i])] = static_cast<int>(i);
        shapes.placesB[index(shapes.b.units()[i])] = static_cast<int>(i);
    }
    return shapes;
}

// Who may have been moved: those that are not in order, those that are beside others and were below
// or the other way round, and the rest, in each case the later ones first.
std::array<std::vector<int>, 3> DockDifferences::suspectsIn(const Shapes& shapes)
{
    std::vector<int> places;
    for (const int unit : shapes.a.units())
        places.push_back(shapes.placesB[index(unit)]);
    const std::vector<bool> stayed = stayedInOrder(places);
    std::array<std::vector<int>, 3> suspects;
    for (std::size_t i = places.size(); i-- > 0;) {
        const bool isTurned = shapes.a.isBeside(i) != shapes.b.isBeside(index(places[i]));
        suspects[!stayed[i] ? 0 : isTurned ? 1 : 2].push_back(shapes.a.units()[i]);
    }
    return suspects;
}

bool DockDifferences::isSoleMoved(int unit, int side)
{
    leaveOut(unit);
    const Shapes shapes = shapesOf(side);
    for (const Pair& pair : m_units[index(unit)]) {
        m_unitsA[index(pair.a->node)] = unit;
        m_unitsB[index(pair.b->node)] = unit;
    }
    return shapes.a == shapes.b;
}

void DockDifferences::leaveOut(int unit)
{
    for (const Pair& pair : m_units[index(unit)]) {
        m_unitsA[index(pair.a->node)] = -1;
        m_unitsB[index(pair.b->node)] = -1;
    }
}

// The places in reading order, or if these are the same, how it lies to its neighbours.
void DockDifferences::reportMoved(int unit, const Shapes& shapes)
{
    const int from = shapes.placesA[index(unit)];
    const int to = shapes.placesB[index(unit)];
    const PartPlace& place = *representative(unit).b;
    if (from != to)
        m_parts.add(place, Aspect::Order, from, to);
    else
        m_parts.add(place, Aspect::Order, direction(shapes.a.isBeside(index(from))),
                    direction(shapes.b.isBeside(index(to))));
    leaveOut(unit);
}

// Dock widgets that are no tabs in a floating window can lie beside or below each other, too.
void DockDifferences::compareWindowShapes()
{
    std::vector<int> numbersA(m_a.nodes.size(), -1);
    std::vector<int> numbersB(m_b.nodes.size(), -1);
    for (std::size_t i = 0; i < m_units.size(); ++i) {
        const std::vector<Pair>& members = m_units[i];
        if (members.front().a->kind != PartPlace::Floating || members.size() < 2)
            continue;
        int number = 0;
        for (const Pair& pair : members) {
            numbersA[index(pair.a->node)] = number;
            numbersB[index(pair.b->node)] = number++;
        }
        const SideShape a(m_a, members.front().a->group, numbersA);
        const SideShape b(m_b, members.front().b->group, numbersB);
        const std::size_t last = a.units().size() - 1;
        if (a.units() == b.units() && a != b)
            m_parts.add(*members.back().b, Aspect::Order, direction(a.isBeside(last)),
                        direction(b.isBeside(last)));
    }
}

// The page in front, if it is one that stayed.
const DockDifferences::Pair& DockDifferences::representative(int unit) const
{
    const std::vector<Pair>& members = m_units[index(unit)];
    for (const Pair& pair : members) {
        if (m_b.at(pair.b->group).front == pair.b->node)
            return pair;
    }
    return members.front();
}

// Only what stayed where it was is compared, as if it were alone: that a neighbour takes the room
// of one that was closed goes without saying. Both are looked at in windows of one size.
void DockDifferences::compareSizes()
{
    Arrangement a = m_a;
    Arrangement b = m_b;
    keepUnits(a, m_unitsA);
    keepUnits(b, m_unitsB);
    PictureLayout wholeA(m_a);
    PictureLayout wholeB(m_b);
    const QSize sizeA = wholeA.dockAreaSize();
    const QSize sizeB = wholeB.dockAreaSize();
    const QSize common = sizeA.expandedTo(sizeB);
    const std::vector<QRect> rectsA = PictureLayout(a).dockRects(common);
    const std::vector<QRect> rectsB = PictureLayout(b).dockRects(common);
    const std::vector<QRect> storedA = wholeA.dockRects(sizeA);
    const std::vector<QRect> storedB = wholeB.dockRects(sizeB);
    const bool isExact = haveOtherCorners(a, b);
    for (std::size_t i = 0; i < m_units.size(); ++i) {
        const Pair& pair = representative(static_cast<int>(i));
        if (pair.a->kind != PartPlace::Docked || m_unitsA[index(pair.a->node)] < 0)
            continue;
        const QSize from = rectsA[index(pair.a->group)].size();
        const QSize to = rectsB[index(pair.b->group)].size();
        const QSize change = to - from;
        if (isNoticeable(change.width(), from.width()) ||
            isNoticeable(change.height(), from.height()) ||
            (isExact && qMax(qAbs(change.width()), qAbs(change.height())) > 2))
            m_parts.add(*pair.b, Aspect::Size, storedA[index(pair.a->group)].size(),
                        storedB[index(pair.b->group)].size());
    }
}

void DockDifferences::keepUnits(Arrangement& arrangement, const std::vector<int>& units)
{
    std::vector<bool> kept;
    kept.reserve(units.size());
    for (const int unit : units)
        kept.push_back(unit >= 0);
    arrangement.keepOnly(kept);
}

// Whether another side has a corner that both want.
bool DockDifferences::haveOtherCorners(const Arrangement& a, const Arrangement& b)
{
    for (const int side : {0, 1}) {
        for (const int other : {2, 3}) {
            if (a.isShown(side) && a.isShown(other) && b.isShown(side) && b.isShown(other) &&
                (a.reaches(side, other) != b.reaches(side, other) ||
                 a.reaches(other, side) != b.reaches(other, side)))
                return true;
        }
    }
    return false;
}

} // namespace Panorel::Kit::Detail
