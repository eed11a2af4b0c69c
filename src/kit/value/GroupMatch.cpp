// SPDX-License-Identifier: MIT
#include "value/GroupMatch.h"

#include <QHash>
#include <QPair>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

// For each group, the group of the other arrangement with most of its members.
class Favourites
{
public:
    void count(int group, int other, int members)
    {
        const auto found = m_best.find(group);
        if (found == m_best.end())
            m_best.insert(group, {members, other});
        else if (members > found->first)
            *found = {members, other};
    }

    int of(int group) const { return m_best.value(group).second; }

private:
    QHash<int, QPair<int, int>> m_best;
};

} // namespace

std::vector<bool> stayedInGroup(const std::vector<GroupPair>& parts)
{
    QHash<QPair<int, int>, int> members;
    for (const GroupPair& part : parts)
        ++members[{part.first, part.second}];
    Favourites first;
    Favourites second;
    std::vector<GroupPair> inSecond = parts;
    std::sort(inSecond.begin(), inSecond.end(), [](const GroupPair& one, const GroupPair& other) {
        return one.placeInSecond < other.placeInSecond;
    });
    for (const GroupPair& part : inSecond) {
        const int common = members[{part.first, part.second}];
        first.count(part.first, part.second, common);
        second.count(part.second, part.first, common);
    }
    std::vector<bool> stayed;
    stayed.reserve(parts.size());
    for (const GroupPair& part : parts)
        stayed.push_back(first.of(part.first) == part.second &&
                         second.of(part.second) == part.first);
    return stayed;
}

std::vector<bool> stayedInOrder(const std::vector<int>& numbers)
{
    std::vector<std::size_t> ends; // of the best sequence of each length
    std::vector<std::size_t> before(numbers.size(), numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), i, [&](std::size_t one, std::size_t other) {
                return numbers[one] < numbers[other];
            });
        if (place != ends.begin())
            before[i] = *(place - 1);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<bool> stayed(numbers.size(), false);
    for (std::size_t i = ends.empty() ? numbers.size() : ends.back(); i < numbers.size();
         i = before[i])
        stayed[i] = true;
    return stayed;
}

} // namespace Panorel::Kit::Detail
