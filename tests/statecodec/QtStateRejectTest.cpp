// SPDX-License-Identifier: MIT
#include "support/BlobBuilder.h"
#include "support/Differences.h"
#include "support/MessageWatch.h"

#include <panorel/QtState.h>

#include <QtTest>

#include <functional>

namespace Panorel::Tests {

/** What read() refuses, and what a refusal leaves in the value. */
class QtStateRejectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void shortHead_data();
    void shortHead();
    void otherFirstInteger_data();
    void otherFirstInteger();
    void markers_data();
    void markers();
    void oddNames_data();
    void oddNames();
    void bytesAfterTheLastSection_data();
    void bytesAfterTheLastSection();
    void everyTruncationOfTheExample();
    void shortItemsWithTwoValuesAreMisread();
    void shortItemsWithTwoValuesEndTooSoon();
    void completedSectionsSurvive_data();
    void completedSectionsSurvive();
    void earlierContentIsGone();
    void millionLinesWithNothingBehind();

private:
    MessageWatch m_watch;
};

void QtStateRejectTest::shortHead_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<int>("marker");
    QTest::addRow("null array") << QByteArray() << 0;
    QTest::addRow("empty array") << QByteArray("") << 0;
    QTest::addRow("one byte") << QByteArray::fromHex("FF") << 0;
    QTest::addRow("three bytes") << QByteArray::fromHex("0000FF") << 0;
    QTest::addRow("marker alone") << QByteArray::fromHex("000000FF") << 255;
    QTest::addRow("other marker alone") << QByteArray::fromHex("FFFFFFFF") << -1;
    QTest::addRow("seven bytes") << QByteArray::fromHex("000000FF 010203") << 255;
}

void QtStateRejectTest::shortHead()
{
    QFETCH(QByteArray, blob);
    QFETCH(int, marker);
    QtState state;
    QVERIFY(!state.read(blob));
    QCOMPARE(state.m_versionMarker, marker);
    QCOMPARE(state.m_version, 0);
    QVERIFY(!state.isNull());
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

void QtStateRejectTest::otherFirstInteger_data()
{
    QTest::addColumn<int>("marker");
    for (const int marker : {254, 256, 0, -1, 0x1FF, -255, 0x00FF0000})
        QTest::addRow("%d", marker) << marker;
    QTest::addRow("byte order reversed") << int(0xFF000000);
}

void QtStateRejectTest::otherFirstInteger()
{
    QFETCH(int, marker);
    QtState state;
    QVERIFY(!state.read(BlobBuilder().head(marker, 5).blob()));
    QCOMPARE(state.m_versionMarker, marker);
    QCOMPARE(state.m_version, 5);
    QVERIFY(!state.read(BlobBuilder().head(marker, 5).raw(exampleBlob().mid(8)).blob()));
    QCOMPARE(state.m_versionMarker, marker);
    QCOMPARE(state.m_version, 5);
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

// Every value of every marker byte, the known ones with their body, the others with each of them.
void QtStateRejectTest::markers_data()
{
    using Bodies = QMap<int, QByteArray>;
    const auto body = [](const BlobBuilder& builder) { return builder.blob(); };
    const Bodies sections = {{0xFD, body(BlobBuilder().int32(0).dockTail())},
                             {0xFE, body(BlobBuilder().int32(1).line(0, 0))},
                             {0xFC, body(BlobBuilder().int32(1).line(0, 0))}};
    const Bodies blocks = {{0xFA, body(BlobBuilder().int32(0).byte(1).int32(0))},
                           {0xFC, body(BlobBuilder().byte(1).int32(0))}};
    const Bodies items = {{0xFB, body(BlobBuilder().name("A"_s).byte(1).ints({0, 0, 0, 0}))},
                          {0xFC, body(BlobBuilder().ints({0, 0, 0, 0}).sequence(1, 0))}};

    const BlobBuilder record = soundHead().dockSection(1).dock(0, 1, 1);
    const QByteArray tail = BlobBuilder().dockTail().blob();
    struct Level
    {
        const char* name;
        QByteArray before;
        const Bodies& bodies;
        QByteArray after;
    };
    const Level levels[] = {
        {"section", soundHead().blob(), sections, QByteArray()},
        {"second section", exampleBlob(), sections, QByteArray()},
        {"block", record.blob(), blocks, tail},
        {"nested block", BlobBuilder(record).sequence(1, 1).nested().blob(), blocks, tail},
        {"item", BlobBuilder(record).sequence(1, 1).blob(), items, tail},
        {"tab", BlobBuilder(record).tabs(0, 1, 1).blob(), items, tail},
        {"second item", BlobBuilder(record).sequence(1, 2).widget("A"_s).blob(), items, tail},
        {"nested item", BlobBuilder(record).sequence(1, 1).nested().tabs(0, 1, 1).blob(), items,
         tail},
    };
    // What would be left if an unknown marker were passed over, at once or with four values.
    const QList<QByteArray> bare = {QByteArray(), BlobBuilder().ints({0, 0, 0, 0}).blob()};
    QTest::addColumn<QList<QByteArray>>("blobs");
    QTest::addColumn<bool>("accepted");
    for (const Level& level : levels) {
        for (int marker = 0; marker < 256; ++marker) {
            const bool known = level.bodies.contains(marker);
            const QList<QByteArray> rests =
                known ? QList<QByteArray>{level.bodies[marker]} : level.bodies.values() + bare;
            QList<QByteArray> blobs;
            for (const QByteArray& rest : rests)
                blobs << level.before + static_cast<char>(marker) + rest + level.after;
            QTest::addRow("%s %02X", level.name, unsigned(marker)) << blobs << known;
        }
    }
}

void QtStateRejectTest::markers()
{
    QFETCH(QList<QByteArray>, blobs);
    QFETCH(bool, accepted);
    for (const QByteArray& blob : blobs) {
        QtState state;
        QCOMPARE(state.read(blob), accepted);
    }
}

void QtStateRejectTest::oddNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addRow("one byte") << QByteArray::fromHex("00000001 41");
    QTest::addRow("three bytes") << QByteArray::fromHex("00000003 004100");
    QTest::addRow("count below null") << QByteArray::fromHex("FFFFFFFE 0041");
    QTest::addRow("largest odd") << QByteArray::fromHex("FFFFFFFD 0041");
    QTest::addRow("one unit too many") << QByteArray::fromHex("00001000 0041");
}

void QtStateRejectTest::oddNames()
{
    QFETCH(QByteArray, name);
    const QByteArray values = BlobBuilder().byte(1).ints({0, 0, 0, 0}).blob();
    BlobBuilder dock = soundHead().dockSection(1).dock(0, 1, 1).sequence(1, 1);
    dock.byte(0xFB).raw(name + values).dockTail();
    QtState state;
    QVERIFY(!state.read(dock.blob()));
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(!state.read(soundHead().toolBarSection(1).line(0, 1).raw(name + values).blob()));
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QVERIFY(!state.read(
        soundHead().shortToolBarSection(1).line(0, 1).raw(name + values.chopped(4)).blob()));
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

void QtStateRejectTest::bytesAfterTheLastSection_data()
{
    QTest::addColumn<QByteArray>("rest");
    QTest::addRow("zero") << QByteArray::fromHex("00");
    QTest::addRow("floating tab group") << QByteArray::fromHex("F9");
    QTest::addRow("FF") << QByteArray::fromHex("FF");
    QTest::addRow("section marker alone") << QByteArray::fromHex("FD");
    QTest::addRow("short marker alone") << QByteArray::fromHex("FE");
    QTest::addRow("extended marker alone") << QByteArray::fromHex("FC");
    QTest::addRow("half a count") << QByteArray::fromHex("FC 0000");
    QTest::addRow("second head") << QByteArray::fromHex("000000FF 00000000");
}

void QtStateRejectTest::bytesAfterTheLastSection()
{
    QFETCH(QByteArray, rest);
    QtState expected;
    QVERIFY(expected.read(exampleBlob()));
    QtState state;
    QVERIFY(!state.read(exampleBlob() + rest));
    QCOMPARE(difference(state, expected), QString());
    QVERIFY(!state.read(soundHead().blob() + rest));
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

// Sound lengths are 8 (the head), 81 (with the dock-area section) and 117 (all).
void QtStateRejectTest::everyTruncationOfTheExample()
{
    for (int size = 0; size <= 117; ++size) {
        QtState state;
        const bool sound = size == 8 || size == 81 || size == 117;
        QCOMPARE(state.read(exampleBlob().left(size)), sound);
        QCOMPARE(state.m_versionMarker, size < 4 ? 0 : 255);
        QCOMPARE(state.m_version, 0);
        QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(size < 81 ? 0 : 1));
        QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(size < 117 ? 0 : 1));
    }
}

// The third value of the first item is the name's byte count of the second. What follows then is
// taken for a name of 0x41004201 bytes, or, when it happens to fit, for a sound item.
void QtStateRejectTest::shortItemsWithTwoValuesAreMisread()
{
    const QByteArray rejected = soundHead()
                                    .shortToolBarSection(1)
                                    .line(0, 2)
                                    .toolBar("X"_s, 1, {5, 6})
                                    .toolBar("AB"_s, 1, {7, 8})
                                    .blob();
    QtState state;
    QVERIFY(!state.read(rejected));
    QVERIFY(state.m_toolBarAreaLayouts.empty());

    // The second item is meant as: name count 2, name 0000, shown 00, values 0 and 0x09000000. Its
    // name count goes to the first item, so its name is read as empty from the four zero bytes that
    // follow, and its first value from 0000 0900. Six more bytes make it long enough.
    BlobBuilder twisted = soundHead().shortToolBarSection(1).line(0, 2);
    twisted.toolBar("X"_s, 1, {5, 6});
    twisted.int32(2).raw(QByteArray::fromHex("0000 00 00000000 09000000")).raw(QByteArray(6, '\0'));
    QVERIFY(state.read(twisted.blob()));
    const std::vector<ToolBarItem>& items = state.m_toolBarAreaLayouts.at(0).lines.at(0).items;
    QCOMPARE(items.size(), std::size_t(2));
    QCOMPARE(items[0].values[2], QPoint(2, 0));
    QCOMPARE(difference("name", items[1].objectName, QStringLiteral("")), QString());
    QCOMPARE(int(items[1].shown), 0);
    QCOMPARE(items[1].values[0], QPoint(0x00000900, 0));
}

void QtStateRejectTest::shortItemsWithTwoValuesEndTooSoon()
{
    QtState state;
    QVERIFY(!state.read(
        soundHead().shortToolBarSection(1).line(0, 1).toolBar("X"_s, 1, {5, 6}).blob()));
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QVERIFY(
        !state.read(soundHead().toolBarSection(1).line(0, 1).toolBar("X"_s, 1, {5, 6, 7}).blob()));
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QVERIFY(!state.read(
        soundHead().shortToolBarSection(1).line(0, 1).toolBar("X"_s, 1, {5, 6, 7, 8}).blob()));
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(1));
}

void QtStateRejectTest::completedSectionsSurvive_data()
{
    QTest::addColumn<QByteArray>("broken");
    QTest::addRow("unknown section") << BlobBuilder().byte(0xF9).blob();
    QTest::addRow("no dock count") << BlobBuilder().byte(0xFD).blob();
    QTest::addRow("dock record cut") << BlobBuilder().dockSection(1).dock(0, 1, 1).blob();
    QTest::addRow("second dock record missing")
        << BlobBuilder().dockSection(2).dock(0, 1, 1).sequence(1, 0).blob();
    QTest::addRow("second dock record broken")
        << BlobBuilder().dockSection(2).dock(0, 1, 1).sequence(1, 0).dock(1, 1, 1).byte(0).blob();
    QTest::addRow("corner cut") << BlobBuilder().dockSection(0).dockTail().blob().chopped(1);
    QTest::addRow("all corners missing") << BlobBuilder().dockSection(0).ints({1, 1}).blob();
    QTest::addRow("central size missing") << BlobBuilder().dockSection(0).blob();
    QTest::addRow("no line count") << BlobBuilder().byte(0xFC).blob();
    QTest::addRow("line cut") << BlobBuilder().toolBarSection(1).int32(0).blob();
    QTest::addRow("second line missing") << BlobBuilder().toolBarSection(2).line(0, 0).blob();
    QTest::addRow("tool bar cut")
        << BlobBuilder().toolBarSection(1).line(0, 1).toolBar("Y"_s).blob().chopped(1);
    QTest::addRow("second tool bar missing")
        << BlobBuilder().shortToolBarSection(1).line(0, 2).shortToolBar("Y"_s).blob();
}

void QtStateRejectTest::completedSectionsSurvive()
{
    QFETCH(QByteArray, broken);
    BlobBuilder sound = soundHead(42);
    sound.toolBarSection(1).line(2, 1).toolBar("T"_s, 1, {1, 2, 3, 4});
    sound.dockSection(1).dock(0, 5, 6).sequence(2, 1).widget("A"_s).dockTail();
    QtState expected;
    QVERIFY(expected.read(sound.blob()));
    QtState state;
    QVERIFY(!state.read(sound.blob() + broken));
    QCOMPARE(state.m_versionMarker, 255);
    QCOMPARE(state.m_version, 42);
    QCOMPARE(state.m_dockAreaLayouts.size(), std::size_t(1));
    QCOMPARE(state.m_toolBarAreaLayouts.size(), std::size_t(1));
    QCOMPARE(difference(state, expected), QString());
    QVERIFY(!state.isNull());
}

void QtStateRejectTest::earlierContentIsGone()
{
    QtState state;
    QVERIFY(state.read(exampleBlob()));
    QVERIFY(!state.read(QByteArray()));
    QCOMPARE(state.m_versionMarker, 0);
    QCOMPARE(state.m_version, 0);
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QVERIFY(state.read(exampleBlob()));
    QVERIFY(!state.read(soundHead(3).byte(0).blob()));
    QCOMPARE(state.m_version, 3);
    QVERIFY(state.m_dockAreaLayouts.empty());
    QVERIFY(state.m_toolBarAreaLayouts.empty());
}

void QtStateRejectTest::millionLinesWithNothingBehind()
{
    QtState state;
    QVERIFY(!state.read(soundHead().toolBarSection(1000000).blob()));
    QVERIFY(state.m_toolBarAreaLayouts.empty());
    QCOMPARE(state.m_versionMarker, 255);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::QtStateRejectTest)
#include "QtStateRejectTest.moc"
