// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <algorithm>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace Panorel::Tests {

/** QtState and its parts as plain values: constants, beginnings, copies, moves. */
class QtStateValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void constants();
    void constantsHaveAddresses();
    void fieldTypes();
    void fieldOrder();
    void newValueIsEmpty();
    void newPartsAreEmpty();
    void isNullLooksAtTheVersionAlone();
    void clearEmptiesEverything();
    void copyIsDeep();
    void copyOutlivesTheOriginal();
    void copyOfAnEmptyValue();
    void itemCopyIsDeep();
    void itemCopyAssignment();
    void itemSelfAssignment();
    void itemAssignedFromItsOwnDescendant();
    void blockAssignedFromItsOwnDescendant();
    void itemMove();
    void itemsAreMovedWhenAListGrows();
    void partsAreAssignable();

private:
    MessageWatch m_watch;
};

namespace {

/** A nested item holding one dock widget and another nested item. */
DockItem nestedItem()
{
    DockItem item;
    item.isSequence = true;
    for (int i = 0; i < 4; ++i)
        item.values[i] = i + 1;
    item.subBlock = std::make_unique<Block>();
    item.subBlock->tabbed = true;
    item.subBlock->currentIndex = 1;
    item.subBlock->orientation = 2;
    DockItem& widget = item.subBlock->items.emplace_back();
    widget.objectName = QStringLiteral("");
    widget.flags = 3;
    widget.values[2] = -9;
    DockItem& deeper = item.subBlock->items.emplace_back();
    deeper.isSequence = true;
    deeper.subBlock = std::make_unique<Block>();
    deeper.subBlock->items.emplace_back();
    return item;
}

QByteArray fullBlob()
{
    BlobBuilder blob = soundHead(6).dockSection(2).dock(0, 1, 2).sequence(1, 2).widget("A"_s);
    blob.nested().tabs(1, 2, 1).widget(QString()).dock(1, 3, 4).tabs(1, 1, 0).dockTail();
    blob.dockSection(0).dockTail();
    blob.toolBarSection(2).line(0, 1).toolBar("T"_s, 1, {1, 2, 3, 4}).line(1, 0);
    return blob.shortToolBarSection(0).blob();
}

template<auto value, typename Type>
constexpr bool isConstant = std::is_same_v<decltype(value), Type>;

/** Whether the fields are in @p whole one after the other, the first of them at its beginning.
 */
template<typename Whole, typename... Fields>
bool areInOrder(const Whole& whole, const Fields&... fields)
{
    const std::vector<const void*> addresses{&fields...};
    return addresses.front() == &whole &&
           std::is_sorted(addresses.begin(), addresses.end(), std::less<const void*>());
}

} // namespace

void QtStateValueTest::constants()
{
    static_assert(isConstant<QtState::QMainWindowLayout_VersionMarker, int>);
    static_assert(isConstant<QtState::QDockAreaLayout_DockWidgetStateMarker, unsigned char>);
    static_assert(isConstant<QtState::QToolBarAreaLayout_ToolBarStateMarker, unsigned char>);
    static_assert(isConstant<QtState::QToolBarAreaLayout_ToolBarStateMarkerEx, unsigned char>);
    static_assert(isConstant<QtState::QDockAreaLayoutInfo_SequenceMarker, unsigned char>);
    static_assert(isConstant<QtState::QDockAreaLayoutInfo_TabMarker, unsigned char>);
    static_assert(isConstant<QtState::QDockAreaLayoutInfo_WidgetMarker, unsigned char>);
    static_assert(isConstant<QtState::VERSION_PRE43, bool>);
    QCOMPARE(int(QtState::QMainWindowLayout_VersionMarker), 255);
    QCOMPARE(int(QtState::QDockAreaLayout_DockWidgetStateMarker), 0xFD);
    QCOMPARE(int(QtState::QToolBarAreaLayout_ToolBarStateMarker), 0xFE);
    QCOMPARE(int(QtState::QToolBarAreaLayout_ToolBarStateMarkerEx), 0xFC);
    QCOMPARE(int(QtState::QDockAreaLayoutInfo_SequenceMarker), 0xFC);
    QCOMPARE(int(QtState::QDockAreaLayoutInfo_TabMarker), 0xFA);
    QCOMPARE(int(QtState::QDockAreaLayoutInfo_WidgetMarker), 0xFB);
    QCOMPARE(bool(QtState::VERSION_PRE43), false);
}

// An address makes the linker look for the exported definition.
void QtStateValueTest::constantsHaveAddresses()
{
    const int* const marker = &QtState::QMainWindowLayout_VersionMarker;
    QCOMPARE(*marker, 255);
    const unsigned char* const markers[] = {&QtState::QToolBarAreaLayout_ToolBarStateMarker,
                                            &QtState::QToolBarAreaLayout_ToolBarStateMarkerEx,
                                            &QtState::QDockAreaLayout_DockWidgetStateMarker,
                                            &QtState::QDockAreaLayoutInfo_SequenceMarker,
                                            &QtState::QDockAreaLayoutInfo_TabMarker,
                                            &QtState::QDockAreaLayoutInfo_WidgetMarker};
    const int values[] = {0xFE, 0xFC, 0xFD, 0xFC, 0xFA, 0xFB};
    for (int i = 0; i < 6; ++i)
        QCOMPARE(int(*markers[i]), values[i]);
    const bool* const pre43 = &QtState::VERSION_PRE43;
    QCOMPARE(*pre43, false);
}

void QtStateValueTest::fieldTypes()
{
    static_assert(std::is_same_v<decltype(QtState::m_versionMarker), int>);
    static_assert(std::is_same_v<decltype(QtState::m_version), int>);
    static_assert(std::is_same_v<decltype(QtState::m_dockAreaLayouts), std::vector<DockArea>>);
    static_assert(
        std::is_same_v<decltype(QtState::m_toolBarAreaLayouts), std::vector<ToolBarArea>>);
    static_assert(std::is_same_v<decltype(DockArea::docks), std::vector<Dock>>);
    static_assert(std::is_same_v<decltype(DockArea::centralWidgetSize), QSize>);
    static_assert(std::is_same_v<decltype(DockArea::corners), int[4]>);
    static_assert(std::is_same_v<decltype(Dock::area), int>);
    static_assert(std::is_same_v<decltype(Dock::size), QSize>);
    static_assert(std::is_same_v<decltype(Dock::block), Block>);
    static_assert(std::is_same_v<decltype(Block::tabbed), bool>);
    static_assert(std::is_same_v<decltype(Block::currentIndex), int>);
    static_assert(std::is_same_v<decltype(Block::orientation), unsigned char>);
    static_assert(std::is_same_v<decltype(Block::items), std::vector<DockItem>>);
    static_assert(std::is_same_v<decltype(DockItem::isSequence), bool>);
    static_assert(std::is_same_v<decltype(DockItem::objectName), QString>);
    static_assert(std::is_same_v<decltype(DockItem::flags), unsigned char>);
    static_assert(std::is_same_v<decltype(DockItem::values), int[4]>);
    static_assert(std::is_same_v<decltype(*DockItem::subBlock), Block&>);
    static_assert(std::is_same_v<decltype(ToolBarArea::extended), bool>);
    static_assert(std::is_same_v<decltype(ToolBarArea::lines), std::vector<Line>>);
    static_assert(std::is_same_v<decltype(Line::area), int>);
    static_assert(std::is_same_v<decltype(Line::items), std::vector<ToolBarItem>>);
    static_assert(std::is_same_v<decltype(ToolBarItem::objectName), QString>);
    static_assert(std::is_same_v<decltype(ToolBarItem::shown), unsigned char>);
    static_assert(std::is_same_v<decltype(ToolBarItem::values), QPoint[4]>);
    static_assert(!std::is_polymorphic_v<QtState>);
    static_assert(std::is_copy_constructible_v<QtState>);
    static_assert(std::is_copy_assignable_v<QtState>);
    static_assert(std::is_nothrow_move_constructible_v<DockItem>);
    QVERIFY(std::is_nothrow_move_constructible_v<Dock>);
}

// Programs that were linked with one order of the fields read another one wrongly.
void QtStateValueTest::fieldOrder()
{
    const QtState state;
    QVERIFY(areInOrder(state, state.m_versionMarker, state.m_version, state.m_dockAreaLayouts,
                       state.m_toolBarAreaLayouts));
    const DockArea docks;
    QVERIFY(areInOrder(docks, docks.docks, docks.centralWidgetSize, docks.corners));
    const Dock dock;
    QVERIFY(areInOrder(dock, dock.area, dock.size, dock.block));
    const Block& block = dock.block;
    QVERIFY(areInOrder(block, block.tabbed, block.currentIndex, block.orientation, block.items));
    const DockItem item;
    QVERIFY(
        areInOrder(item, item.isSequence, item.objectName, item.flags, item.values, item.subBlock));
    const ToolBarArea toolBars;
    QVERIFY(areInOrder(toolBars, toolBars.extended, toolBars.lines));
    const Line line;
    QVERIFY(areInOrder(line, line.area, line.items));
    const ToolBarItem toolBar;
    QVERIFY(areInOrder(toolBar, toolBar.objectName, toolBar.shown, toolBar.values));
}

void QtStateValueTest::newValueIsEmpty()
{
    const QtState state;
    QCOMPARE(state.m_versionMarker, -1);
    QCOMPARE(state.m_version, -1);
    QVERIFY(state.isNull());
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

void QtStateValueTest::newPartsAreEmpty()
{
    const Dock dock;
    QVERIFY(!dock.size.isValid());
    QVERIFY(dock.block.items.empty());
    QCOMPARE(dock.block.tabbed, false);
    const DockItem item;
    QCOMPARE(item.isSequence, false);
    QVERIFY(item.objectName.isNull());
    QVERIFY(!item.subBlock);
    const ToolBarItem toolBar;
    for (const QPoint& value : toolBar.values)
        QCOMPARE(value, QPoint(0, 0));
    QVERIFY(DockArea().docks.empty());
    QVERIFY(ToolBarArea().lines.empty());
    QVERIFY(Line().items.empty());
}

void QtStateValueTest::isNullLooksAtTheVersionAlone()
{
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    state.m_version = -1;
    QVERIFY(state.isNull());
    state.m_version = -2;
    QVERIFY(!state.isNull());
    state.m_version = 0;
    state.m_versionMarker = -1;
    QVERIFY(!state.isNull());
    QtState empty;
    empty.m_version = 1;
    QVERIFY(!empty.isNull());
    empty.m_version = -1;
    empty.m_versionMarker = 255;
    QVERIFY(empty.isNull());
}

void QtStateValueTest::clearEmptiesEverything()
{
    QtState state;
    QVERIFY(state.read(fullBlob()));
    state.clear();
    QCOMPARE(state.m_versionMarker, -1);
    QCOMPARE(state.m_version, -1);
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QVERIFY(state.isNull());
    state.clear();
    QVERIFY(state.isNull());
}

void QtStateValueTest::copyIsDeep()
{
    QtState state;
    QVERIFY(state.read(fullBlob()));
    const QByteArray bytes = state.write();
    QtState copy(state);
    QCOMPARE(difference(copy, state), QString());
    QCOMPARE(difference(copy.write(), bytes), QString());
    Block& block = copy.m_dockAreaLayouts.at(0).docks.at(0).block;
    QVERIFY(block.items.at(1).subBlock !=
            state.m_dockAreaLayouts[0].docks[0].block.items[1].subBlock);
    block.items[1].subBlock->items.at(0).objectName = "changed"_s;
    copy.m_toolBarAreaLayouts.at(0).lines.at(0).items.at(0).shown = 9;
    copy.m_version = 1;
    QCOMPARE(difference(state.write(), bytes), QString());
}

void QtStateValueTest::copyOutlivesTheOriginal()
{
    auto state = std::make_unique<QtState>();
    QVERIFY(state->read(fullBlob()));
    const QByteArray bytes = state->write();
    const QtState copy(*state);
    state.reset();
    QCOMPARE(difference(copy.write(), bytes), QString());
}

void QtStateValueTest::copyOfAnEmptyValue()
{
    const QtState empty;
    const QtState copy(empty);
    QVERIFY(copy.isNull());
    QCOMPARE(copy.m_versionMarker, -1);
    QCOMPARE(copy.write(), QByteArray::fromHex("FFFFFFFF FFFFFFFF"));
}

void QtStateValueTest::itemCopyIsDeep()
{
    const DockItem item = nestedItem();
    DockItem copy(item);
    QCOMPARE(difference(copy, item), QString());
    QVERIFY(copy.subBlock != item.subBlock);
    QVERIFY(copy.subBlock->items[1].subBlock != item.subBlock->items[1].subBlock);
    QCOMPARE(copy.subBlock->tabbed, true);
    QCOMPARE(copy.subBlock->currentIndex, 1);
    QCOMPARE(int(copy.subBlock->orientation), 2);
    QCOMPARE(copy.subBlock->items.size(), std::size_t(2));
    copy.subBlock->items[1].subBlock->items.clear();
    QCOMPARE(item.subBlock->items[1].subBlock->items.size(), std::size_t(1));
}

void QtStateValueTest::itemCopyAssignment()
{
    const DockItem item = nestedItem();
    DockItem other = nestedItem();
    other.subBlock->items.clear();
    other = item;
    QCOMPARE(difference(other, item), QString());
    QVERIFY(other.subBlock != item.subBlock);
    other = DockItem();
    QVERIFY(!other.subBlock);
    QCOMPARE(other.isSequence, false);
    QCOMPARE(other.values[0], 0);
}

void QtStateValueTest::itemSelfAssignment()
{
    DockItem item = nestedItem();
    const DockItem& alias = item;
    item = alias;
    QCOMPARE(difference(item, nestedItem()), QString());
}

void QtStateValueTest::itemAssignedFromItsOwnDescendant()
{
    DockItem item = nestedItem();
    item = item.subBlock->items[1];
    QCOMPARE(item.subBlock->items.size(), std::size_t(1));
    item = std::move(item.subBlock->items[0]);
    QVERIFY(!item.subBlock);
    QVERIFY(item.objectName.isNull());
}

void QtStateValueTest::blockAssignedFromItsOwnDescendant()
{
    Block block;
    block.items.push_back(nestedItem());
    block.items.push_back(nestedItem());
    const Block inner(*block.items[0].subBlock);
    QVERIFY(inner.items.size() > 1);
    Block moved(block);

    block = *block.items[0].subBlock;
    QCOMPARE(difference(block, inner), QString());
    moved = std::move(*moved.items[0].subBlock);
    QCOMPARE(difference(moved, inner), QString());
    const Block& alias = block;
    block = alias;
    QCOMPARE(difference(block, inner), QString());
}

void QtStateValueTest::itemMove()
{
    DockItem item = nestedItem();
    const Block* const block = item.subBlock.get();
    DockItem moved(std::move(item));
    QCOMPARE(static_cast<const Block*>(moved.subBlock.get()), block);
    QCOMPARE(difference(moved, nestedItem()), QString());
    DockItem assigned = nestedItem();
    assigned = std::move(moved);
    QCOMPARE(static_cast<const Block*>(assigned.subBlock.get()), block);
    QCOMPARE(difference(assigned, nestedItem()), QString());
}

void QtStateValueTest::itemsAreMovedWhenAListGrows()
{
    std::vector<DockItem> items;
    items.push_back(nestedItem());
    const Block* const block = items[0].subBlock.get();
    items.reserve(items.capacity() + 100);
    QCOMPARE(static_cast<const Block*>(items[0].subBlock.get()), block);
}

void QtStateValueTest::partsAreAssignable()
{
    QtState state;
    QVERIFY(state.read(fullBlob()));
    const DockArea docks = state.m_dockAreaLayouts.at(0);
    const ToolBarArea toolBars = state.m_toolBarAreaLayouts.at(0);
    QtState other;
    other.m_dockAreaLayouts = state.m_dockAreaLayouts;
    other.m_toolBarAreaLayouts = state.m_toolBarAreaLayouts;
    other.m_dockAreaLayouts[1] = docks;
    other.m_toolBarAreaLayouts[1] = toolBars;
    QCOMPARE(difference(other.m_dockAreaLayouts[1], docks), QString());
    QCOMPARE(difference(other.m_toolBarAreaLayouts[1], toolBars), QString());
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateValueTest)
#include "QtStateValueTest.moc"
