// SPDX-License-Identifier: MIT
#include "value/StateReader.h"

#include <panorel/QtState.h>

#include <QtEndian>

namespace Panorel::Kit::Detail {

namespace {

constexpr int intSize = sizeof(qint32);

template<typename Value>
int sizeOf(const std::vector<Value>& values)
{
    return static_cast<int>(values.size());
}

} // namespace

StateTree StateReader::read(const QByteArray& bytes)
{
    StateTree tree;
    tree.bytes = bytes;
    StateReader reader(tree);
    tree.isReadable = reader.readSections();
    tree.readBytes = reader.m_offset;
    if (tree.isReadable)
        return tree;
    StateTree unreadable;
    unreadable.bytes = bytes;
    unreadable.readBytes = tree.readBytes;
    unreadable.marker = tree.marker;
    unreadable.version = tree.version;
    return unreadable;
}

StateReader::StateReader(StateTree& tree)
    : m_tree(tree)
    , m_data(tree.bytes.constData())
    , m_size(tree.bytes.size())
{}

bool StateReader::readSections()
{
    if (!has(2 * intSize))
        return false;
    (void)read(m_tree.marker);
    (void)read(m_tree.version);
    if (m_tree.marker != QtState::QMainWindowLayout_VersionMarker) {
        m_offset = 0;
        return false;
    }
    while (m_offset < m_size) {
        StateSection section;
        section.offset = m_offset;
        (void)read(section.marker);
        switch (section.marker) {
        case QtState::QDockAreaLayout_DockWidgetStateMarker:
            if (!readDockAreas(section))
                return false;
            break;
        case floatingMarker:
            if (!readFloating(section))
                return false;
            break;
        case QtState::QToolBarAreaLayout_ToolBarStateMarker:
        case QtState::QToolBarAreaLayout_ToolBarStateMarkerEx:
            if (!readToolBars(section))
                return false;
            break;
        default:
            m_offset = section.offset;
            return false;
        }
        m_tree.sections.push_back(section);
    }
    return true;
}

bool StateReader::readDockAreas(StateSection& section)
{
    int count = 0;
    if (!read(count))
        return false;
    section.first = sizeOf(m_tree.docks);
    for (int i = 0; i < count; ++i) {
        StateDock dock;
        dock.offset = m_offset;
        dock.block = sizeOf(m_tree.items);
        if (!read(dock.area) || !read(dock.size) || !readBlock())
            return false;
        m_tree.docks.push_back(dock);
    }
    section.end = sizeOf(m_tree.docks);
    return read(section.centralSize) && read(section.corners.data(), 4);
}

bool StateReader::readFloating(StateSection& section)
{
    StateFloating floating;
    floating.offset = section.offset;
    floating.block = sizeOf(m_tree.items);
    std::array<int, 4> edges{}; // QRect's stream form: left, top, right and bottom
    if (!read(edges.data(), 4) || !readBlock())
        return false;
    // No desktop is larger, and the distance of two edges has to fit into an int.
    constexpr int farthest = 1 << 29;
    for (int& edge : edges)
        edge = qBound(-farthest, edge, farthest);
    floating.geometry = QRect(QPoint(edges[0], edges[1]), QPoint(edges[2], edges[3]));
    section.first = sizeOf(m_tree.floating);
    m_tree.floating.push_back(floating);
    section.end = sizeOf(m_tree.floating);
    return true;
}

bool StateReader::readToolBars(StateSection& section)
{
    const bool isExtended = section.marker == QtState::QToolBarAreaLayout_ToolBarStateMarkerEx;
    m_valueCount = isExtended ? 4 : 3;
    int count = 0;
    if (!read(count))
        return false;
    section.first = sizeOf(m_tree.lines);
    for (int i = 0; i < count; ++i) {
        if (!readLine())
            return false;
    }
    section.end = sizeOf(m_tree.lines);
    return true;
}

bool StateReader::readLine()
{
    StateLine line;
    line.offset = m_offset;
    line.first = sizeOf(m_tree.toolBars);
    int count = 0;
    if (!read(line.area) || !read(count))
        return false;
    for (int i = 0; i < count; ++i) {
        StateToolBar& toolBar = m_tree.toolBars.emplace_back();
        toolBar.offset = m_offset;
        if (!read(toolBar.name) || !read(toolBar.flags) ||
            !read(toolBar.values.data(), m_valueCount))
            return false;
    }
    line.end = sizeOf(m_tree.toolBars);
    m_tree.lines.push_back(line);
    return true;
}

bool StateReader::readBlock()
{
    struct OpenBlock
    {
        int index;
        int itemsLeft;
    };
    int itemCount = 0;
    StateItem& top = m_tree.items.emplace_back();
    top.offset = m_offset;
    if (!readBlockHead(top, itemCount))
        return false;
    std::vector<OpenBlock> open{{sizeOf(m_tree.items) - 1, itemCount}};
    while (!open.empty()) {
        if (open.back().itemsLeft <= 0) {
            m_tree.items[static_cast<std::size_t>(open.back().index)].end = sizeOf(m_tree.items);
            open.pop_back();
            continue;
        }
        --open.back().itemsLeft;
        const int index = sizeOf(m_tree.items);
        StateItem& item = m_tree.items.emplace_back();
        item.end = index + 1;
        if (!readItemHead(item) || (item.isBlock && !readBlockHead(item, itemCount)))
            return false;
        if (item.isBlock)
            open.push_back({index, itemCount});
    }
    return true;
}

bool StateReader::readBlockHead(StateItem& block, int& itemCount)
{
    unsigned char marker = 0;
    if (!read(marker))
        return false;
    block.isBlock = true;
    block.isTabbed = marker == QtState::QDockAreaLayoutInfo_TabMarker;
    if (!block.isTabbed && marker != QtState::QDockAreaLayoutInfo_SequenceMarker) {
        --m_offset;
        return false;
    }
    return (!block.isTabbed || read(block.currentIndex)) && read(block.orientation) &&
           read(itemCount);
}

bool StateReader::readItemHead(StateItem& item)
{
    item.offset = m_offset;
    unsigned char marker = 0;
    if (!read(marker))
        return false;
    item.isBlock = marker == QtState::QDockAreaLayoutInfo_SequenceMarker;
    if (item.isBlock)
        return read(item.values.data(), 4);
    if (marker != QtState::QDockAreaLayoutInfo_WidgetMarker) {
        --m_offset;
        return false;
    }
    return read(item.name) && read(item.flags) && read(item.values.data(), 4);
}

bool StateReader::read(unsigned char& value)
{
    if (!has(1))
        return false;
    value = static_cast<unsigned char>(m_data[m_offset++]);
    return true;
}

bool StateReader::read(int& value)
{
    return read(&value, 1);
}

bool StateReader::read(QSize& size)
{
    return read(size.rwidth()) && read(size.rheight());
}

bool StateReader::read(QString& name)
{
    if (!has(intSize))
        return false;
    const quint32 count = qFromBigEndian<quint32>(m_data + m_offset);
    if (count == 0xFFFFFFFF) {
        name = QString();
    } else {
        if (count % 2 != 0 || count > static_cast<quint32>(m_size - m_offset - intSize))
            return false;
        name = QString(static_cast<int>(count / 2), Qt::Uninitialized);
        qFromBigEndian<quint16>(m_data + m_offset + intSize, count / 2, name.data());
        m_offset += static_cast<int>(count);
    }
    m_offset += intSize;
    return true;
}

bool StateReader::read(int* values, int count)
{
    if (!has(count * intSize))
        return false;
    qFromBigEndian<qint32>(m_data + m_offset, count, values);
    m_offset += count * intSize;
    return true;
}

bool StateReader::has(int count) const
{
    return m_size - m_offset >= count;
}

} // namespace Panorel::Kit::Detail
