// SPDX-License-Identifier: MIT
#include "support/DeepBlob.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"
#include "support/ResourceLimits.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <utility>

namespace Panorel::Tests {

/**
 * Blocks nested a million deep, and the same in other uses a little less deep to save time. The
 * stack is an eighth of the ordinary one: five bytes for each level of the less deep blocks.
 */
class QtStateDepthTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(limitStack(mebibyte)); }
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void millionLevels();
    void everyLevelIsThere();
    void mergedAndCleared();
    void earlierContentIsReleased();
    void cutOffIsRefused();
    void innermostFaultIsRefused();
    void itemsAreCopiedAndMoved();
    void blocksAndListsAreCopied();
    void repeatedByTheNextRecord();
    void builtByHand();
    void deepAndWide();
    void leafBehindEveryBranch();

private:
    const int m_depth = 200000;
    const QByteArray m_blob = deepBlob(m_depth);
    MessageWatch m_watch;
};

namespace {

const Block& blockOf(const QtState& state, std::size_t record = 0)
{
    return state.m_dockAreaLayouts.at(0).docks.at(record).block;
}

int depthOf(const Block& block)
{
    int depth = 0;
    const Block* current = &block;
    while (current->items.size() == 1 && current->items[0].subBlock) {
        current = current->items[0].subBlock.get();
        ++depth;
    }
    return depth;
}

/** The record that contains blobs of one block. */
QByteArray around(const QByteArray& block)
{
    return soundHead().dockSection(1).dock(0, 10, 20).raw(block).dockTail().blob();
}

} // namespace

void QtStateDepthTest::millionLevels()
{
    const QByteArray blob = deepBlob(1000000);
    QtState state;
    QVERIFY(state.read(blob));
    QCOMPARE(depthOf(blockOf(state)), 1000000);
    const QtState copy(state);
    state.clear();
    QCOMPARE(difference(copy.write(), blob), QString());
}

void QtStateDepthTest::everyLevelIsThere()
{
    QtState state;
    QVERIFY(state.read(m_blob));
    QCOMPARE(depthOf(blockOf(state)), m_depth);
    const Block* block = &blockOf(state);
    while (block->items[0].subBlock) {
        if (block->tabbed || block->orientation != 1 || block->items[0].values[3] != 4)
            QFAIL("A level is not as in the blob");
        block = block->items[0].subBlock.get();
    }
    QCOMPARE(block->tabbed, true);
    QCOMPARE(block->currentIndex, 5);
    QCOMPARE(block->items.at(0).objectName, QStringLiteral("D"));
}

void QtStateDepthTest::mergedAndCleared()
{
    QtState state;
    QVERIFY(state.read(m_blob));
    QtState merged = QtState::merge(state, state);
    QCOMPARE(difference(merged.write(), m_blob), QString());
    merged.clear();
    QVERIFY(merged.isNull());
}

void QtStateDepthTest::earlierContentIsReleased()
{
    QtState state;
    QVERIFY(state.read(m_blob));
    QVERIFY(state.read(exampleBlob()));
    QCOMPARE(difference(state.write(), exampleBlob()), QString());
}

void QtStateDepthTest::cutOffIsRefused()
{
    QtState state;
    QVERIFY(!state.read(m_blob.chopped(1)));
    QVERIFY(!state.read(m_blob.left(m_blob.size() / 2)));
    QVERIFY(state.m_dockAreaLayouts.empty());
}

void QtStateDepthTest::innermostFaultIsRefused()
{
    const QByteArray levels = BlobBuilder().sequence(1, 1).nested().blob().repeated(m_depth);
    QtState state;
    QVERIFY(!state.read(around(levels + BlobBuilder().byte(0).blob())));
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.read(around(levels + BlobBuilder().sequence(1, 0).blob())));
}

void QtStateDepthTest::itemsAreCopiedAndMoved()
{
    QtState state;
    QVERIFY(state.read(m_blob));
    std::vector<DockItem>& items = state.m_dockAreaLayouts[0].docks[0].block.items;
    DockItem copy(items[0]);
    DockItem moved(std::move(copy));
    DockItem assigned;
    assigned = moved;
    assigned = items[0];
    assigned = std::move(moved);
    QCOMPARE(depthOf(*assigned.subBlock), m_depth - 1);
    items[0] = std::move(assigned);
    items.push_back(items[0]);
    items.pop_back();
    QCOMPARE(difference(state.write(), m_blob), QString());
    // An item that takes the place of one that it is a part of.
    items[0] = std::move(items[0].subBlock->items[0]);
    QCOMPARE(depthOf(blockOf(state)), m_depth - 1);
}

void QtStateDepthTest::blocksAndListsAreCopied()
{
    QtState state;
    QVERIFY(state.read(m_blob));
    const Block block = blockOf(state);
    const std::vector<DockArea> areas = state.m_dockAreaLayouts;
    state.m_dockAreaLayouts[0].docks[0].block = block;
    state.m_dockAreaLayouts = areas;
    QCOMPARE(difference(state.write(), m_blob), QString());
}

void QtStateDepthTest::repeatedByTheNextRecord()
{
    const int depth = m_depth;
    QtState state;
    QVERIFY(state.read(deepBlob(depth, 2)));
    QCOMPARE(blockOf(state, 0).items.size(), std::size_t(1));
    QCOMPARE(blockOf(state, 1).items.size(), std::size_t(2));
    QCOMPARE(depthOf(*blockOf(state, 1).items[0].subBlock), depth - 1);
    QCOMPARE(depthOf(*blockOf(state, 1).items[1].subBlock), depth - 1);

    const QByteArray item = deepBlock(depth).mid(6);
    BlobBuilder expected = soundHead().dockSection(2).dock(0, 10, 20).sequence(1, 1).raw(item);
    expected.dock(1, 10, 20).sequence(1, 2).raw(item + item).dockTail();
    QCOMPARE(difference(state.write(), expected.blob()), QString());
}

void QtStateDepthTest::builtByHand()
{
    QtState state;
    state.m_versionMarker = 255;
    Block* block = &state.m_dockAreaLayouts.emplace_back().docks.emplace_back().block;
    for (int i = 0; i < m_depth; ++i) {
        DockItem& item = block->items.emplace_back();
        item.isSequence = true;
        item.subBlock = std::make_unique<Block>();
        block = item.subBlock.get();
    }
    QtState again;
    QVERIFY(again.read(state.write()));
    QCOMPARE(depthOf(blockOf(again)), m_depth);
}

// Every level holds a dock widget on either side of the nested block, so the way back up counts.
void QtStateDepthTest::deepAndWide()
{
    const int depth = m_depth;
    const QByteArray down = BlobBuilder().sequence(1, 3).widget("L"_s).nested({1, 2, 3, 4}).blob();
    const QByteArray up = BlobBuilder().widget("R"_s).blob();
    const QByteArray blob =
        around(down.repeated(depth) + BlobBuilder().sequence(1, 0).blob() + up.repeated(depth));
    QtState state;
    QVERIFY(state.read(blob));
    const QtState copy(state);
    QCOMPARE(difference(copy.write(), blob), QString());
}

// A release that goes for the leaf first has to come back for the branch.
void QtStateDepthTest::leafBehindEveryBranch()
{
    Block copied;
    {
        Block block;
        Block* innermost = &block;
        for (int level = 0; level < m_depth; ++level) {
            innermost->items.resize(2);
            for (DockItem& item : innermost->items) {
                item.isSequence = true;
                item.subBlock = std::make_unique<Block>();
            }
            innermost = innermost->items[0].subBlock.get();
        }
        copied = block;
    }
    int depth = 0;
    for (const Block* at = &copied; at->items.size() == 2; at = at->items[0].subBlock.get()) {
        QVERIFY(at->items[1].subBlock->items.empty());
        ++depth;
    }
    QCOMPARE(depth, m_depth);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateDepthTest)
#include "QtStateDepthTest.moc"
