// SPDX-License-Identifier: MIT
#include "value/PictureMetrics.h"

#include <algorithm>
#include <optional>

namespace Panorel::Kit::Detail {

namespace {

using Node = Arrangement::Node;

// Nothing that a style has is larger; what is, was not written by a window.
constexpr qint64 largestSeparator = 16;
constexpr qint64 largestTabBar = 80;
constexpr qint64 largestOrigin = 400;
constexpr int smallestMenuBar = 16;
constexpr std::size_t mostLines = 100;

qint64 position(const Node& node)
{
    return node.item->values[0];
}

qint64 extent(const Node& node)
{
    return node.item->values[1];
}

// The gap after the node in a row or column; 0 where there is none or it cannot be one.
qint64 gapAfter(const Arrangement& arrangement, int node)
{
    const Node& first = arrangement.at(node);
    if (!first.isShown || first.parent < 0 || arrangement.at(first.parent).isTabbed ||
        extent(first) <= 0)
        return 0;
    const int next = arrangement.nextShown(node);
    if (next < 0)
        return 0;
    const qint64 gap = position(arrangement.at(next)) - position(first) - extent(first);
    return gap > largestSeparator ? 0 : gap;
}

// The largest height of a tab group in a column exceeds that of its pages by the tabs.
qint64 tabBarOf(const Arrangement& arrangement, int node)
{
    const Node& tabs = arrangement.at(node);
    if (tabs.pageCount < 2 || tabs.isHorizontal || tabs.parent < 0 ||
        arrangement.at(tabs.parent).isHorizontal)
        return 0;
    qint64 largestPage = tabs.item->values[3];
    for (int page = arrangement.firstShown(node); page >= 0; page = arrangement.nextShown(page))
        largestPage = std::min<qint64>(largestPage, arrangement.at(page).item->values[3]);
    const qint64 height = tabs.item->values[3] - largestPage;
    return height > largestTabBar ? 0 : height;
}

// The separators beside the central widget, by a side that is as long as all that lies beside it;
// 0 if there is no such side.
qint64 gapInGrid(const Arrangement& arrangement, bool isHorizontal)
{
    const auto extentIn = [&](const QSize& size) {
        return qint64(isHorizontal ? size.width() : size.height());
    };
    const std::array<int, 2> beside = isHorizontal ? std::array<int, 2>{0, 1} : std::array{2, 3};
    const std::array<int, 2> along = isHorizontal ? std::array<int, 2>{2, 3} : std::array{0, 1};
    qint64 sum = extentIn(arrangement.centralSize);
    int count = 0;
    for (const int side : beside) {
        if (!arrangement.isShown(side))
            continue;
        sum += extentIn(arrangement.sides[static_cast<std::size_t>(side)].size);
        ++count;
    }
    for (const int side : along) {
        const QSize size = arrangement.sides[static_cast<std::size_t>(side)].size;
        if (count == 0 || arrangement.centralSize.isEmpty() || !arrangement.isShown(side) ||
            !arrangement.reaches(side, beside[0]) || !arrangement.reaches(side, beside[1]))
            continue;
        const qint64 gap = (extentIn(size) - sum) / count;
        if (gap > 0 && gap <= largestSeparator)
            return gap;
    }
    return 0;
}

// The stored position of the first row or column in that direction which begins where the side
// does.
std::optional<qint64> firstPosition(const Arrangement& arrangement, int side, bool isHorizontal)
{
    const int root = arrangement.sides[static_cast<std::size_t>(side)].node;
    int block = root;
    if (arrangement.at(root).isHorizontal != isHorizontal) {
        for (block = arrangement.firstShown(root); block >= 0;
             block = arrangement.nextShown(block)) {
            const Node& node = arrangement.at(block);
            if (node.isBlock && !node.isTabbed && node.isHorizontal == isHorizontal)
                break;
        }
    }
    if (block < 0 || arrangement.at(block).isTabbed)
        return std::nullopt;
    const Node& first = arrangement.at(arrangement.firstShown(block));
    return extent(first) > 0 ? std::make_optional(position(first)) : std::nullopt;
}

// Where the dock areas begin in that direction, as the sides at the beginning tell it.
std::optional<int> originOf(const Arrangement& arrangement, bool isHorizontal, int separator)
{
    const int before = isHorizontal ? 0 : 2;
    for (const int side : {2, 3, 0, 1}) {
        const bool lies = (side < 2) == isHorizontal;
        if (!arrangement.isShown(side) || (lies && side != before))
            continue;
        std::optional<qint64> found = firstPosition(arrangement, side, isHorizontal);
        if (!found)
            continue;
        if (side != before && !arrangement.reaches(side, before)) {
            const QSize size = arrangement.sides[static_cast<std::size_t>(before)].size;
            *found -= qint64(isHorizontal ? size.width() : size.height()) + separator;
        }
        if (*found >= 0 && *found <= largestOrigin)
            return static_cast<int>(*found);
    }
    return std::nullopt;
}

int lineCount(const Arrangement& arrangement, int side)
{
    const std::size_t count = arrangement.lines[static_cast<std::size_t>(side)].size();
    return static_cast<int>(std::min(count, mostLines));
}

} // namespace

PictureMetrics::PictureMetrics(const Arrangement& arrangement)
{
    qint64 gap = 0;
    qint64 tabs = 0;
    for (int i = 0; i < static_cast<int>(arrangement.nodes.size()); ++i) {
        gap = std::max(gap, gapAfter(arrangement, i));
        if (arrangement.at(i).isTabbed)
            tabs = std::max(tabs, tabBarOf(arrangement, i));
    }
    if (gap == 0)
        gap = gapInGrid(arrangement, /*isHorizontal=*/true);
    if (gap == 0)
        gap = gapInGrid(arrangement, /*isHorizontal=*/false);
    if (gap > 0)
        separator = static_cast<int>(gap);
    if (tabs > 0)
        tabBar = static_cast<int>(tabs);
    findOrigin(arrangement);
    beyond =
        QSize(lineCount(arrangement, 1) * verticalLine, lineCount(arrangement, 3) * horizontalLine);
}

void PictureMetrics::findOrigin(const Arrangement& arrangement)
{
    const int columns = lineCount(arrangement, 0);
    const int left = originOf(arrangement, /*isHorizontal=*/true, separator).value_or(0);
    if (columns > 0 && left >= columns)
        verticalLine = left / columns;
    origin.setX(std::max(left, columns * verticalLine));

    const int rows = lineCount(arrangement, 2);
    const int top = originOf(arrangement, /*isHorizontal=*/false, separator).value_or(0);
    // Bars as high as usual leave room for a menu bar, or else these bars are not as high as usual.
    if (rows > 0 && top >= rows && top < rows * horizontalLine + smallestMenuBar)
        horizontalLine = top / rows;
    origin.setY(std::max(top, rows * horizontalLine));
    menuBar = origin.y() - rows * horizontalLine;
}

} // namespace Panorel::Kit::Detail
