// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QtTest>

namespace Panorel::Tests {

/** Object names, read and written; null and empty ones are kept apart. */
class QtStateNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void ofDockWidgets_data();
    void ofDockWidgets();
    void ofToolBars_data();
    void ofToolBars();
    void comeBackAsTheyWere_data();
    void comeBackAsTheyWere();

private:
    MessageWatch m_watch;
};

namespace {

void addNames()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::addRow("null") << QByteArray::fromHex("FFFFFFFF") << QString();
    QTest::addRow("empty") << QByteArray::fromHex("00000000") << QStringLiteral("");
    QTest::addRow("ASCII") << QByteArray::fromHex("00000004 0041 0062") << QStringLiteral("Ab");
    QTest::addRow("high bytes") << QByteArray::fromHex("00000004 20AC FF21")
                                << QString::fromUtf16(u"\u20AC\uFF21");
    QTest::addRow("surrogate pair")
        << QByteArray::fromHex("00000004 D83D DE00") << QString::fromUtf16(u"\U0001F600");
    QTest::addRow("zero unit") << QByteArray::fromHex("00000006 0041 0000 0042")
                               << QString(QStringLiteral("A") + QChar(0) + QStringLiteral("B"));
    QTest::addRow("looks like markers")
        << QByteArray::fromHex("00000004 FDFC FBFA") << QString::fromUtf16(u"\uFDFC\uFBFA");
}

} // namespace

void QtStateNameTest::ofDockWidgets_data()
{
    addNames();
}

void QtStateNameTest::ofDockWidgets()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 1, 1).sequence(1, 1);
    blob.byte(0xFB).raw(bytes).byte(1).ints({1, 2, 3, 4}).dockTail();
    QtState state;
    QVERIFY(state.read(blob.blob()));
    const DockItem& item = state.m_dockAreaLayouts.at(0).docks.at(0).block.items.at(0);
    QCOMPARE(difference("name", item.objectName, expected), QString());
    const int values[4] = {1, 2, 3, 4};
    QCOMPARE(difference("values", item.values, values), QString());
}

void QtStateNameTest::ofToolBars_data()
{
    addNames();
}

void QtStateNameTest::ofToolBars()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    BlobBuilder blob = soundHead().toolBarSection(1).line(2, 1).raw(bytes).byte(1);
    QtState state;
    QVERIFY(state.read(blob.ints({1, 2, 3, 4}).blob()));
    const ToolBarItem& item = state.m_toolBarAreaLayouts.at(0).lines.at(0).items.at(0);
    QCOMPARE(difference("name", item.objectName, expected), QString());
    QCOMPARE(item.values[0], QPoint(1, 0));
    QCOMPARE(item.values[3], QPoint(4, 0));
}

void QtStateNameTest::comeBackAsTheyWere_data()
{
    addNames();
}

void QtStateNameTest::comeBackAsTheyWere()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 1, 1).sequence(1, 1);
    blob.byte(0xFB).raw(bytes).byte(1).ints({0, 0, 0, 0}).dockTail();
    blob.toolBarSection(1).line(2, 1).raw(bytes).byte(1).ints({0, 0, 0, 0});
    blob.shortToolBarSection(1).line(2, 1).raw(bytes).byte(1).ints({0, 0, 0});
    QtState state;
    QVERIFY(state.read(blob.blob()));
    QCOMPARE(
        difference("name", state.m_dockAreaLayouts[0].docks[0].block.items[0].objectName, expected),
        QString());
    QCOMPARE(
        difference("name", state.m_toolBarAreaLayouts[0].lines[0].items[0].objectName, expected),
        QString());
    QCOMPARE(difference(state.write(), blob.blob()), QString());
    const QtState copy(state);
    QCOMPARE(difference(copy.write(), blob.blob()), QString());
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateNameTest)
#include "QtStateNameTest.moc"
