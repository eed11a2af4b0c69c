// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace Panorel::Kit::Detail {

/** What one of several neighbours takes of the space that they share, in pixels. */
struct Share
{
    double minimum = 0;
    /** What it has if there is enough space; at least minimum. */
    double preferred = 0;
    double maximum = 0;
    /** Its part of the space that is left over, as a ratio to the others'. */
    double weight = 0;
};

/**
 * Divides @p space as Qt's layouts do: each gets its weight's part, but not less than it prefers
 * and not more than its maximum. If there is too little for what they prefer, all give the same
 * until they are at their minimum; if there is too little for this, the largest give first.
 *
 * @return where each of them ends. Linear in their number, whatever the figures are.
 */
std::vector<int> divided(int space, const std::vector<Share>& shares);

} // namespace Panorel::Kit::Detail
