// SPDX-License-Identifier: MIT
#pragma once

#include "support/Differences.h"

#include <QRandomGenerator>

#include <limits>

namespace Panorel::Tests {

/**
 * Makes values as read() could have made them from single records, each seed always the same one:
 * small lists, odd numbers, null and empty names.
 */
class StateGenerator
{
public:
    explicit StateGenerator(quint32 seed)
        : m_random(seed)
    {}

    /** Fills an empty @p state; a section gets at most @p maxRecords records or lines. */
    void fill(QtState& state, int maxRecords)
    {
        state.m_versionMarker = 255;
        state.m_version = number();
        for (int i = below(3); i > 0; --i)
            fill(state.m_dockAreaLayouts.emplace_back(), maxRecords);
        for (int i = below(3); i > 0; --i)
            fill(state.m_toolBarAreaLayouts.emplace_back(), maxRecords);
    }

    int below(int bound) { return m_random.bounded(bound); }

private:
    void fill(DockArea& area, int maxRecords)
    {
        for (int i = below(maxRecords + 1); i > 0; --i) {
            Dock& dock = area.docks.emplace_back();
            dock.area = number();
            dock.size = size();
            fill(dock.block, 3);
        }
        area.centralWidgetSize = size();
        for (int& corner : area.corners)
            corner = number();
    }

    void fill(Block& block, int levelsLeft)
    {
        block.tabbed = below(2) == 0;
        if (block.tabbed)
            block.currentIndex = number();
        block.orientation = octet();
        for (int i = below(4); i > 0; --i)
            fill(block.items.emplace_back(), levelsLeft);
    }

    void fill(DockItem& item, int levelsLeft)
    {
        item.isSequence = levelsLeft > 0 && below(3) == 0;
        for (int& value : item.values)
            value = number();
        if (item.isSequence) {
            item.subBlock = std::make_unique<Block>();
            fill(*item.subBlock, levelsLeft - 1);
        } else {
            item.objectName = name();
            item.flags = octet();
        }
    }

    void fill(ToolBarArea& area, int maxRecords)
    {
        area.extended = below(2) == 0;
        for (int i = below(maxRecords + 1); i > 0; --i) {
            Line& line = area.lines.emplace_back();
            line.area = number();
            for (int j = below(4); j > 0; --j)
                fill(line.items.emplace_back(), area.extended ? 4 : 3);
        }
    }

    void fill(ToolBarItem& item, int valueCount)
    {
        item.objectName = name();
        item.shown = octet();
        for (int i = 0; i < valueCount; ++i)
            item.values[i].setX(number());
    }

    unsigned char octet() { return static_cast<unsigned char>(below(256)); }

    int number()
    {
        switch (below(8)) {
        case 0:
            return -1;
        case 1:
            return std::numeric_limits<int>::min();
        case 2:
            return std::numeric_limits<int>::max();
        case 3:
            return static_cast<int>(m_random.generate());
        default:
            return below(2000);
        }
    }

    QSize size()
    {
        const int width = number();
        return QSize(width, number());
    }

    QString name()
    {
        switch (below(6)) {
        case 0:
            return QString();
        case 1:
            return QStringLiteral("");
        default:
            break;
        }
        QString text;
        for (int i = below(12); i >= 0; --i)
            text.append(
                QChar(static_cast<ushort>(below(4) == 0 ? below(0x10000) : 32 + below(95))));
        return text;
    }

    QRandomGenerator m_random;
};

} // namespace Panorel::Tests
