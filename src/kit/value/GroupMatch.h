// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace Panorel::Kit::Detail {

/** To which groups a part belongs in two arrangements, by any numbers, and which place it has among
    the parts of the second. */
struct GroupPair
{
    int first = 0;
    int second = 0;
    int placeInSecond = 0;
};

/**
 * Tells which parts stayed in their group: it finds for each group of one arrangement the group of
 * the other that has most of its members, and where two groups find each other, their common
 * members stayed. Where several have as many, it is the one whose member comes first in the second
 * arrangement, because what is moved usually comes last.
 *
 * @return for each part whether it stayed. Takes n log n.
 */
std::vector<bool> stayedInGroup(const std::vector<GroupPair>& parts);

/**
 * Tells which of the numbers need not move to bring all into order: a longest rising sequence of
 * them. The numbers must differ. Takes n log n.
 */
std::vector<bool> stayedInOrder(const std::vector<int>& numbers);

} // namespace Panorel::Kit::Detail
