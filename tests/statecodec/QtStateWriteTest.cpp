// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <limits>
#include <utility>

namespace Panorel::Tests {

/** The bytes that write() gives for values built by hand and for values that were read. */
class QtStateWriteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void exampleComesBack();
    void exampleBuiltByHand();
    void emptyValue();
    void headAlone();
    void headIsWrittenAsItIs();
    void failedReadIsWrittenAsFarAsItCame();
    void sequenceOmitsCurrentIndex();
    void tabsHaveCurrentIndex();
    void nestedItemOmitsNameAndFlags();
    void dockItemOmitsSubBlock();
    void nestedItemWithoutBlockIsAnEmptySequence();
    void deeperBlocks();
    void shortSectionWritesThreeValues();
    void extendedSectionWritesFourValues();
    void yCoordinatesAreIgnored();
    void dockAreasComeFirst();
    void writingChangesNothing();
    void moreThanAnyWindowHas();

private:
    MessageWatch m_watch;
};

namespace {

DockItem dockItem(const char* name, unsigned char flags = 1)
{
    DockItem item;
    item.objectName = QString::fromLatin1(name);
    item.flags = flags;
    return item;
}

/** Gives @p state one dock-area section of one record, all zero, and returns its block. */
Block& addBlock(QtState& state)
{
    DockArea& area = state.m_dockAreaLayouts.emplace_back();
    area.centralWidgetSize = QSize(0, 0);
    Dock& dock = area.docks.emplace_back();
    dock.size = QSize(0, 0);
    return dock.block;
}

/** What is around the block of addBlock() in an otherwise empty value. */
QByteArray around(const BlobBuilder& block)
{
    BlobBuilder blob = BlobBuilder().head(-1, -1).dockSection(1).dock(0, 0, 0);
    return blob.raw(block.blob()).dockTail(0, 0, {0, 0, 0, 0}).blob();
}

ToolBarItem toolBarItem(const char* name, int v0, int v1, int v2, int v3)
{
    ToolBarItem item;
    item.objectName = QString::fromLatin1(name);
    item.shown = 1;
    const int values[4] = {v0, v1, v2, v3};
    for (int i = 0; i < 4; ++i)
        item.values[i] = QPoint(values[i], 0);
    return item;
}

} // namespace

void QtStateWriteTest::exampleComesBack()
{
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    QCOMPARE(difference(state.write(), exampleBlob()), QString());
}

void QtStateWriteTest::exampleBuiltByHand()
{
    QtState state;
    state.m_versionMarker = 255;
    state.m_version = 0;
    Block& block = addBlock(state);
    state.m_dockAreaLayouts[0].docks[0].area = 1;
    state.m_dockAreaLayouts[0].docks[0].size = QSize(200, 300);
    block.orientation = 2;
    block.items.push_back(dockItem("AB"));
    block.items[0].values[1] = 200;
    state.m_dockAreaLayouts[0].centralWidgetSize = QSize(400, 300);
    const int corners[4] = {1, 2, 1, 8};
    std::copy(std::begin(corners), std::end(corners), state.m_dockAreaLayouts[0].corners);
    ToolBarArea& toolBars = state.m_toolBarAreaLayouts.emplace_back();
    toolBars.extended = true;
    Line& line = toolBars.lines.emplace_back();
    line.area = 2;
    line.items.push_back(toolBarItem("T", 0, -1, 0, 0));
    QCOMPARE(difference(state.write(), exampleBlob()), QString());
}

void QtStateWriteTest::emptyValue()
{
    QCOMPARE(QtState().write(), QByteArray::fromHex("FFFFFFFF FFFFFFFF"));
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    state.clear();
    QCOMPARE(state.write(), QByteArray::fromHex("FFFFFFFF FFFFFFFF"));
    QVERIFY(!state.read(QtState().write()));
}

void QtStateWriteTest::headAlone()
{
    QtState state;
    QVERIFY(state.read(QByteArray::fromHex("000000FF 00000000")));
    QCOMPARE(state.write(), QByteArray::fromHex("000000FF 00000000"));
}

void QtStateWriteTest::headIsWrittenAsItIs()
{
    QtState state;
    state.m_versionMarker = 0x01020304;
    state.m_version = std::numeric_limits<int>::min();
    QCOMPARE(state.write(), QByteArray::fromHex("01020304 80000000"));
}

void QtStateWriteTest::failedReadIsWrittenAsFarAsItCame()
{
    QtState state;
    QVERIFY(!state.read(QByteArray()));
    QCOMPARE(state.write(), QByteArray::fromHex("00000000 00000000"));
    QVERIFY(!state.read(QByteArray::fromHex("000000FE 00000007 FC 00000000")));
    QCOMPARE(state.write(), QByteArray::fromHex("000000FE 00000007"));
    QVERIFY(!state.read(exampleBlob().left(116)));
    QCOMPARE(difference(state.write(), exampleBlob().left(81)), QString());
    QVERIFY(!state.read(exampleBlob() + QByteArray::fromHex("F9")));
    QCOMPARE(difference(state.write(), exampleBlob()), QString());
}

void QtStateWriteTest::sequenceOmitsCurrentIndex()
{
    QtState state;
    Block& block = addBlock(state);
    block.tabbed = false;
    block.currentIndex = 7;
    block.orientation = 1;
    QCOMPARE(difference(state.write(), around(BlobBuilder().sequence(1, 0))), QString());
}

void QtStateWriteTest::tabsHaveCurrentIndex()
{
    QtState state;
    Block& block = addBlock(state);
    block.tabbed = true;
    block.currentIndex = -7;
    block.orientation = 0xFE;
    block.items.push_back(dockItem("A", 0xC3));
    block.items.push_back(dockItem("B", 0));
    const BlobBuilder expected =
        BlobBuilder().tabs(-7, 0xFE, 2).widget("A"_s, 0xC3).widget("B"_s, 0);
    QCOMPARE(difference(state.write(), around(expected)), QString());
}

void QtStateWriteTest::nestedItemOmitsNameAndFlags()
{
    QtState state;
    Block& block = addBlock(state);
    DockItem& item = block.items.emplace_back(dockItem("not written", 3));
    item.isSequence = true;
    item.values[0] = 1;
    item.values[3] = -4;
    item.subBlock = std::make_unique<Block>();
    item.subBlock->orientation = 2;
    const BlobBuilder expected = BlobBuilder().sequence(0, 1).nested({1, 0, 0, -4}).sequence(2, 0);
    QCOMPARE(difference(state.write(), around(expected)), QString());
}

void QtStateWriteTest::dockItemOmitsSubBlock()
{
    QtState state;
    DockItem& item = addBlock(state).items.emplace_back(dockItem("A"));
    item.subBlock = std::make_unique<Block>();
    QCOMPARE(difference(state.write(), around(BlobBuilder().sequence(0, 1).widget("A"_s))),
             QString());
}

void QtStateWriteTest::nestedItemWithoutBlockIsAnEmptySequence()
{
    QtState state;
    addBlock(state).items.emplace_back().isSequence = true;
    const BlobBuilder expected = BlobBuilder().sequence(0, 1).nested().sequence(0, 0);
    QCOMPARE(difference(state.write(), around(expected)), QString());
}

void QtStateWriteTest::deeperBlocks()
{
    BlobBuilder block;
    block.sequence(1, 4).widget("A"_s);
    block.nested({1, 2, 3, 4}).tabs(1, 2, 3).widget("B"_s);
    block.nested({5, 6, 7, 8}).sequence(1, 2).widget("C"_s).nested().tabs(-1, 1, 0);
    block.widget("D"_s); // ends the tabs
    block.nested().sequence(2, 0).widget("E"_s, 2, {9, 10, 11, 12});
    BlobBuilder blob = soundHead(9).dockSection(1).dock(3, 4, 5);
    blob.raw(block.blob()).dockTail(6, 7, {8, 9, 10, 11});
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(difference(state.write(), blob.blob()), QString());
}

void QtStateWriteTest::shortSectionWritesThreeValues()
{
    QtState state;
    Line& line = state.m_toolBarAreaLayouts.emplace_back().lines.emplace_back();
    line.area = -1;
    line.items.push_back(toolBarItem("T", 1, -2, 3, 4));
    line.items.push_back(toolBarItem("U", 5, 6, 7, 8));
    BlobBuilder expected = BlobBuilder().head(-1, -1).shortToolBarSection(1).line(-1, 2);
    expected.toolBar("T"_s, 1, {1, -2, 3}).toolBar("U"_s, 1, {5, 6, 7});
    QCOMPARE(difference(state.write(), expected.blob()), QString());
}

void QtStateWriteTest::extendedSectionWritesFourValues()
{
    QtState state;
    ToolBarArea& area = state.m_toolBarAreaLayouts.emplace_back();
    area.extended = true;
    area.lines.emplace_back().items.push_back(toolBarItem("T", 1, -2, 3, 4));
    area.lines.emplace_back().area = 3;
    BlobBuilder expected = BlobBuilder().head(-1, -1).toolBarSection(2).line(0, 1);
    expected.toolBar("T"_s, 1, {1, -2, 3, 4}).line(3, 0);
    QCOMPARE(difference(state.write(), expected.blob()), QString());
}

void QtStateWriteTest::yCoordinatesAreIgnored()
{
    QtState state;
    ToolBarArea& area = state.m_toolBarAreaLayouts.emplace_back();
    area.extended = true;
    ToolBarItem item = toolBarItem("T", 1, 2, 3, 4);
    for (QPoint& value : item.values)
        value.setY(77);
    area.lines.emplace_back().items.push_back(item);
    BlobBuilder expected = BlobBuilder().head(-1, -1).toolBarSection(1).line(0, 1);
    QCOMPARE(difference(state.write(), expected.toolBar("T"_s, 1, {1, 2, 3, 4}).blob()), QString());
}

void QtStateWriteTest::dockAreasComeFirst()
{
    const QByteArray shortBars =
        BlobBuilder().shortToolBarSection(1).line(1, 1).shortToolBar("S"_s).blob();
    const QByteArray longBars = BlobBuilder().toolBarSection(1).line(2, 1).toolBar("L"_s).blob();
    const QByteArray firstDocks = BlobBuilder().dockSection(0).dockTail(1, 1).blob();
    const QByteArray secondDocks =
        BlobBuilder().dockSection(1).dock(1, 2, 3).sequence(1, 1).widget("A"_s).dockTail().blob();
    const QByteArray head = soundHead().blob();
    QtState state;
    QVERIFY(state.read(head + shortBars + firstDocks + longBars + secondDocks));
    QCOMPARE(difference(state.write(), head + firstDocks + secondDocks + shortBars + longBars),
             QString());
}

void QtStateWriteTest::writingChangesNothing()
{
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    const QtState before(state);
    QCOMPARE(state.write(), std::as_const(state).write());
    QCOMPARE(difference(state, before), QString());
}

// A name that repeats takes the memory of one, and that of all when it is written.
void QtStateWriteTest::moreThanAnyWindowHas()
{
    const QString longName(1 << 20, QLatin1Char('x'));
    DockItem item;
    item.objectName = longName;
    QtState state;
    Block& block = addBlock(state);
    block.items.assign(256, item);
    // Just over 512 MiB.
    QCOMPARE(state.write(), QByteArray());
    block.items.resize(10);
    const int itemSize = 1 + 4 + 2 * longName.size() + 1 + 16;
    QCOMPARE(state.write().size(), around(BlobBuilder().sequence(0, 0)).size() + 10 * itemSize);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateWriteTest)
#include "QtStateWriteTest.moc"
