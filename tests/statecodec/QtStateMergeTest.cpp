// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QtTest>

namespace Panorel::Tests {

class QtStateMergeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void docksOfTheFirstAndToolBarsOfTheSecond();
    void argumentsStayAsTheyAre();
    void resultOwnsItsBlocks();
    void sameValueTwice();
    void nullSecondGivesNoToolBars_data();
    void nullSecondGivesNoToolBars();
    void secondOfAnyOtherVersionGivesToolBars();
    void emptyFirstIsNotAskedFor();
    void firstOfVersionMinusOneGivesItsDocks();
    void failedSecondGivesWhatItHolds();
    void secondThatFailedAtOnceGivesNothing();
    void failedFirstGivesWhatItHolds();
    void namesAreNotMatched();
    void orderIsThatOfTheArguments();

private:
    MessageWatch m_watch;
};

namespace {

QByteArray docks(const char* name, qint32 area = 0)
{
    BlobBuilder section = BlobBuilder().dockSection(1).dock(area, 10, 20).sequence(1, 2);
    section.widget(QString::fromLatin1(name))
        .nested()
        .tabs(0, 1, 1)
        .widget(QString::fromLatin1(name), 3)
        .dockTail();
    return section.blob();
}

QByteArray toolBars(const char* name, qint32 area = 2)
{
    return BlobBuilder().toolBarSection(1).line(area, 1).toolBar(QString::fromLatin1(name)).blob();
}

QByteArray shortToolBars(const char* name)
{
    return BlobBuilder()
        .shortToolBarSection(1)
        .line(3, 1)
        .shortToolBar(QString::fromLatin1(name))
        .blob();
}

QByteArray head(int version)
{
    return soundHead(version).blob();
}

/** What @p blob gives, whether it can be read to its end or not. */
QtState stateOf(const QByteArray& blob)
{
    QtState state;
    (void)state.read(blob);
    return state;
}

} // namespace

void QtStateMergeTest::docksOfTheFirstAndToolBarsOfTheSecond()
{
    const QtState a = stateOf(head(3) + docks("A") + toolBars("S"));
    const QtState b = stateOf(head(4) + docks("B") + toolBars("T") + shortToolBars("U"));
    const QtState merged = QtState::merge(a, b);
    QCOMPARE(merged.m_versionMarker, 255);
    QCOMPARE(merged.m_version, 3);
    QCOMPARE(difference(merged.write(), head(3) + docks("A") + toolBars("T") + shortToolBars("U")),
             QString());
}

void QtStateMergeTest::argumentsStayAsTheyAre()
{
    const QByteArray first = head(3) + docks("A") + toolBars("S");
    const QByteArray second = head(4) + docks("B") + toolBars("T");
    const QtState a = stateOf(first);
    const QtState b = stateOf(second);
    (void)QtState::merge(a, b);
    QCOMPARE(difference(a.write(), first), QString());
    QCOMPARE(difference(b.write(), second), QString());
}

void QtStateMergeTest::resultOwnsItsBlocks()
{
    const QtState a = stateOf(head(3) + docks("A"));
    const QtState b = stateOf(head(4) + toolBars("T"));
    QtState merged = QtState::merge(a, b);
    Block& block = merged.m_dockAreaLayouts.at(0).docks.at(0).block;
    QVERIFY(block.items.at(1).subBlock != a.m_dockAreaLayouts[0].docks[0].block.items[1].subBlock);
    block.items[1].subBlock->items[0].objectName = "changed"_s;
    merged.m_toolBarAreaLayouts.at(0).lines.clear();
    QCOMPARE(difference(a.write(), head(3) + docks("A")), QString());
    QCOMPARE(difference(b.write(), head(4) + toolBars("T")), QString());
}

void QtStateMergeTest::sameValueTwice()
{
    const QByteArray blob = head(0) + docks("A") + toolBars("T");
    const QtState state = stateOf(blob);
    QCOMPARE(difference(QtState::merge(state, state).write(), blob), QString());
}

void QtStateMergeTest::nullSecondGivesNoToolBars_data()
{
    QTest::addColumn<QByteArray>("second");
    QTest::addRow("version -1 with tool bars") << head(-1) + docks("B") + toolBars("T");
    QTest::addRow("version -1, refused") << BlobBuilder().head(254, -1).raw(toolBars("T")).blob();
    QTest::addRow("bytes of an empty value") << QtState().write();
}

void QtStateMergeTest::nullSecondGivesNoToolBars()
{
    QFETCH(QByteArray, second);
    const QtState a = stateOf(head(3) + docks("A") + toolBars("S"));
    QVERIFY(stateOf(second).isNull());
    QCOMPARE(difference(QtState::merge(a, stateOf(second)).write(), head(3) + docks("A")),
             QString());
    QCOMPARE(difference(QtState::merge(a, QtState()).write(), head(3) + docks("A")), QString());
}

void QtStateMergeTest::secondOfAnyOtherVersionGivesToolBars()
{
    const QtState a = stateOf(head(3) + docks("A"));
    for (const int version : {0, 1, -2, 255})
        QCOMPARE(difference(QtState::merge(a, stateOf(head(version) + toolBars("T"))).write(),
                            head(3) + docks("A") + toolBars("T")),
                 QString());
}

void QtStateMergeTest::emptyFirstIsNotAskedFor()
{
    const QtState b = stateOf(head(4) + docks("B") + toolBars("T"));
    const QtState merged = QtState::merge(QtState(), b);
    QVERIFY(merged.isNull());
    QCOMPARE(difference(merged.write(), QByteArray::fromHex("FFFFFFFF FFFFFFFF") + toolBars("T")),
             QString());
    QtState again;
    QVERIFY(!again.read(merged.write()));
    QCOMPARE(QtState::merge(QtState(), QtState()).write(),
             QByteArray::fromHex("FFFFFFFF FFFFFFFF"));
    QtState cleared(b);
    cleared.clear();
    QCOMPARE(difference(QtState::merge(cleared, b).write(), merged.write()), QString());
}

void QtStateMergeTest::firstOfVersionMinusOneGivesItsDocks()
{
    const QtState a = stateOf(head(-1) + docks("A") + toolBars("S"));
    QVERIFY(a.isNull());
    const QtState b = stateOf(head(0) + toolBars("T"));
    QCOMPARE(difference(QtState::merge(a, b).write(), head(-1) + docks("A") + toolBars("T")),
             QString());
}

void QtStateMergeTest::failedSecondGivesWhatItHolds()
{
    const QtState a = stateOf(head(3) + docks("A"));
    const QtState b = stateOf(head(4) + toolBars("T") + QByteArray::fromHex("F9"));
    QCOMPARE(difference(QtState::merge(a, b).write(), head(3) + docks("A") + toolBars("T")),
             QString());
}

void QtStateMergeTest::secondThatFailedAtOnceGivesNothing()
{
    const QtState a = stateOf(head(3) + docks("A") + toolBars("S"));
    const QtState b = stateOf(QByteArray());
    QVERIFY(!b.isNull());
    QCOMPARE(difference(QtState::merge(a, b).write(), head(3) + docks("A")), QString());
}

void QtStateMergeTest::failedFirstGivesWhatItHolds()
{
    const QtState b = stateOf(head(4) + toolBars("T"));
    const QtState partly = stateOf(head(3) + docks("A") + QByteArray::fromHex("F9"));
    QCOMPARE(difference(QtState::merge(partly, b).write(), head(3) + docks("A") + toolBars("T")),
             QString());
    const QtState refused = stateOf(BlobBuilder().head(254, 6).raw(docks("A")).blob());
    QCOMPARE(difference(QtState::merge(refused, b).write(),
                        BlobBuilder().head(254, 6).raw(toolBars("T")).blob()),
             QString());
}

void QtStateMergeTest::namesAreNotMatched()
{
    const QtState a = stateOf(head(0) + docks("same") + toolBars("only in a"));
    const QtState b = stateOf(head(0) + docks("only in b") + toolBars("same"));
    QCOMPARE(difference(QtState::merge(a, b).write(), head(0) + docks("same") + toolBars("same")),
             QString());
}

void QtStateMergeTest::orderIsThatOfTheArguments()
{
    const QtState a = stateOf(head(0) + toolBars("S") + docks("C") + docks("A", 3) + docks("B", 1));
    const QtState b =
        stateOf(head(0) + toolBars("Z") + docks("X") + shortToolBars("Y") + toolBars("X", 1));
    QCOMPARE(difference(QtState::merge(a, b).write(), head(0) + docks("C") + docks("A", 3) +
                                                          docks("B", 1) + toolBars("Z") +
                                                          shortToolBars("Y") + toolBars("X", 1)),
             QString());
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateMergeTest)
#include "QtStateMergeTest.moc"
