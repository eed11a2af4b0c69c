// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QRect>
#include <QSharedData>
#include <QSize>
#include <QString>

#include <array>
#include <vector>

namespace Panorel::Kit {

class WindowState;

namespace Detail {

/** Begins the section of a floating tab group, which Panorel::QtState does not know. */
constexpr unsigned char floatingMarker = 0xF9;

/** A dock widget, or a block of items: an element of StateTree::items. */
struct StateItem
{
    /** Of a dock widget; null for a block. */
    QString name;
    /** The four carried integers: of a floating dock widget x, y, width and height, else position
        and extent along the block's orientation, and two without a meaning. All 0 for the block
        of a dock record or of a floating tab group, which is no item of another. */
    std::array<int, 4> values{};
    /** Where the item begins in the bytes; for a top block, where the block does. */
    int offset = 0;
    /** The index after the last item inside this block; for a dock widget its own index plus 1. */
    int end = 0;
    /** Index of the page in front, if tabbed; as stored, so it may be out of range. */
    int currentIndex = 0;
    bool isBlock = false;
    /** A block of tabs; else its items are beside or below each other. */
    bool isTabbed = false;
    /** Qt::Orientation as stored. */
    unsigned char orientation = 0;
    /** Of a dock widget: bit 0 visible, bit 1 floating. */
    unsigned char flags = 0;
};

/** A dock record: what one side of the window holds. */
struct StateDock
{
    int offset = 0;
    /** 0 left, 1 right, 2 top, 3 bottom; as stored. */
    int area = 0;
    QSize size;
    /** Index of its top block in items. */
    int block = 0;
};

/** A floating tab group. */
struct StateFloating
{
    int offset = 0;
    QRect geometry;
    /** Index of its top block in items. */
    int block = 0;
};

/** A tool bar: an element of StateTree::toolBars. */
struct StateToolBar
{
    QString name;
    std::array<int, 4> values{};
    int offset = 0;
    /** Bit 0 shown, bit 1 vertical. */
    unsigned char flags = 0;
};

/** Tool bars in one row or column. */
struct StateLine
{
    int offset = 0;
    int area = 0;
    /** Its tool bars: from first to before end in StateTree::toolBars. */
    int first = 0;
    int end = 0;
};

/** A section of the bytes, in stored order. Indices are ranges in the vectors of StateTree. */
struct StateSection
{
    /** The section marker: FD dock areas, F9 floating tabs, FC or FE tool bars. */
    unsigned char marker = 0;
    int offset = 0;
    /** Range in docks, floating or lines, by the marker. */
    int first = 0;
    int end = 0;
    /** Of a dock-area section. */
    QSize centralSize;
    std::array<int, 4> corners{};
};

/**
 * A window's state as flat lists. Items are in the order of the bytes, so those inside a block come
 * right after it and before its end; walking over them needs neither recursion nor pointers.
 */
struct StateTree : QSharedData
{
    QByteArray bytes;
    bool isReadable = false;
    /** Where reading ended; the size of the bytes if they are readable. */
    int readBytes = 0;
    int marker = 0;
    int version = 0;
    std::vector<StateSection> sections;
    std::vector<StateDock> docks;
    std::vector<StateFloating> floating;
    std::vector<StateItem> items;
    std::vector<StateLine> lines;
    std::vector<StateToolBar> toolBars;
};

/** What @p state holds; it lives as long as the state. */
const StateTree& treeOf(const WindowState& state);

} // namespace Detail
} // namespace Panorel::Kit
