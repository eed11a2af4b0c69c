// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <limits>

namespace Panorel::Tests {

/** What a value holds after read() succeeded. */
class QtStateReadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void exampleHoldsEveryField();
    void headAloneIsValid();
    void version_data();
    void version();
    void versionMinusOneIsReadAndNull();
    void dockFields();
    void countsOfZeroOrLess_data();
    void countsOfZeroOrLess();
    void unvalidatedByte_data();
    void unvalidatedByte();
    void currentIndexOnlyAfterTabMarker();
    void nestedBlock();
    void tabsInsideSequenceInsideTabs();
    void extendedSectionTakesFourValues();
    void shortSectionTakesThreeValues();
    void sectionMarkersMeanOtherThingsInside();
    void sectionsMayRepeatInAnyOrder();
    void earlierContentIsGone();

private:
    MessageWatch m_watch;
};

namespace {

void compareValues(const DockItem& item, std::initializer_list<int> expected)
{
    int i = 0;
    for (const int value : expected)
        QCOMPARE(item.values[i++], value);
}

void compareValues(const ToolBarItem& item, std::initializer_list<int> expected)
{
    int i = 0;
    for (const int value : expected)
        QCOMPARE(item.values[i++], QPoint(value, 0));
}

/** A blob with one dock-area section of one record, whose block is @p block. */
QByteArray blobAround(const BlobBuilder& block)
{
    return soundHead().dockSection(1).dock(0, 10, 20).raw(block.blob()).dockTail().blob();
}

} // namespace

void QtStateReadTest::exampleHoldsEveryField()
{
    QCOMPARE(exampleBlob().size(), 117);
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    QCOMPARE(state.m_versionMarker, 255);
    QCOMPARE(state.m_version, 0);
    QVERIFY(!state.isNull());

    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(1));
    const DockArea& area = state.m_dockAreaLayouts[0];
    QCOMPARE(area.centralWidgetSize, QSize(400, 300));
    QCOMPARE(area.corners[0], 1);
    QCOMPARE(area.corners[1], 2);
    QCOMPARE(area.corners[2], 1);
    QCOMPARE(area.corners[3], 8);
    QCOMPARE(area.docks.size(), std::size_t(1));
    QCOMPARE(area.docks[0].area, 1);
    QCOMPARE(area.docks[0].size, QSize(200, 300));
    const Block& block = area.docks[0].block;
    QCOMPARE(block.tabbed, false);
    QCOMPARE(int(block.orientation), 2);
    QCOMPARE(block.items.size(), std::size_t(1));
    QCOMPARE(block.items[0].isSequence, false);
    QCOMPARE(block.items[0].objectName, QStringLiteral("AB"));
    QCOMPARE(int(block.items[0].flags), 1);
    compareValues(block.items[0], {0, 200, 0, 0});
    QVERIFY(!block.items[0].subBlock);

    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(1));
    const ToolBarArea& toolBars = state.m_toolBarAreaLayouts[0];
    QCOMPARE(toolBars.extended, true);
    QCOMPARE(toolBars.lines.size(), std::size_t(1));
    QCOMPARE(toolBars.lines[0].area, 2);
    QCOMPARE(toolBars.lines[0].items.size(), std::size_t(1));
    QCOMPARE(toolBars.lines[0].items[0].objectName, QStringLiteral("T"));
    QCOMPARE(int(toolBars.lines[0].items[0].shown), 1);
    compareValues(toolBars.lines[0].items[0], {0, -1, 0, 0});
}

void QtStateReadTest::headAloneIsValid()
{
    QtState state;
    QVERIFY(state.read(QByteArray::fromHex("000000FF 00000000")));
    QVERIFY(!state.isNull());
    QCOMPARE(state.m_versionMarker, 255);
    QCOMPARE(state.m_version, 0);
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

void QtStateReadTest::version_data()
{
    QTest::addColumn<int>("expected");
    QTest::addRow("zero") << 0;
    QTest::addRow("one") << 1;
    QTest::addRow("marker") << 255;
    QTest::addRow("all four bytes") << 0x12345678;
    QTest::addRow("minus two") << -2;
    QTest::addRow("smallest") << std::numeric_limits<int>::min();
    QTest::addRow("largest") << std::numeric_limits<int>::max();
}

void QtStateReadTest::version()
{
    QFETCH(int, expected);
    QtState state;
    QVERIFY(state.read(BlobBuilder().head(255, expected).blob()));
    QCOMPARE(state.m_version, expected);
    QVERIFY(!state.isNull());
}

void QtStateReadTest::versionMinusOneIsReadAndNull()
{
    QtState state;
    QVERIFY(state.read(soundHead(-1).toolBarSection(1).line(2, 0).blob()));
    QCOMPARE(state.m_versionMarker, 255);
    QCOMPARE(state.m_version, -1);
    QVERIFY(state.isNull());
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(1));
}

void QtStateReadTest::dockFields()
{
    BlobBuilder blob = soundHead();
    blob.dockSection(1).dock(-7, -1, std::numeric_limits<qint32>::max());
    blob.tabs(3, 1, 2).widget("A"_s, 0x80, {1, -2, 0x12345678, -2147483647 - 1});
    blob.widget("B"_s, 0xFF, {5, 6, 7, 8}).dockTail(-5, 6, {-1, 0, 99, 1000000});
    QtState state;
    QVERIFY(state.read(blob.blob()));
    const DockArea& area = state.m_dockAreaLayouts.at(0);
    QCOMPARE(area.docks.at(0).area, -7);
    QCOMPARE(area.docks[0].size, QSize(-1, std::numeric_limits<int>::max()));
    const Block& block = area.docks[0].block;
    QCOMPARE(block.tabbed, true);
    QCOMPARE(block.currentIndex, 3);
    QCOMPARE(int(block.orientation), 1);
    QCOMPARE(block.items.size(), std::size_t(2));
    QCOMPARE(block.items[0].objectName, QStringLiteral("A"));
    QCOMPARE(int(block.items[0].flags), 0x80);
    compareValues(block.items[0], {1, -2, 0x12345678, std::numeric_limits<int>::min()});
    QCOMPARE(block.items[1].objectName, QStringLiteral("B"));
    QCOMPARE(int(block.items[1].flags), 0xFF);
    compareValues(block.items[1], {5, 6, 7, 8});
    QCOMPARE(area.centralWidgetSize, QSize(-5, 6));
    const int corners[4] = {-1, 0, 99, 1000000};
    QCOMPARE(difference("corners", area.corners, corners), QString());
}

void QtStateReadTest::countsOfZeroOrLess_data()
{
    QTest::addColumn<int>("count");
    QTest::addRow("zero") << 0;
    QTest::addRow("minus one") << -1;
    QTest::addRow("smallest") << std::numeric_limits<int>::min();
}

void QtStateReadTest::countsOfZeroOrLess()
{
    QFETCH(int, count);
    BlobBuilder blob = soundHead();
    blob.dockSection(count).dockTail(1, 2, {3, 4, 5, 6});
    blob.dockSection(1).dock(0, 1, 1).sequence(1, count).dockTail();
    blob.dockSection(1).dock(0, 1, 1).sequence(1, 1).nested().tabs(0, 1, count).dockTail();
    blob.toolBarSection(count).shortToolBarSection(count);
    blob.toolBarSection(2).line(0, count).line(1, count);
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(3));
    QVERIFY(state.m_dockAreaLayouts[0].docks.empty());
    QCOMPARE(state.m_dockAreaLayouts[0].centralWidgetSize, QSize(1, 2));
    QVERIFY(state.m_dockAreaLayouts[1].docks.at(0).block.items.empty());
    QVERIFY(state.m_dockAreaLayouts[2].docks.at(0).block.items.at(0).subBlock->items.empty());
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(3));
    QVERIFY(state.m_toolBarAreaLayouts[0].lines.empty());
    QVERIFY(state.m_toolBarAreaLayouts[1].lines.empty());
    QCOMPARE(state.m_toolBarAreaLayouts[2].lines.size(), std::size_t(2));
    QVERIFY(state.m_toolBarAreaLayouts[2].lines[0].items.empty());
    QCOMPARE(state.m_toolBarAreaLayouts[2].lines[1].area, 1);
    QVERIFY(state.m_toolBarAreaLayouts[2].lines[1].items.empty());
}

void QtStateReadTest::unvalidatedByte_data()
{
    QTest::addColumn<int>("value");
    for (int value = 0; value < 256; ++value)
        QTest::addRow("%d", value) << value;
}

void QtStateReadTest::unvalidatedByte()
{
    QFETCH(int, value);
    BlobBuilder blob = soundHead();
    blob.dockSection(1).dock(0, 1, 1).sequence(value, 2).widget("A"_s, value);
    blob.nested().tabs(0, value, 0).dockTail();
    blob.toolBarSection(1).line(0, 1).toolBar("T"_s, value);
    QtState state;
    QVERIFY(state.read(blob.blob()));
    const Block& block = state.m_dockAreaLayouts.at(0).docks.at(0).block;
    QCOMPARE(int(block.orientation), value);
    QCOMPARE(int(block.items.at(0).flags), value);
    QCOMPARE(int(block.items.at(1).subBlock->orientation), value);
    QCOMPARE(int(state.m_toolBarAreaLayouts.at(0).lines.at(0).items.at(0).shown), value);
}

// A sequence has no index in the blob: the byte after its marker is the orientation already.
void QtStateReadTest::currentIndexOnlyAfterTabMarker()
{
    QtState state;
    QVERIFY(state.read(blobAround(BlobBuilder().raw(QByteArray::fromHex("FC 01 00000000")))));
    QCOMPARE(state.m_dockAreaLayouts.at(0).docks.at(0).block.tabbed, false);
    QVERIFY(
        state.read(blobAround(BlobBuilder().raw(QByteArray::fromHex("FA FFFFFFFE 01 00000000")))));
    QCOMPARE(state.m_dockAreaLayouts.at(0).docks.at(0).block.tabbed, true);
    QCOMPARE(state.m_dockAreaLayouts[0].docks[0].block.currentIndex, -2);
    QCOMPARE(int(state.m_dockAreaLayouts[0].docks[0].block.orientation), 1);
}

void QtStateReadTest::nestedBlock()
{
    BlobBuilder block;
    block.sequence(1, 3).widget("A"_s).nested({11, -12, 13, -14});
    block.sequence(2, 1).widget("B"_s, 3, {1, 2, 3, 4}).widget("C"_s);
    QtState state;
    QVERIFY(state.read(blobAround(block)));
    const std::vector<DockItem>& items = state.m_dockAreaLayouts.at(0).docks.at(0).block.items;
    QCOMPARE(items.size(), std::size_t(3));
    QCOMPARE(items[0].objectName, QStringLiteral("A"));
    QVERIFY(!items[0].subBlock);
    QCOMPARE(items[1].isSequence, true);
    QVERIFY(items[1].objectName.isEmpty());
    compareValues(items[1], {11, -12, 13, -14});
    QVERIFY(items[1].subBlock);
    QCOMPARE(int(items[1].subBlock->orientation), 2);
    QCOMPARE(items[1].subBlock->items.size(), std::size_t(1));
    QCOMPARE(items[1].subBlock->items[0].objectName, QStringLiteral("B"));
    compareValues(items[1].subBlock->items[0], {1, 2, 3, 4});
    QCOMPARE(items[2].objectName, QStringLiteral("C"));
    QCOMPARE(items[2].isSequence, false);
}

void QtStateReadTest::tabsInsideSequenceInsideTabs()
{
    BlobBuilder block;
    block.tabs(1, 1, 2).widget("A"_s).nested().sequence(2, 2);
    block.nested().tabs(2, 1, 1).widget("B"_s).widget("C"_s);
    QtState state;
    QVERIFY(state.read(blobAround(block)));
    const Block& outer = state.m_dockAreaLayouts.at(0).docks.at(0).block;
    QCOMPARE(outer.tabbed, true);
    QCOMPARE(outer.currentIndex, 1);
    const Block& middle = *outer.items.at(1).subBlock;
    QCOMPARE(middle.tabbed, false);
    QCOMPARE(middle.items.size(), std::size_t(2));
    const Block& inner = *middle.items[0].subBlock;
    QCOMPARE(inner.tabbed, true);
    QCOMPARE(inner.currentIndex, 2);
    QCOMPARE(inner.items.at(0).objectName, QStringLiteral("B"));
    QCOMPARE(middle.items[1].objectName, QStringLiteral("C"));
}

void QtStateReadTest::extendedSectionTakesFourValues()
{
    BlobBuilder blob = soundHead().toolBarSection(1).line(-3, 2);
    blob.toolBar("X"_s, 3, {1, -2, 3, -4}).toolBar("Y"_s, 0, {5, 6, 7, 8});
    QtState state;
    QVERIFY(state.read(blob.blob()));
    const ToolBarArea& area = state.m_toolBarAreaLayouts.at(0);
    QCOMPARE(area.extended, true);
    QCOMPARE(area.lines.at(0).area, -3);
    QCOMPARE(area.lines[0].items.size(), std::size_t(2));
    QCOMPARE(area.lines[0].items[0].objectName, QStringLiteral("X"));
    QCOMPARE(int(area.lines[0].items[0].shown), 3);
    compareValues(area.lines[0].items[0], {1, -2, 3, -4});
    QCOMPARE(area.lines[0].items[1].objectName, QStringLiteral("Y"));
    QCOMPARE(int(area.lines[0].items[1].shown), 0);
    compareValues(area.lines[0].items[1], {5, 6, 7, 8});
}

void QtStateReadTest::shortSectionTakesThreeValues()
{
    BlobBuilder blob = soundHead().shortToolBarSection(1).line(1, 2);
    blob.shortToolBar("X"_s, 1, {1, -2, 3}).shortToolBar("Y"_s, 2, {4, 5, 6});
    QtState state;
    QVERIFY(state.read(blob.blob()));
    const ToolBarArea& area = state.m_toolBarAreaLayouts.at(0);
    QCOMPARE(area.extended, false);
    QCOMPARE(area.lines.at(0).items.size(), std::size_t(2));
    QCOMPARE(area.lines[0].items[0].objectName, QStringLiteral("X"));
    compareValues(area.lines[0].items[0], {1, -2, 3, 0});
    QCOMPARE(area.lines[0].items[1].objectName, QStringLiteral("Y"));
    compareValues(area.lines[0].items[1], {4, 5, 6, 0});
}

void QtStateReadTest::sectionMarkersMeanOtherThingsInside()
{
    BlobBuilder blob = soundHead();
    blob.dockSection(1).dock(0xFD, 0xFE, 0xFC).sequence(0xFA, 1).nested().sequence(0xFB, 0);
    blob.dockTail(0xFC, 0xFD, {0xFA, 0xFB, 0xFC, 0xFD});
    blob.toolBarSection(1).line(0xFC, 0);
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(1));
    QCOMPARE(state.m_dockAreaLayouts[0].docks.at(0).block.items.at(0).isSequence, true);
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(1));
    QCOMPARE(state.m_toolBarAreaLayouts[0].lines.at(0).area, 0xFC);
}

void QtStateReadTest::sectionsMayRepeatInAnyOrder()
{
    BlobBuilder blob = soundHead();
    blob.shortToolBarSection(1).line(1, 0);
    blob.dockSection(0).dockTail(2, 2);
    blob.toolBarSection(1).line(3, 0);
    blob.dockSection(0).dockTail(4, 4);
    blob.shortToolBarSection(1).line(5, 0);
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(2));
    QCOMPARE(state.m_dockAreaLayouts[0].centralWidgetSize, QSize(2, 2));
    QCOMPARE(state.m_dockAreaLayouts[1].centralWidgetSize, QSize(4, 4));
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(3));
    QCOMPARE(state.m_toolBarAreaLayouts[0].lines.at(0).area, 1);
    QCOMPARE(state.m_toolBarAreaLayouts[0].extended, false);
    QCOMPARE(state.m_toolBarAreaLayouts[1].lines.at(0).area, 3);
    QCOMPARE(state.m_toolBarAreaLayouts[1].extended, true);
    QCOMPARE(state.m_toolBarAreaLayouts[2].lines.at(0).area, 5);
}

void QtStateReadTest::earlierContentIsGone()
{
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    QVERIFY(state.read(soundHead(7).blob()));
    QCOMPARE(state.m_version, 7);
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QVERIFY(state.read(exampleBlob()));
    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(1));
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(1));
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateReadTest)
#include "QtStateReadTest.moc"
