// SPDX-License-Identifier: MIT
#include "value/PartPlaces.h"

namespace Panorel::Kit::Detail {

namespace {

constexpr int mostPartners = 50;

std::size_t index(int number)
{
    return static_cast<std::size_t>(number);
}

// Fills in where the dock widgets of one container are, whether in sight or not.
void placeInContainer(const Arrangement& arrangement, const Arrangement::Container& container,
                      int side, std::vector<PartPlace>& places)
{
    if (container.node < 0)
        return;
    const bool isSide = side >= 0;
    std::vector<int> tabs(index(arrangement.at(container.node).end - container.node), -1);
    const auto tabsOf = [&](int node) -> int& { return tabs[index(node - container.node)]; };
    for (int i = container.node; i < arrangement.at(container.node).end; ++i) {
        const Arrangement::Node& node = arrangement.at(i);
        if (node.parent >= 0)
            tabsOf(i) = tabsOf(node.parent) < 0 && arrangement.at(node.parent).isTabbed
                            ? node.parent
                            : tabsOf(node.parent);
        if (!node.isShown || node.isBlock)
            continue;
        PartPlace& place = places[index(i)];
        place.kind = isSide ? PartPlace::Docked : PartPlace::Floating;
        place.side = side;
        place.group = isSide ? (tabsOf(i) < 0 ? i : tabsOf(i)) : container.node;
        place.position = container.position;
        place.size = container.size;
    }
}

void placeBar(PartPlaces& places, const Arrangement::Line& line, std::size_t i, int side,
              int number, int group)
{
    const StateToolBar& bar = *line[i].bar;
    PartPlace place;
    place.kind = PartPlace::Docked;
    place.side = side;
    place.line = number;
    place.group = group;
    place.isLast = i + 1 == line.size();
    place.hasOwnLength = bar.values[1] > 0;
    if (place.hasOwnLength)
        place.length = bar.values[1];
    else if (!place.isLast && bar.values[0] >= 0)
        place.length = qMax(0, qMax(0, line[i + 1].bar->values[0]) - bar.values[0]);
    places.add(bar.name, place);
}

} // namespace

void PartPlaces::add(const QString& name, PartPlace place)
{
    place.name = name;
    // No name begins like this: those without one are distinguished by their order.
    place.key = name.isEmpty() ? QChar(0) + QString::number(m_nameless++) : name;
    place.place = parts.size();
    if (byKey.contains(place.key))
        return;
    byKey.insert(place.key, parts.size());
    parts.append(place);
}

const PartPlace* PartPlaces::find(const QString& key) const
{
    const auto found = byKey.find(key);
    return found == byKey.end() ? nullptr : &parts[*found];
}

PartPlaces dockPlaces(const Arrangement& arrangement)
{
    std::vector<PartPlace> places(arrangement.nodes.size());
    for (int side = 0; side < 4; ++side)
        placeInContainer(arrangement, arrangement.sides[index(side)], side, places);
    for (const Arrangement::Container& group : arrangement.groups)
        placeInContainer(arrangement, group, -1, places);
    for (const Arrangement::FloatingDock& dock : arrangement.floatingDocks) {
        PartPlace& place = places[index(dock.node)];
        place.kind = PartPlace::Floating;
        place.group = dock.node;
        place.position = dock.position;
        place.size = dock.size;
    }
    PartPlaces result;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const Arrangement::Node& node = arrangement.nodes[i];
        if (!node.isTaken)
            continue;
        places[i].node = static_cast<int>(i);
        result.add(node.item->name, places[i]);
    }
    return result;
}

PartPlaces barPlaces(const Arrangement& arrangement)
{
    PartPlaces result;
    int group = 0;
    for (int side = 0; side < 4; ++side) {
        const std::vector<Arrangement::Line>& lines = arrangement.lines[index(side)];
        for (std::size_t number = 0; number < lines.size(); ++number, ++group) {
            for (std::size_t i = 0; i < lines[number].size(); ++i)
                placeBar(result, lines[number], i, side, static_cast<int>(number), group);
        }
    }
    for (const Arrangement::Bar& bar : arrangement.floatingBars) {
        PartPlace place;
        place.kind = PartPlace::Floating;
        place.position = bar.geometry.topLeft();
        place.size = bar.geometry.size();
        result.add(bar.bar->name, place);
    }
    for (const Arrangement::Bar& bar : arrangement.hiddenBars)
        result.add(bar.bar->name, PartPlace());
    return result;
}

QStringList partnersOf(const Arrangement& arrangement, const PartPlace& place)
{
    QStringList names;
    if (place.group < 0 || place.kind == PartPlace::Closed)
        return names;
    const Arrangement::Node& group = arrangement.at(place.group);
    for (int i = place.group + 1; i < group.end && names.size() < mostPartners; ++i) {
        const Arrangement::Node& node = arrangement.at(i);
        if (node.isShown && !node.isBlock && i != place.node)
            names.append(node.item->name);
    }
    return names;
}

} // namespace Panorel::Kit::Detail
