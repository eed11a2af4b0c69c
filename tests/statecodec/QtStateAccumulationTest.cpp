// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QtTest>

namespace Panorel::Tests {

/**
 * Deliberate: each dock record holds the items of all earlier records of its section before its
 * own, and each tool-bar line those of all earlier lines of its section.
 */
class QtStateAccumulationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void twoDockRecords();
    void threeDockRecordsReadTwice();
    void recordsWithoutItems();
    void newSectionStartsEmpty();
    void blockHeadsAreOverwritten();
    void currentIndexStaysFromEarlierTabs();
    void currentIndexOfNewSectionDoesNotStay();
    void nestedBlocksAreRepeatedDeeply();
    void nestedBlocksDoNotAccumulate();
    void twoLines();
    void threeShortLines();
    void newToolBarSectionStartsEmpty();
    void failedSectionLeavesNothingBehind();

private:
    MessageWatch m_watch;
};

namespace {

QString names(const Block& block)
{
    QStringList list;
    for (const DockItem& item : block.items)
        list << (item.subBlock ? QString(u'(' + names(*item.subBlock) + u')') : item.objectName);
    return list.join(u' ');
}

QString names(const Line& line)
{
    QStringList list;
    for (const ToolBarItem& item : line.items)
        list << item.objectName;
    return list.join(u' ');
}

QString dockNames(const QtState& state, std::size_t section, std::size_t record)
{
    return names(state.m_dockAreaLayouts.at(section).docks.at(record).block);
}

QString lineNames(const QtState& state, std::size_t section, std::size_t line)
{
    return names(state.m_toolBarAreaLayouts.at(section).lines.at(line));
}

const Block& blockOf(const QtState& state, std::size_t record)
{
    return state.m_dockAreaLayouts.at(0).docks.at(record).block;
}

} // namespace

void QtStateAccumulationTest::twoDockRecords()
{
    BlobBuilder blob = soundHead().dockSection(2);
    blob.dock(0, 10, 20).sequence(2, 2).widget("A"_s).widget("B"_s, 3, {1, 2, 3, 4});
    blob.dock(1, 30, 40).sequence(1, 1).widget("C"_s).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(state.m_dockAreaLayouts.at(0).docks.size(), std::size_t(2));
    QCOMPARE(dockNames(state, 0, 0), QStringLiteral("A B"));
    QCOMPARE(dockNames(state, 0, 1), QStringLiteral("A B C"));
    QCOMPARE(state.m_dockAreaLayouts[0].docks[0].area, 0);
    QCOMPARE(state.m_dockAreaLayouts[0].docks[0].size, QSize(10, 20));
    QCOMPARE(state.m_dockAreaLayouts[0].docks[1].area, 1);
    QCOMPARE(state.m_dockAreaLayouts[0].docks[1].size, QSize(30, 40));

    BlobBuilder expected = soundHead().dockSection(2);
    expected.dock(0, 10, 20).sequence(2, 2).widget("A"_s).widget("B"_s, 3, {1, 2, 3, 4});
    expected.dock(1, 30, 40).sequence(1, 3);
    expected.widget("A"_s).widget("B"_s, 3, {1, 2, 3, 4}).widget("C"_s).dockTail();
    QCOMPARE(difference(state.write(), expected.blob()), QString());
}

void QtStateAccumulationTest::threeDockRecordsReadTwice()
{
    BlobBuilder blob = soundHead().dockSection(3);
    blob.dock(0, 1, 1).sequence(2, 1).widget("A"_s);
    blob.dock(1, 1, 1).sequence(2, 1).widget("B"_s);
    blob.dock(2, 1, 1).sequence(2, 1).widget("C"_s).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(dockNames(state, 0, 0), QStringLiteral("A"));
    QCOMPARE(dockNames(state, 0, 1), QStringLiteral("A B"));
    QCOMPARE(dockNames(state, 0, 2), QStringLiteral("A B C"));
    QVERIFY(state.read(state.write()));
    QCOMPARE(dockNames(state, 0, 0), QStringLiteral("A"));
    QCOMPARE(dockNames(state, 0, 1), QStringLiteral("A A B"));
    QCOMPARE(dockNames(state, 0, 2), QStringLiteral("A A B A B C"));
}

void QtStateAccumulationTest::recordsWithoutItems()
{
    BlobBuilder blob = soundHead().dockSection(4);
    blob.dock(0, 1, 1).sequence(2, 0);
    blob.dock(1, 1, 1).sequence(2, 1).widget("A"_s);
    blob.dock(2, 1, 1).sequence(2, 0);
    blob.dock(3, 1, 1).sequence(2, -5).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(dockNames(state, 0, 0), QString());
    QCOMPARE(dockNames(state, 0, 1), QStringLiteral("A"));
    QCOMPARE(dockNames(state, 0, 2), QStringLiteral("A"));
    QCOMPARE(dockNames(state, 0, 3), QStringLiteral("A"));
}

void QtStateAccumulationTest::newSectionStartsEmpty()
{
    BlobBuilder blob = soundHead();
    blob.dockSection(1).dock(0, 1, 1).sequence(2, 1).widget("A"_s).dockTail();
    blob.dockSection(2).dock(0, 1, 1).sequence(2, 1).widget("B"_s);
    blob.dock(1, 1, 1).sequence(2, 1).widget("C"_s).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(dockNames(state, 0, 0), QStringLiteral("A"));
    QCOMPARE(dockNames(state, 1, 0), QStringLiteral("B"));
    QCOMPARE(dockNames(state, 1, 1), QStringLiteral("B C"));
}

void QtStateAccumulationTest::blockHeadsAreOverwritten()
{
    BlobBuilder blob = soundHead().dockSection(3);
    blob.dock(0, 1, 2).sequence(2, 0);
    blob.dock(1, 3, 4).tabs(5, 1, 0);
    blob.dock(2, 5, 6).tabs(6, 9, 0).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(blockOf(state, 0).tabbed, false);
    QCOMPARE(int(blockOf(state, 0).orientation), 2);
    QCOMPARE(blockOf(state, 1).tabbed, true);
    QCOMPARE(blockOf(state, 1).currentIndex, 5);
    QCOMPARE(int(blockOf(state, 1).orientation), 1);
    QCOMPARE(blockOf(state, 2).currentIndex, 6);
    QCOMPARE(int(blockOf(state, 2).orientation), 9);
    QCOMPARE(difference(state.write(), blob.blob()), QString());
}

// A sequence carries no index, so the index of the tabs before it stays; it is not written out.
void QtStateAccumulationTest::currentIndexStaysFromEarlierTabs()
{
    BlobBuilder blob = soundHead().dockSection(3);
    blob.dock(0, 1, 1).tabs(7, 1, 0);
    blob.dock(1, 1, 1).sequence(1, 1).nested().sequence(2, 0);
    blob.dock(2, 1, 1).sequence(2, 0).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(blockOf(state, 0).currentIndex, 7);
    QCOMPARE(blockOf(state, 1).tabbed, false);
    QCOMPARE(blockOf(state, 1).currentIndex, 7);
    QCOMPARE(blockOf(state, 2).currentIndex, 7);
    // A nested block is always a new one.
    QCOMPARE(blockOf(state, 1).items.at(0).subBlock->currentIndex, Block().currentIndex);

    BlobBuilder expected = soundHead().dockSection(3);
    expected.dock(0, 1, 1).tabs(7, 1, 0);
    expected.dock(1, 1, 1).sequence(1, 1).nested().sequence(2, 0);
    expected.dock(2, 1, 1).sequence(2, 1).nested().sequence(2, 0).dockTail();
    QCOMPARE(difference(state.write(), expected.blob()), QString());
}

void QtStateAccumulationTest::currentIndexOfNewSectionDoesNotStay()
{
    BlobBuilder blob = soundHead();
    blob.dockSection(1).dock(0, 1, 1).tabs(7, 1, 0).dockTail();
    blob.dockSection(1).dock(0, 1, 1).sequence(1, 0).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(state.m_dockAreaLayouts.at(1).docks.at(0).block.currentIndex, Block().currentIndex);
}

void QtStateAccumulationTest::nestedBlocksAreRepeatedDeeply()
{
    BlobBuilder blob = soundHead().dockSection(2);
    blob.dock(0, 1, 1).sequence(2, 2).nested({1, 2, 3, 4}).tabs(1, 1, 2).widget("A"_s);
    blob.nested().sequence(2, 1).widget("B"_s).widget("C"_s);
    blob.dock(1, 1, 1).sequence(2, 1).nested().sequence(1, 1).widget("D"_s).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(dockNames(state, 0, 0), QStringLiteral("(A (B)) C"));
    QCOMPARE(dockNames(state, 0, 1), QStringLiteral("(A (B)) C (D)"));
    const DockItem& original = blockOf(state, 0).items.at(0);
    const DockItem& repeated = blockOf(state, 1).items.at(0);
    QVERIFY(original.subBlock != repeated.subBlock);
    QVERIFY(original.subBlock->items[1].subBlock != repeated.subBlock->items[1].subBlock);
    QCOMPARE(difference(repeated, original), QString());
    QCOMPARE(repeated.values[3], 4);
    QCOMPARE(repeated.subBlock->currentIndex, 1);
}

void QtStateAccumulationTest::nestedBlocksDoNotAccumulate()
{
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 1, 1).sequence(2, 2);
    blob.nested().sequence(1, 1).widget("A"_s);
    blob.nested().sequence(1, 1).widget("B"_s).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(dockNames(state, 0, 0), QStringLiteral("(A) (B)"));
}

void QtStateAccumulationTest::twoLines()
{
    BlobBuilder blob = soundHead().toolBarSection(2).line(2, 1).toolBar("X"_s, 1, {1, 2, 3, 4});
    blob.line(3, 2).toolBar("Y"_s).toolBar("Z"_s);
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(state.m_toolBarAreaLayouts.at(0).lines.size(), std::size_t(2));
    QCOMPARE(lineNames(state, 0, 0), QStringLiteral("X"));
    QCOMPARE(lineNames(state, 0, 1), QStringLiteral("X Y Z"));
    QCOMPARE(state.m_toolBarAreaLayouts[0].lines[0].area, 2);
    QCOMPARE(state.m_toolBarAreaLayouts[0].lines[1].area, 3);

    BlobBuilder expected = soundHead().toolBarSection(2);
    expected.line(2, 1).toolBar("X"_s, 1, {1, 2, 3, 4});
    expected.line(3, 3).toolBar("X"_s, 1, {1, 2, 3, 4}).toolBar("Y"_s).toolBar("Z"_s);
    QCOMPARE(difference(state.write(), expected.blob()), QString());
}

void QtStateAccumulationTest::threeShortLines()
{
    BlobBuilder blob = soundHead().shortToolBarSection(4);
    blob.line(0, 1).shortToolBar("X"_s, 1, {1, 2, 3});
    blob.line(1, 0);
    blob.line(2, 1).shortToolBar("Y"_s, 1, {4, 5, 6});
    blob.line(3, -1);
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(lineNames(state, 0, 0), QStringLiteral("X"));
    QCOMPARE(lineNames(state, 0, 1), QStringLiteral("X"));
    QCOMPARE(lineNames(state, 0, 2), QStringLiteral("X Y"));
    QCOMPARE(lineNames(state, 0, 3), QStringLiteral("X Y"));
    const ToolBarItem& last = state.m_toolBarAreaLayouts[0].lines[3].items[1];
    QCOMPARE(last.values[0], QPoint(4, 0));
    QCOMPARE(last.values[2], QPoint(6, 0));
    QCOMPARE(last.values[3], QPoint(0, 0));
    QVERIFY(state.read(state.write()));
    QCOMPARE(lineNames(state, 0, 3), QStringLiteral("X X X Y X Y"));
}

void QtStateAccumulationTest::newToolBarSectionStartsEmpty()
{
    BlobBuilder blob = soundHead();
    blob.toolBarSection(1).line(2, 1).toolBar("X"_s, 1, {1, 2, 3, 4});
    blob.shortToolBarSection(1).line(2, 1).shortToolBar("Y"_s, 1, {5, 6, 7});
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(lineNames(state, 1, 0), QStringLiteral("Y"));
    QCOMPARE(state.m_toolBarAreaLayouts[1].lines[0].items[0].values[3], QPoint(0, 0));
    QCOMPARE(difference(state.write(), blob.blob()), QString());
}

void QtStateAccumulationTest::failedSectionLeavesNothingBehind()
{
    QtState state;
    QVERIFY(!state.read(soundHead().toolBarSection(2).line(2, 1).toolBar("X"_s).line(0, 1).blob()));
    BlobBuilder broken = soundHead().dockSection(2).dock(0, 1, 1).sequence(1, 1);
    QVERIFY(!state.read(broken.widget("A"_s).blob()));
    QVERIFY(state.read(exampleBlob()));
    QCOMPARE(dockNames(state, 0, 0), QStringLiteral("AB"));
    QCOMPARE(lineNames(state, 0, 0), QStringLiteral("T"));
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateAccumulationTest)
#include "QtStateAccumulationTest.moc"
