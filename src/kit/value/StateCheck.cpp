// SPDX-License-Identifier: MIT
#include "value/StateCheck.h"

#include "value/NestingMeter.h"
#include "value/SizeMeter.h"

#include <QSet>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

bool isSide(int area)
{
    return area >= 0 && area <= 3;
}

bool isNameless(const StateItem& item)
{
    return !item.isBlock && item.name.isEmpty();
}

bool isNameless(const StateToolBar& toolBar)
{
    return toolBar.name.isEmpty();
}

} // namespace

StateCheck::StateCheck(const StateTree& tree)
    : m_tree(tree)
    , m_places(tree)
{
    checkReadable();
    checkAreas();
    checkNesting();
    checkSize();
    checkNames();
    std::stable_sort(
        problems.begin(), problems.end(),
        [](const Problem& one, const Problem& other) { return one.offset < other.offset; });
}

void StateCheck::checkReadable()
{
    if (m_tree.isReadable)
        return;
    // Where not even the head could be read, Qt looks no further.
    add(m_tree.readBytes == 0 ? ProblemCode::Marker : ProblemCode::Malformed, m_tree.readBytes);
}

void StateCheck::checkAreas()
{
    for (const StateDock& dock : m_tree.docks) {
        if (!isSide(dock.area))
            add(ProblemCode::DockArea, dock.offset);
    }
    for (const StateLine& line : m_tree.lines) {
        if (!isSide(line.area))
            add(ProblemCode::ToolBarArea, line.offset);
    }
    for (const StateFloating& floating : m_tree.floating)
        add(ProblemCode::FloatingTabs, floating.offset);
}

void StateCheck::checkNesting()
{
    const int offset = NestingMeter::offsetOfExcess(m_tree, m_places);
    if (offset >= 0)
        add(ProblemCode::Nesting, offset);
}

void StateCheck::checkSize()
{
    const int offset = SizeMeter::offsetOfExcess(m_tree, m_places);
    if (offset >= 0)
        add(ProblemCode::Size, offset);
}

void StateCheck::checkNames()
{
    checkNames(m_tree.items, m_places.items);
    checkNames(m_tree.toolBars, m_places.toolBars);
}

template<typename Part>
void StateCheck::checkNames(const std::vector<Part>& parts, const std::vector<Place>& places)
{
    QSet<QString> sameNames;
    bool hasRepeats = false;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Part& part = parts[i];
        if (StatePlaces::isRepeat(places[i])) {
            if (!hasRepeats)
                add(ProblemCode::Repeats, part.offset);
            hasRepeats = true;
        } else if (isNameless(part)) {
            add(ProblemCode::NamelessPart, part.offset);
        } else if (places[i] == Place::SameName && !sameNames.contains(part.name)) {
            sameNames.insert(part.name);
            add(ProblemCode::RepeatedPart, part.offset, part.name);
        }
    }
}

void StateCheck::add(ProblemCode code, int offset, const QString& detail)
{
    Problem problem;
    problem.code = code;
    problem.offset = offset;
    problem.detail = detail;
    problems.append(problem);
}

} // namespace Panorel::Kit::Detail
