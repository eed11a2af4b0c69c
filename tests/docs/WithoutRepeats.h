// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/QtState.h>

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <cstddef>

//! [without-repeats]
using Block = Panorel::QtState::DockAreaLayout::Dock::Block;

// Leaves of the items of records only each record's own: read() puts those of earlier ones first.
template<typename Records, typename Items>
void keepOwnItems(Records& records, Items itemsOf)
{
    for (std::size_t i = records.size(); i-- > 1;) {
        auto& items = itemsOf(records[i]);
        const auto earlier = itemsOf(records[i - 1]).size();
        items.erase(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(earlier));
    }
}

// Drops the dock widgets whose names have come before: empty places, left over by merging.
inline void dropKnown(Block& block, QStringList& names)
{
    const auto isKnown = [&names](const Block::Item& item) {
        if (item.isSequence) {
            dropKnown(*item.subBlock, names);
            return item.subBlock->items.empty();
        }
        const bool isThere = names.contains(item.objectName);
        names.append(item.objectName);
        return isThere;
    };
    auto& items = block.items;
    items.erase(std::remove_if(items.begin(), items.end(), isKnown), items.end());
}

// The layout of a window without what merging has added to it.
inline QByteArray withoutRepeats(const QByteArray& blob)
{
    Panorel::QtState state;
    if (!state.read(blob))
        return blob;
    for (auto& layout : state.m_dockAreaLayouts) {
        keepOwnItems(
            layout.docks, [](auto& dock) -> auto& { return dock.block.items; });
        QStringList names;
        for (auto& dock : layout.docks)
            dropKnown(dock.block, names);
    }
    for (auto& layout : state.m_toolBarAreaLayouts)
        keepOwnItems(
            layout.lines, [](auto& line) -> auto& { return line.items; });
    return state.write();
}
//! [without-repeats]
