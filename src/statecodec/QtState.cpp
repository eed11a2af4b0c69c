// SPDX-License-Identifier: MIT
#include <panorel/QtState.h>

#include "ByteRun.h"
#include "LimitedBuffer.h"

#include <QByteArray>
#include <QDataStream>
#include <QFile>

#include <cstddef>
#include <new>
#include <utility>

namespace Panorel {

using Dock = QtState::DockAreaLayout::Dock;
using Block = Dock::Block;
using Item = Block::Item;
using Line = QtState::ToolBarAreaLayout::Line;
using Detail::ByteRun;

// Their values are in the class. Defined here, they have addresses, which are exported.
const int QtState::QMainWindowLayout_VersionMarker;
const unsigned char QtState::QToolBarAreaLayout_ToolBarStateMarker;
const unsigned char QtState::QToolBarAreaLayout_ToolBarStateMarkerEx;
const unsigned char QtState::QDockAreaLayout_DockWidgetStateMarker;
const unsigned char QtState::QDockAreaLayoutInfo_SequenceMarker;
const unsigned char QtState::QDockAreaLayoutInfo_TabMarker;
const unsigned char QtState::QDockAreaLayoutInfo_WidgetMarker;
const bool QtState::VERSION_PRE43;

namespace {

bool isOk(const QDataStream& stream)
{
    return stream.status() == QDataStream::Ok;
}

// Reads the fields before the items.
bool readBlockHead(QDataStream& stream, Block& block, int& itemCount)
{
    quint8 marker = 0;
    stream >> marker;
    block.tabbed = marker == QtState::QDockAreaLayoutInfo_TabMarker;
    if (!block.tabbed && marker != QtState::QDockAreaLayoutInfo_SequenceMarker)
        return false;
    ByteRun run;
    if (!run.readFrom(stream, (block.tabbed ? 2 : 1) * ByteRun::intSize + 1))
        return false;
    if (block.tabbed)
        block.currentIndex = run.takeInt();
    block.orientation = run.takeByte();
    itemCount = run.takeInt();
    return true;
}

// Reads an item up to its nested block, which it creates.
bool readItemHead(QDataStream& stream, Item& item)
{
    quint8 marker = 0;
    stream >> marker;
    item.isSequence = marker == QtState::QDockAreaLayoutInfo_SequenceMarker;
    if (!item.isSequence) {
        if (marker != QtState::QDockAreaLayoutInfo_WidgetMarker)
            return false;
        stream >> item.objectName;
    }
    ByteRun run;
    if (!run.readFrom(stream, 4 * ByteRun::intSize + (item.isSequence ? 0 : 1)))
        return false;
    if (item.isSequence)
        item.subBlock = std::make_unique<Block>();
    else
        item.flags = run.takeByte();
    for (int& value : item.values)
        value = run.takeInt();
    return true;
}

void writeBlockHead(QDataStream& stream, const Block& block)
{
    ByteRun run;
    if (block.tabbed)
        run.putByte(QtState::QDockAreaLayoutInfo_TabMarker).putInt(block.currentIndex);
    else
        run.putByte(QtState::QDockAreaLayoutInfo_SequenceMarker);
    run.putByte(block.orientation).putCount(block.items.size()).writeTo(stream);
}

void writeItemHead(QDataStream& stream, const Item& item)
{
    ByteRun run;
    if (item.isSequence) {
        run.putByte(QtState::QDockAreaLayoutInfo_SequenceMarker);
    } else {
        stream << QtState::QDockAreaLayoutInfo_WidgetMarker << item.objectName;
        run.putByte(item.flags);
    }
    for (const int value : item.values)
        run.putInt(value);
    run.writeTo(stream);
}

// Gives each record the leading part of @p items that ends where its own items end; @p itemsOf
// names the list to fill. Only the last record holds them all, so only it can take them over.
template<typename Record, typename ItemType, typename ItemsOf>
void distributeItems(std::vector<Record>& records, const std::vector<std::size_t>& ends,
                     std::vector<ItemType>&& items, ItemsOf itemsOf)
{
    if (records.empty())
        return;
    for (std::size_t i = 0; i + 1 < records.size(); ++i) {
        const auto end = items.cbegin() + static_cast<std::ptrdiff_t>(ends[i]);
        itemsOf(records[i]).assign(items.cbegin(), end);
    }
    itemsOf(records.back()) = std::move(items);
}

} // namespace

// Nested blocks are read and written with a list of the open ones instead of recursion: a blob of a
// few megabytes can nest deeper than any stack.

QtState::QtState() = default;

QtState::QtState(const QtState& other) = default;

QtState::~QtState() = default;

QtState& QtState::operator=(const QtState& other)
{
    // Deliberate: the generic swap is built from copy construction and this very assignment, so
    // assigning a distinct value never completes. The attribute at the declaration warns callers.
    if (this != &other) {
        QtState copy(other);
        std::swap(*this, copy);
    }
    return *this;
}

bool QtState::read(const QByteArray& state)
{
    clear();
    QDataStream stream(state);
    stream >> m_versionMarker >> m_version;
    if (!isOk(stream) || m_versionMarker != QMainWindowLayout_VersionMarker)
        return false;
    try {
        return readSections(stream);
    } catch (const std::bad_alloc&) { // Repeated items can take far more memory than the blob.
        return false;
    }
}

bool QtState::readSections(QDataStream& stream)
{
    while (!stream.atEnd()) {
        quint8 marker = 0;
        stream >> marker;
        switch (marker) {
        case QDockAreaLayout_DockWidgetStateMarker:
            if (!readDockAreaLayout(stream))
                return false;
            break;
        case QToolBarAreaLayout_ToolBarStateMarker:
        case QToolBarAreaLayout_ToolBarStateMarkerEx:
            if (!readToolBarAreaLayout(stream, marker))
                return false;
            break;
        default:
            return false;
        }
    }
    return isOk(stream);
}

bool QtState::readDockAreaLayout(QDataStream& stream)
{
    DockAreaLayout layout;
    std::vector<std::size_t> itemEnds;
    // Deliberate: the block is not emptied between records, so each dock record's block holds the
    // items of all earlier dock records of the same section followed by its own. They are handed
    // out once the section is complete, so that the repetition costs nothing in one that fails.
    Block block;
    int dockCount = 0;
    stream >> dockCount;
    for (int i = 0; i < dockCount; ++i) {
        ByteRun head;
        if (!head.readFrom(stream, 3 * ByteRun::intSize) || !readDockAreaLayoutBlock(stream, block))
            return false;
        Dock& dock = layout.docks.emplace_back();
        dock.area = head.takeInt();
        dock.size = head.takeSize();
        dock.block.tabbed = block.tabbed;
        dock.block.currentIndex = block.currentIndex;
        dock.block.orientation = block.orientation;
        itemEnds.push_back(block.items.size());
    }
    ByteRun tail;
    if (!tail.readFrom(stream, 6 * ByteRun::intSize))
        return false;
    layout.centralWidgetSize = tail.takeSize();
    for (int& corner : layout.corners)
        corner = tail.takeInt();
    distributeItems(layout.docks, itemEnds, std::move(block.items),
                    [](Dock& dock) -> std::vector<Item>& { return dock.block.items; });
    m_dockAreaLayouts.push_back(std::move(layout));
    return true;
}

bool QtState::readDockAreaLayoutBlock(QDataStream& stream, Block& block) const
{
    struct OpenBlock
    {
        Block* block;
        int itemsLeft;
    };
    int itemCount = 0;
    if (!readBlockHead(stream, block, itemCount))
        return false;
    std::vector<OpenBlock> open{{&block, itemCount}};
    while (!open.empty()) {
        if (open.back().itemsLeft <= 0) {
            open.pop_back();
            continue;
        }
        --open.back().itemsLeft;
        Item& item = open.back().block->items.emplace_back();
        if (!readItemHead(stream, item))
            return false;
        if (item.isSequence) {
            if (!readBlockHead(stream, *item.subBlock, itemCount))
                return false;
            open.push_back({item.subBlock.get(), itemCount});
        }
    }
    return true;
}

bool QtState::readToolBarAreaLayout(QDataStream& stream, int marker)
{
    ToolBarAreaLayout layout;
    layout.extended = marker == QToolBarAreaLayout_ToolBarStateMarkerEx;
    // Deliberate: three values for a short section, four for an extended one. A short section that
    // carries another number is misread, not adjusted to.
    const int valueCount = layout.extended ? 4 : 3;
    std::vector<std::size_t> itemEnds;
    // Deliberate: not emptied between lines, so each line holds the items of all earlier lines of
    // the same section followed by its own. Handed out at the end as for dock records.
    std::vector<ToolBarAreaLayout::Item> items;
    int lineCount = 0;
    stream >> lineCount;
    for (int i = 0; i < lineCount; ++i) {
        ByteRun head;
        if (!head.readFrom(stream, 2 * ByteRun::intSize))
            return false;
        const int area = head.takeInt();
        const int itemCount = head.takeInt();
        for (int j = 0; j < itemCount; ++j) {
            ToolBarAreaLayout::Item& item = items.emplace_back();
            stream >> item.objectName;
            ByteRun rest;
            if (!rest.readFrom(stream, valueCount * ByteRun::intSize + 1))
                return false;
            item.shown = rest.takeByte();
            for (int k = 0; k < valueCount; ++k)
                item.values[k].setX(rest.takeInt());
        }
        layout.lines.emplace_back().area = area;
        itemEnds.push_back(items.size());
    }
    if (!isOk(stream))
        return false;
    distributeItems(layout.lines, itemEnds, std::move(items),
                    [](Line& line) -> std::vector<ToolBarAreaLayout::Item>& { return line.items; });
    m_toolBarAreaLayouts.push_back(std::move(layout));
    return true;
}

QByteArray QtState::write() const
{
    QByteArray state;
    Detail::LimitedBuffer buffer(state);
    QDataStream stream(&buffer);
    try {
        stream << m_versionMarker << m_version;
        for (const DockAreaLayout& layout : m_dockAreaLayouts)
            writeDockAreaLayout(stream, layout);
        for (const ToolBarAreaLayout& layout : m_toolBarAreaLayouts)
            writeToolBarAreaLayout(stream, layout);
    } catch (const std::bad_alloc&) {
        return QByteArray();
    }
    return isOk(stream) ? state : QByteArray();
}

void QtState::writeDockAreaLayout(QDataStream& stream, const DockAreaLayout& layout) const
{
    ByteRun()
        .putByte(QDockAreaLayout_DockWidgetStateMarker)
        .putCount(layout.docks.size())
        .writeTo(stream);
    for (const Dock& dock : layout.docks) {
        ByteRun().putInt(dock.area).putSize(dock.size).writeTo(stream);
        writeDockAreaLayoutBlock(stream, dock.block);
    }
    ByteRun tail;
    tail.putSize(layout.centralWidgetSize);
    for (const int corner : layout.corners)
        tail.putInt(corner);
    tail.writeTo(stream);
}

void QtState::writeDockAreaLayoutBlock(QDataStream& stream, const Block& block) const
{
    struct OpenBlock
    {
        const Block* block;
        std::size_t nextItem;
    };
    static const Block emptyBlock{};
    writeBlockHead(stream, block);
    std::vector<OpenBlock> open{{&block, 0}};
    while (!open.empty()) {
        OpenBlock& current = open.back();
        if (current.nextItem == current.block->items.size()) {
            open.pop_back();
            continue;
        }
        const Item& item = current.block->items[current.nextItem++];
        writeItemHead(stream, item);
        if (item.isSequence) {
            const Block* subBlock = item.subBlock ? item.subBlock.get() : &emptyBlock;
            writeBlockHead(stream, *subBlock);
            open.push_back({subBlock, 0});
        }
    }
}

void QtState::writeToolBarAreaLayout(QDataStream& stream, const ToolBarAreaLayout& layout) const
{
    const int valueCount = layout.extended ? 4 : 3;
    ByteRun()
        .putByte(layout.extended ? QToolBarAreaLayout_ToolBarStateMarkerEx
                                 : QToolBarAreaLayout_ToolBarStateMarker)
        .putCount(layout.lines.size())
        .writeTo(stream);
    for (const Line& line : layout.lines) {
        ByteRun().putInt(line.area).putCount(line.items.size()).writeTo(stream);
        for (const ToolBarAreaLayout::Item& item : line.items) {
            stream << item.objectName;
            ByteRun rest;
            rest.putByte(item.shown);
            for (int k = 0; k < valueCount; ++k)
                rest.putInt(item.values[k].x());
            rest.writeTo(stream);
        }
    }
}

QtState QtState::merge(const QtState& a, const QtState& b)
{
    QtState merged;
    // Deliberate: whether a is null is not asked. An empty a gives a blob that every reader
    // rejects, so a window without a stored layout keeps the one it has.
    merged.m_versionMarker = a.m_versionMarker;
    merged.m_version = a.m_version;
    merged.m_dockAreaLayouts = a.m_dockAreaLayouts;
    if (!b.isNull())
        merged.m_toolBarAreaLayouts = b.m_toolBarAreaLayouts;
    return merged;
}

void QtState::dump(const QString& fileName) const
{
    // QFile would log a warning about an empty name.
    if (fileName.isEmpty())
        return;
    // Deliberate: opening creates or empties the file and nothing is written to it; a file that
    // cannot be opened is not reported.
    QFile file(fileName);
    (void)file.open(QIODevice::WriteOnly | QIODevice::Text);
}

bool QtState::isNull() const
{
    return m_version == -1;
}

void QtState::clear()
{
    m_versionMarker = -1;
    m_version = -1;
    m_dockAreaLayouts.clear();
    m_toolBarAreaLayouts.clear();
}

} // namespace Panorel
