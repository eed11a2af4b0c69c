// SPDX-License-Identifier: MIT
#pragma once

#include "support/Differences.h"

#include <QByteArray>

#include <utility>

namespace Panorel::Tests {

enum class Records {
    /** Each record holds the items of those before it in its section, as QtState::read() gives. */
    Accumulated,
    /** Each record holds only its own items, as Qt means it. */
    AsStored,
};

struct Reading
{
    bool ok = false;
    /** What a value holds after reading, whether it succeeded or not. */
    QtState state;
};

/**
 * A second reader of blobs, to hold the codec against: short, recursive, without a data stream, and
 * written from the format alone. Not for deep blobs.
 */
class ReferenceReader
{
public:
    static Reading read(const QByteArray& blob, Records records = Records::Accumulated)
    {
        ReferenceReader reader(blob, records);
        Reading reading;
        reading.ok = reader.readState(reading.state);
        return reading;
    }

private:
    ReferenceReader(const QByteArray& blob, Records records)
        : m_blob(blob)
        , m_records(records)
    {}

    bool readState(QtState& state)
    {
        state.m_versionMarker = int32();
        state.m_version = int32();
        if (!m_ok || state.m_versionMarker != 255)
            return false;
        while (m_ok && m_offset < m_blob.size()) {
            const int marker = byte();
            if (marker == 0xFD)
                readDockArea(state);
            else if (marker == 0xFC || marker == 0xFE)
                readToolBarArea(state, marker == 0xFC);
            else
                m_ok = false;
        }
        return m_ok;
    }

    void readDockArea(QtState& state)
    {
        DockArea layout;
        Dock dock;
        const int count = int32();
        for (int i = 0; m_ok && i < count; ++i) {
            if (m_records == Records::AsStored)
                dock = Dock();
            dock.area = int32();
            dock.size = size();
            readBlock(dock.block);
            layout.docks.push_back(dock);
        }
        layout.centralWidgetSize = size();
        for (int& corner : layout.corners)
            corner = int32();
        if (m_ok)
            state.m_dockAreaLayouts.push_back(layout);
    }

    void readBlock(Block& block)
    {
        const int marker = byte();
        if (marker != 0xFA && marker != 0xFC)
            m_ok = false;
        block.tabbed = marker == 0xFA;
        if (block.tabbed)
            block.currentIndex = int32();
        block.orientation = static_cast<unsigned char>(byte());
        const int count = int32();
        for (int i = 0; m_ok && i < count; ++i) {
            DockItem item;
            readItem(item);
            block.items.push_back(std::move(item));
        }
    }

    void readItem(DockItem& item)
    {
        const int marker = byte();
        item.isSequence = marker == 0xFC;
        if (marker == 0xFB) {
            item.objectName = name();
            item.flags = static_cast<unsigned char>(byte());
        } else if (marker != 0xFC) {
            m_ok = false;
        }
        for (int& value : item.values)
            value = int32();
        if (m_ok && item.isSequence) {
            item.subBlock = std::make_unique<Block>();
            readBlock(*item.subBlock);
        }
    }

    void readToolBarArea(QtState& state, bool extended)
    {
        ToolBarArea layout;
        layout.extended = extended;
        Line line;
        const int lineCount = int32();
        for (int i = 0; m_ok && i < lineCount; ++i) {
            if (m_records == Records::AsStored)
                line = Line();
            line.area = int32();
            const int itemCount = int32();
            for (int j = 0; m_ok && j < itemCount; ++j) {
                ToolBarItem item;
                item.objectName = name();
                item.shown = static_cast<unsigned char>(byte());
                for (int k = 0; k < (extended ? 4 : 3); ++k)
                    item.values[k] = QPoint(int32(), 0);
                line.items.push_back(item);
            }
            layout.lines.push_back(line);
        }
        if (m_ok)
            state.m_toolBarAreaLayouts.push_back(layout);
    }

    /** @p count bytes as a big-endian number; 0, and no further success, if they are not there. */
    quint32 number(int count)
    {
        if (m_blob.size() - m_offset < count) {
            m_offset = m_blob.size();
            m_ok = false;
            return 0;
        }
        quint32 bits = 0;
        for (int i = 0; i < count; ++i)
            bits = (bits << 8) | static_cast<unsigned char>(m_blob.at(m_offset++));
        return bits;
    }

    int byte() { return static_cast<int>(number(1)); }
    int int32() { return static_cast<int>(number(4)); }

    QSize size()
    {
        const int width = int32();
        return QSize(width, int32());
    }

    QString name()
    {
        const quint32 count = number(4);
        if (count == 0xFFFFFFFF)
            return QString();
        if (count % 2 != 0 || count > static_cast<quint32>(m_blob.size() - m_offset))
            m_ok = false;
        QString text = QStringLiteral("");
        for (quint32 i = 0; m_ok && i < count / 2; ++i)
            text.append(QChar(static_cast<ushort>(number(2))));
        return text;
    }

    const QByteArray m_blob;
    const Records m_records;
    int m_offset = 0;
    bool m_ok = true;
};

/** @p state with each record holding the items of those before it in its section as well. */
inline void accumulate(QtState& state)
{
    const auto prepend = [](const auto& before, auto& items) {
        items.insert(items.begin(), before.begin(), before.end());
    };
    for (DockArea& layout : state.m_dockAreaLayouts) {
        for (std::size_t i = 1; i < layout.docks.size(); ++i) {
            const Block& before = layout.docks[i - 1].block;
            Block& block = layout.docks[i].block;
            prepend(before.items, block.items);
            if (!block.tabbed)
                block.currentIndex = before.currentIndex;
        }
    }
    for (ToolBarArea& layout : state.m_toolBarAreaLayouts) {
        for (std::size_t i = 1; i < layout.lines.size(); ++i)
            prepend(layout.lines[i - 1].items, layout.lines[i].items);
    }
}

/** Whether no section has several records, so that nothing is repeated on reading. */
inline bool hasSingleRecords(const QtState& state)
{
    const auto singleDock = [](const DockArea& layout) { return layout.docks.size() <= 1; };
    const auto singleLine = [](const ToolBarArea& layout) { return layout.lines.size() <= 1; };
    return std::all_of(state.m_dockAreaLayouts.begin(), state.m_dockAreaLayouts.end(),
                       singleDock) &&
           std::all_of(state.m_toolBarAreaLayouts.begin(), state.m_toolBarAreaLayouts.end(),
                       singleLine);
}

} // namespace Panorel::Tests
