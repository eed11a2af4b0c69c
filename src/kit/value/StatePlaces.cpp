// SPDX-License-Identifier: MIT
#include "value/StatePlaces.h"

#include <panorel/QtState.h>

#include <QHash>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

bool isBlock(const StateItem& item)
{
    return item.isBlock;
}

bool isBlock(const StateToolBar& /*toolBar*/)
{
    return false;
}

bool isFloating(const StateItem& item)
{
    return (item.flags & 2) != 0;
}

// Whether it looks like the empty place that a window keeps for a dock widget.
bool isEmptyPlace(const StateItem& item)
{
    return !isFloating(item) && item.values[2] == 0 && item.values[3] == 0;
}

template<typename Part>
bool isSame(const Part& one, const Part& other)
{
    return one.name == other.name && one.flags == other.flags && one.values == other.values;
}

// Whether @p item, which is in a later record, may be what merging has made of @p earlier.
bool mayRepeat(const StateItem& item, const StateItem& earlier)
{
    if (item.isBlock || earlier.isBlock)
        return item.isBlock && earlier.isBlock && item.isTabbed == earlier.isTabbed;
    return item.name == earlier.name &&
           (isEmptyPlace(item) || isFloating(item) || isSame(item, earlier));
}

bool mayRepeat(const StateToolBar& toolBar, const StateToolBar& earlier)
{
    return isSame(toolBar, earlier);
}

// Whether @p item, which is not among those that a record begins with, is a repeat of the part
// whose name came first with @p first.
bool isRepeat(const StateItem& item, const StateItem& first, bool isInLaterRecord)
{
    if (isFloating(item))
        return isInLaterRecord || isSame(item, first);
    return isEmptyPlace(item) != isEmptyPlace(first);
}

bool isRepeat(const StateToolBar& /*toolBar*/, const StateToolBar& /*first*/,
              bool /*isInLaterRecord*/)
{
    return false;
}

// The items of a dock record without its block, or the tool bars of a line.
struct Record
{
    std::size_t first = 0;
    std::size_t end = 0;
    std::size_t size() const { return end - first; }
};

/** Finds the places of one kind of part, record after record. */
template<typename Part>
class Taker
{
public:
    Taker(const std::vector<Part>& parts, std::vector<Place>& places)
        : m_parts(parts)
        , m_places(places)
    {
        m_places.assign(parts.size(), Place::Taken);
        m_taken.reserve(static_cast<int>(parts.size()));
    }

    void beginSection(std::size_t first)
    {
        m_sectionFirst = first;
        m_before = Record();
    }

    void take(const Record& record)
    {
        const std::size_t begun = record.first + (beginsWithEarlier(record) ? m_before.size() : 0);
        bool onlyRepeats = begun > record.first;
        for (std::size_t i = record.first; i < record.end; ++i) {
            if (isBlock(m_parts[i]))
                continue;
            if (m_parts[i].name.isEmpty()) {
                if (i < begun && std::is_same_v<Part, StateItem>)
                    m_places[i] = Place::RepeatedNameless;
                continue;
            }
            m_places[i] = placeOf(i, record.first, i < begun || onlyRepeats);
            onlyRepeats = onlyRepeats && m_places[i] == Place::Repeated;
        }
        m_before = record;
    }

private:
    bool beginsWithEarlier(const Record& record) const
    {
        if (m_before.size() == 0 || record.size() <= m_before.size())
            return false;
        const auto before = m_parts.begin() + static_cast<std::ptrdiff_t>(m_before.first);
        const auto items = m_parts.begin() + static_cast<std::ptrdiff_t>(record.first);
        return std::equal(
            before, before + static_cast<std::ptrdiff_t>(m_before.size()), items,
            [](const Part& earlier, const Part& part) { return mayRepeat(part, earlier); });
    }

    Place placeOf(std::size_t index, std::size_t recordFirst, bool isAmongRepeats)
    {
        const QString& name = m_parts[index].name;
        const auto found = m_taken.find(name);
        if (found == m_taken.end()) {
            m_taken.insert(name, index);
            return Place::Taken;
        }
        const std::size_t first = *found;
        if (first < m_sectionFirst) {
            m_places[first] = Place::Superseded;
            *found = index;
            return Place::Taken;
        }
        const bool isInLaterRecord = first < recordFirst;
        const bool isRepeated = (isAmongRepeats && isInLaterRecord) ||
                                isRepeat(m_parts[index], m_parts[first], isInLaterRecord);
        return isRepeated ? Place::Repeated : Place::SameName;
    }

    const std::vector<Part>& m_parts;
    std::vector<Place>& m_places;
    std::size_t m_sectionFirst = 0;
    Record m_before;
    QHash<QString, std::size_t> m_taken;
};

Record insideOf(const StateTree& tree, int block)
{
    const auto index = static_cast<std::size_t>(block);
    return {index + 1, static_cast<std::size_t>(tree.items[index].end)};
}

void takeItems(const StateTree& tree, const StateSection& section, Taker<StateItem>& taker)
{
    for (auto i = static_cast<std::size_t>(section.first);
         i < static_cast<std::size_t>(section.end); ++i) {
        const bool isFloatingGroup = section.marker == floatingMarker;
        const Record record =
            insideOf(tree, isFloatingGroup ? tree.floating[i].block : tree.docks[i].block);
        if (i == static_cast<std::size_t>(section.first))
            taker.beginSection(record.first);
        taker.take(record);
    }
}

void takeToolBars(const StateTree& tree, const StateSection& section, Taker<StateToolBar>& taker)
{
    for (auto i = static_cast<std::size_t>(section.first);
         i < static_cast<std::size_t>(section.end); ++i) {
        const StateLine& line = tree.lines[i];
        const Record record{static_cast<std::size_t>(line.first),
                            static_cast<std::size_t>(line.end)};
        if (i == static_cast<std::size_t>(section.first))
            taker.beginSection(record.first);
        taker.take(record);
    }
}

} // namespace

StatePlaces::StatePlaces(const StateTree& tree)
{
    Taker<StateItem> dockWidgets(tree.items, items);
    Taker<StateToolBar> bars(tree.toolBars, toolBars);
    for (const StateSection& section : tree.sections) {
        if (holdsToolBars(section))
            takeToolBars(tree, section, bars);
        else
            takeItems(tree, section, dockWidgets);
    }
    for (const std::vector<Place>* const places : {&items, &toolBars}) {
        for (const Place place : *places) {
            repeats += place == Place::Repeated || place == Place::SameName ? 1 : 0;
            hasRepeats = hasRepeats || isRepeat(place);
        }
    }
}

bool holdsToolBars(const StateSection& section)
{
    return section.marker == QtState::QToolBarAreaLayout_ToolBarStateMarker ||
           section.marker == QtState::QToolBarAreaLayout_ToolBarStateMarkerEx;
}

} // namespace Panorel::Kit::Detail
