// SPDX-License-Identifier: MIT
#include "value/PictureShare.h"

#include <QtGlobal>

#include <cmath>

namespace Panorel::Kit::Detail {

namespace {

template<typename Size>
double total(const std::vector<Share>& shares, Size size)
{
    double sum = 0;
    for (const Share& share : shares)
        sum += size(share);
    return sum;
}

// The factor at which the sizes, which grow with it, fill the space.
template<typename SizeAt>
double solved(double space, double low, double high, const std::vector<Share>& shares,
              SizeAt sizeAt)
{
    constexpr int steps = 60; // more than a double has bits
    for (int i = 0; i < steps; ++i) {
        const double middle = (low + high) / 2;
        const double sum = total(shares, [&](const Share& share) { return sizeAt(share, middle); });
        (sum < space ? low : high) = middle;
    }
    return high;
}

template<typename Size>
std::vector<int> ends(const std::vector<Share>& shares, Size size)
{
    std::vector<int> result;
    result.reserve(shares.size());
    double end = 0;
    for (const Share& share : shares)
        result.push_back(static_cast<int>(std::lround(end += size(share))));
    return result;
}

std::vector<int> grown(int space, const std::vector<Share>& shares)
{
    const auto sizeAt = [](const Share& share, double factor) {
        return qBound(share.preferred, factor * share.weight, share.maximum);
    };
    const double weights = total(shares, [](const Share& share) { return share.weight; });
    double factor = weights > 0 ? space / weights : 0;
    const double sum = total(shares, [&](const Share& share) { return sizeAt(share, factor); });
    if (weights > 0 && std::abs(sum - space) > 0.01)
        factor = solved(space, 0, 1 << 25, shares, sizeAt);
    return ends(shares, [&](const Share& share) { return sizeAt(share, factor); });
}

std::vector<int> shrunk(int space, const std::vector<Share>& shares)
{
    const auto sizeAt = [](const Share& share, double spared) {
        return qMax(share.minimum, share.preferred + spared);
    };
    const double spared = solved(space, -(1 << 25), 0, shares, sizeAt);
    return ends(shares, [&](const Share& share) { return sizeAt(share, spared); });
}

std::vector<int> cut(int space, const std::vector<Share>& shares)
{
    const auto sizeAt = [](const Share& share, double most) { return qMin(share.minimum, most); };
    const double most = solved(space, 0, 1 << 25, shares, sizeAt);
    return ends(shares, [&](const Share& share) { return sizeAt(share, most); });
}

} // namespace

std::vector<int> divided(int space, const std::vector<Share>& shares)
{
    if (shares.size() == 1)
        return {space};
    if (total(shares, [](const Share& share) { return share.preferred; }) <= space)
        return grown(space, shares);
    if (total(shares, [](const Share& share) { return share.minimum; }) <= space)
        return shrunk(space, shares);
    return cut(space, shares);
}

} // namespace Panorel::Kit::Detail
