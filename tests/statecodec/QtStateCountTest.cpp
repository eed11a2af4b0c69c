// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/MessageWatch.h"
#include "support/ResourceLimits.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <limits>

namespace Panorel::Tests {

/**
 * Counts announced with little or nothing after them are refused without reserving memory for them:
 * the process could not have it.
 */
class QtStateCountTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(limitMemory(1024 * mebibyte)); }
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void hugeCount_data();
    void hugeCount();
    void hugeCountsInEveryLevel();
    void repeatedItemsBeyondMemory();

private:
    MessageWatch m_watch;
};

void QtStateCountTest::hugeCount_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<QByteArray>("itemBehind");
    const QByteArray none;
    const QByteArray widget = BlobBuilder().widget("A"_s).blob();
    for (const int count : {1000000, 0x01000000, std::numeric_limits<int>::max()}) {
        const auto add = [count](const char* name, const BlobBuilder& blob,
                                 const QByteArray& item) {
            QTest::addRow("%d %s", count, name) << blob.blob() << item;
        };
        const BlobBuilder dock = soundHead().dockSection(1).dock(0, 1, 1);
        const BlobBuilder widgetHead = BlobBuilder(dock).sequence(1, 1).byte(0xFB);
        const BlobBuilder line = soundHead().toolBarSection(1);
        const BlobBuilder shortLine = soundHead().shortToolBarSection(1);
        add("docks", soundHead().dockSection(count),
            BlobBuilder().dock(0, 1, 1).sequence(1, 0).blob());
        add("items", BlobBuilder(dock).sequence(1, count), widget);
        add("tabs", BlobBuilder(dock).tabs(0, 1, count), widget);
        add("nested items", BlobBuilder(dock).sequence(1, 1).nested().sequence(1, count), widget);
        add("nested tabs", BlobBuilder(dock).sequence(1, 1).nested().tabs(0, 1, count), widget);
        add("name bytes of a dock", BlobBuilder(widgetHead).int32(count & ~1), none);
        add("lines", soundHead().toolBarSection(count), BlobBuilder().line(0, 0).blob());
        add("short lines", soundHead().shortToolBarSection(count), BlobBuilder().line(0, 0).blob());
        add("tool bars", BlobBuilder(line).line(0, count), BlobBuilder().toolBar("T"_s).blob());
        add("short tool bars", BlobBuilder(shortLine).line(0, count),
            BlobBuilder().shortToolBar("T"_s).blob());
        add("name bytes of a tool bar", BlobBuilder(line).line(0, 1).int32(count & ~1), none);
    }
    const BlobBuilder line = soundHead().toolBarSection(1).line(0, 1);
    QTest::addRow("largest even name") << BlobBuilder(line).int32(-4).blob() << none;
}

void QtStateCountTest::hugeCount()
{
    QFETCH(QByteArray, blob);
    QFETCH(QByteArray, itemBehind);
    QtState state;
    QVERIFY(!state.read(blob));
    QVERIFY(!state.read(blob + itemBehind));
    QVERIFY(!state.read(blob + itemBehind.repeated(1000)));
    QVERIFY(!state.read(blob + QByteArray(1000, '\0')));
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QCOMPARE(state.m_versionMarker, 255);
}

void QtStateCountTest::hugeCountsInEveryLevel()
{
    const int huge = std::numeric_limits<int>::max();
    const QByteArray level = BlobBuilder().sequence(1, huge).nested().blob();
    BlobBuilder blob = soundHead().dockSection(huge).dock(0, 1, 1).raw(level.repeated(10000));
    QtState state;
    QVERIFY(!state.read(blob.blob()));
    QVERIFY(!state.read(blob.sequence(1, huge).blob()));
    QVERIFY(state.m_dockAreaLayouts.empty());
}

// 200 KB that are sound, and whose repeated items would take close to 3 GB.
void QtStateCountTest::repeatedItemsBeyondMemory()
{
    if (hasAddressSanitizer)
        return;
    const int itemCount = 4700;
    const int emptyLines = 12500;
    const QByteArray blob = soundHead().toolBarSection(emptyLines + 1).line(0, itemCount).blob() +
                            BlobBuilder().toolBar("T"_s).blob().repeated(itemCount) +
                            BlobBuilder().line(0, 0).blob().repeated(emptyLines);
    QtState state;
    QVERIFY(!state.read(blob));
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QCOMPARE(state.m_version, 0);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateCountTest)
#include "QtStateCountTest.moc"
