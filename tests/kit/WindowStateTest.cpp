// SPDX-License-Identifier: MIT
#include "StateLines.h"
#include "support/BlobBuilder.h"
#include "support/DeepBlob.h"
#include "support/RecordedBlobs.h"
#include "support/ResourceLimits.h"
#include "support/StateGenerator.h"

#include <panorel/QtState.h>
#include <panorel/kit/WindowState.h>

#include <QtTest>

#include <utility>

namespace Panorel::Tests {

using Kit::WindowState;

/** What a state is read as: which bytes are readable, and the parts with all their properties. */
class WindowStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(limitStack(mebibyte)); }

    void withoutBytes();
    void exampleSaysAll();
    void valueSemantics();
    void unreadable_data();
    void unreadable();
    void acceptsWhatTheCodecAccepts();
    void sidesAndTheirSizes();
    void nestedExtents();
    void tabsInTheStoredOrder();
    void tabsAroundASplit();
    void floatingAndClosed();
    void floatingTabGroup();
    void floatingSplit();
    void sectionsInAnyOrder();
    void namesCountOnce();
    void laterSectionsTakeParts();
    void namelessPartsAreAllThere();
    void toolBarLines();
    void floatingToolBar();
    void millionLevels();
};

void WindowStateTest::withoutBytes()
{
    const WindowState state;
    QCOMPARE(state.bytes(), QByteArray());
    QVERIFY(!state.isReadable());
    QCOMPARE(state.layoutVersion(), 0);
    QVERIFY(!state.centralSize().isValid());
    QCOMPARE(state.corners()[0], Qt::NoDockWidgetArea);
    QVERIFY(state.dockWidgets().isEmpty());
    QVERIFY(state.toolBars().isEmpty());
    QVERIFY(state.floatingTabs().isEmpty());
    QCOMPARE(state.repeats(), 0);
}

void WindowStateTest::exampleSaysAll()
{
    const WindowState state(exampleBlob());
    QCOMPARE(state.bytes(), exampleBlob());
    QVERIFY(state.isReadable());
    QCOMPARE(state.layoutVersion(), 0);
    QCOMPARE(state.centralSize(), QSize(400, 300));
    QCOMPARE(state.corners()[0], Qt::LeftDockWidgetArea);
    QCOMPARE(state.corners()[1], Qt::RightDockWidgetArea);
    QCOMPARE(state.corners()[2], Qt::LeftDockWidgetArea);
    QCOMPARE(state.corners()[3], Qt::BottomDockWidgetArea);
    QCOMPARE(linesOf(state.dockWidgets()), lines({"'AB' right 200x200 at 31"}));
    QCOMPARE(linesOf(state.toolBars()), lines({"'T' top 0 at 94"}));
}

void WindowStateTest::valueSemantics()
{
    WindowState state(exampleBlob());
    WindowState copy(state);
    const WindowState moved(std::move(state));
    QCOMPARE(moved.bytes(), exampleBlob());
    copy = WindowState();
    QVERIFY(!copy.isReadable());
    copy = moved;
    QCOMPARE(linesOf(copy.toolBars()), lines({"'T' top 0 at 94"}));
}

void WindowStateTest::unreadable_data()
{
    QTest::addColumn<QByteArray>("blob");
    const QByteArray floating = BlobBuilder().byte(0xF9).ints({0, 0, 9, 9}).blob();
    QTest::addRow("empty") << QByteArray("");
    QTest::addRow("seven bytes") << "000000FF 000000"_hex;
    QTest::addRow("other marker") << BlobBuilder().head(254, 0).blob();
    QTest::addRow("unknown section") << soundHead().byte(0xFB).blob();
    QTest::addRow("unknown block") << soundHead().raw(floating).byte(0xFB).byte(1).int32(0).blob();
    QTest::addRow("unknown item")
        << soundHead().raw(floating).sequence(1, 1).byte(0xFA).ints({0, 0, 0, 0}).blob();
    QTest::addRow("floating tabs without a block") << soundHead().raw(floating).blob();
    QTest::addRow("odd name")
        << soundHead().toolBarSection(1).line(0, 1).int32(3).raw("abcdefghijklmnopqrstuvw").blob();
    QTest::addRow("name longer than the bytes")
        << soundHead().toolBarSection(1).line(0, 1).int32(0x7FFFFFFE).raw("abcd").blob();
    QTest::addRow("million lines with nothing after them")
        << soundHead().toolBarSection(1000000).blob();
    QTest::addRow("most records with nothing after them")
        << soundHead().dockSection(0x7FFFFFFF).blob();
    QTest::addRow("most items with nothing after them")
        << soundHead().raw(floating).tabs(0, 1, 0x7FFFFFFF).blob();
    const QByteArray example = exampleBlob();
    for (int size = 0; size < example.size(); ++size) {
        if (size != 8 && size != 81) // where a section ends
            QTest::addRow("first %d bytes", size) << example.left(size);
    }
}

void WindowStateTest::unreadable()
{
    QFETCH(QByteArray, blob);
    const WindowState state(blob);
    QVERIFY(!state.isReadable());
    QCOMPARE(state.bytes(), blob);
    QVERIFY(state.dockWidgets().isEmpty());
    QVERIFY(state.toolBars().isEmpty());
    QVERIFY(state.floatingTabs().isEmpty());
    QVERIFY(!state.centralSize().isValid());
}

// QtState is the measure for all states without a floating tab group.
void WindowStateTest::acceptsWhatTheCodecAccepts()
{
    int accepted = 0;
    for (quint32 seed = 0; seed < 2000; ++seed) {
        StateGenerator generator(seed);
        QtState generated;
        generator.fill(generated, 3);
        QByteArray blob = generated.write();
        if (seed % 2 == 0)
            blob[generator.below(blob.size())] = static_cast<char>(generator.below(0xF9));
        QtState state;
        const bool isRead = state.read(blob);
        QCOMPARE(WindowState(blob).isReadable(), isRead);
        accepted += isRead ? 1 : 0;
    }
    QVERIFY(accepted > 1000 && accepted < 2000);
}

void WindowStateTest::sidesAndTheirSizes()
{
    BlobBuilder blob = soundHead(7).dockSection(5);
    blob.dock(0, 62, 344).sequence(2, 1).widget("L"_s, 1, {86, 344, 44, 16777215});
    blob.dock(1, 63, 345).sequence(2, 1).widget("R"_s, 1, {86, 340, 44, 16777215});
    blob.dock(2, 640, 44).sequence(1, 1).widget("T"_s, 1, {0, 630, 62, 16777215});
    blob.dock(3, 641, 45).sequence(1, 1).widget("B"_s, 1, {0, -1, 62, 16777215});
    blob.dock(4, 99, 98).sequence(1, 1).widget("X"_s, 1, {0, 10, 62, 16777215});
    const WindowState state(blob.dockTail(504, 340, {4, 2, 1, 8}).blob());
    QCOMPARE(state.layoutVersion(), 7);
    QCOMPARE(state.centralSize(), QSize(504, 340));
    QCOMPARE(state.corners()[0], Qt::TopDockWidgetArea);
    QCOMPARE(linesOf(state.dockWidgets()),
             lines({"'L' left 62x344 at 31", "'R' right 63x340 at 73", "'T' top 630x44 at 115",
                    "'B' bottom at 157", "'X' none 10x98 at 199"}));
}

void WindowStateTest::nestedExtents()
{
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 191, 480);
    blob.sequence(2, 2).widget("A"_s, 1, {0, 347, 44, 16777215});
    blob.nested({353, 127, 127, 16777215}).sequence(1, 2);
    blob.widget("B"_s, 1, {0, 62, 62, 16777215});
    blob.nested({68, 123, 123, 16777215}).sequence(2, 1);
    blob.widget("C"_s, 1, {0, 110, 44, 16777215});
    QCOMPARE(linesOf(WindowState(blob.dockTail().blob()).dockWidgets()),
             lines({"'A' left 191x347 at 31", "'B' left 62x127 at 78", "'C' left 123x110 at 125"}));
}

void WindowStateTest::tabsInTheStoredOrder()
{
    BlobBuilder blob = soundHead().dockSection(2).dock(1, 218, 480).sequence(2, 3);
    blob.widget("A"_s, 1, {0, 100, 44, 16777215});
    blob.nested({106, 374, 77, 16777248}).tabs(1, 2, 3);
    blob.widget("T"_s).widget("U"_s, 1, {0, -1, 0, 0}).widget("V"_s, 0);
    blob.nested({0, -1, 77, 16777248}).tabs(5, 2, 1).widget("W"_s);
    blob.dock(0, 0, 0).sequence(2, 1).widget("Z"_s, 0);
    const WindowState state(blob.dockTail().blob());
    QCOMPARE(
        linesOf(state.dockWidgets()),
        lines({"'A' right 218x100 at 31", "'T' right 218x374 tab 0.0 at 82",
               "'U' right 218x374 tab 0.1 front at 106", "'V' right 218x374 closed tab 0.2 at 130",
               "'W' right tab 1.0 at 181", "'Z' left closed at 223"}));
}

// Not what a window of Qt 5 makes by itself: a page that is split.
void WindowStateTest::tabsAroundASplit()
{
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 100, 200).tabs(1, 2, 2);
    blob.widget("A"_s).nested().sequence(1, 2);
    blob.widget("B"_s, 1, {0, 40, 0, 0}).widget("C"_s, 1, {46, 54, 0, 0});
    QCOMPARE(linesOf(WindowState(blob.dockTail().blob()).dockWidgets()),
             lines({"'A' left 100x200 tab 0.0 at 35", "'B' left 40x200 tab 0.1 front at 82",
                    "'C' left 54x200 tab 0.1 front at 106"}));
}

void WindowStateTest::floatingAndClosed()
{
    BlobBuilder blob = soundHead().dockSection(1).dock(2, 0, 0).sequence(1, 2);
    blob.widget("F"_s, 3, {-40, 50, 160, 120}).widget("G"_s, 2, {1, 2, 30, 40});
    QCOMPARE(linesOf(WindowState(blob.dockTail().blob()).dockWidgets()),
             lines({"'F' top 160x120 floating -40,50 at 31",
                    "'G' top 30x40 closed floating 1,2 at 55"}));
}

void WindowStateTest::floatingTabGroup()
{
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 0, 0).sequence(2, 2);
    blob.widget("A"_s, 0, {0, -1, 0, 0}).widget("B"_s, 0, {0, -1, 0, 0}).dockTail();
    blob.byte(0xF9).ints({300, 400, 499, 549}).tabs(1, 1, 2);
    blob.widget("A"_s).widget("B"_s).toolBarSection(0);
    const WindowState state(blob.blob());
    QCOMPARE(linesOf(state.dockWidgets()),
             lines({"'A' none 200x150 tab 0.0 at 130", "'B' none 200x150 tab 0.1 front at 154"}));
    QCOMPARE(state.floatingTabs().size(), 1);
    QCOMPARE(state.floatingTabs()[0].geometry, QRect(300, 400, 200, 150));
    QCOMPARE(state.floatingTabs()[0].group, 0);
    QCOMPARE(state.repeats(), 0);
}

void WindowStateTest::floatingSplit()
{
    BlobBuilder blob = soundHead().byte(0xF9).ints({0, 0, 99, 49}).sequence(1, 2);
    blob.widget("A"_s, 1, {0, 30, 0, 0}).nested({36, 64, 0, 0}).tabs(0, 1, 1).widget("B"_s);
    const WindowState state(blob.blob());
    QCOMPARE(linesOf(state.dockWidgets()),
             lines({"'A' none 30x50 at 31", "'B' none 64x50 tab 0.0 front at 82"}));
    QCOMPARE(state.floatingTabs()[0].group, -1);
}

void WindowStateTest::sectionsInAnyOrder()
{
    BlobBuilder blob = soundHead().shortToolBarSection(1).line(0, 1).shortToolBar("S"_s, 3);
    blob.byte(0xF9).ints({0, 0, 9, 9}).tabs(0, 1, -1);
    blob.dockSection(-5).dockTail(1, 2).toolBarSection(1).line(0, 1).toolBar("E"_s);
    const WindowState state(blob.dockSection(0).dockTail(3, 4).blob());
    QVERIFY(state.isReadable());
    QCOMPARE(state.centralSize(), QSize(3, 4));
    QCOMPARE(linesOf(state.toolBars()), lines({"'S' left 0 vertical at 21", "'E' left 1 at 109"}));
    QCOMPARE(state.floatingTabs()[0].group, -1);
}

void WindowStateTest::namesCountOnce()
{
    BlobBuilder blob = soundHead().dockSection(2);
    blob.dock(0, 10, 20).sequence(2, 1).widget("A"_s, 1, {0, 20, 0, 0});
    blob.dock(1, 30, 40).tabs(2, 2, 3).widget("A"_s, 0).widget("B"_s).widget("A"_s).dockTail();
    blob.toolBarSection(2).line(0, 1).toolBar("X"_s).line(1, 2).toolBar("X"_s).toolBar("Y"_s);
    const WindowState state(blob.blob());
    QCOMPARE(linesOf(state.dockWidgets()),
             lines({"'A' left 10x20 at 31", "'B' right 30x40 tab 0.1 at 101"}));
    QCOMPARE(linesOf(state.toolBars()), lines({"'X' left 0 at 186", "'Y' right 0 at 240"}));
    QCOMPARE(state.repeats(), 3);
}

// A window looks for the parts again in each section.
void WindowStateTest::laterSectionsTakeParts()
{
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 10, 20).sequence(2, 1).widget("A"_s);
    blob.dockTail().toolBarSection(1).line(0, 1).toolBar("X"_s);
    blob.toolBarSection(1).line(3, 1).toolBar("X"_s);
    blob.dockSection(1).dock(3, 10, 20).sequence(1, 1).widget("A"_s).dockTail();
    const WindowState state(blob.blob());
    QCOMPARE(linesOf(state.dockWidgets()), lines({"'A' bottom at 174"}));
    QCOMPARE(linesOf(state.toolBars()), lines({"'X' bottom 0 at 128"}));
    QCOMPARE(state.repeats(), 0);
}

void WindowStateTest::namelessPartsAreAllThere()
{
    BlobBuilder blob = soundHead().dockSection(1).dock(0, 10, 20).sequence(2, 3);
    blob.widget(QString()).widget(""_s).widget(QString()).dockTail();
    blob.toolBarSection(1).line(2, 3).toolBar(""_s).toolBar(QString()).toolBar(""_s);
    const WindowState state(blob.blob());
    QCOMPARE(linesOf(state.dockWidgets()),
             lines({"null left at 31", "'' left at 53", "null left at 75"}));
    QCOMPARE(linesOf(state.toolBars()),
             lines({"'' top 0 at 134", "null top 0 at 155", "'' top 0 at 176"}));
    QCOMPARE(state.repeats(), 0);
}

void WindowStateTest::toolBarLines()
{
    BlobBuilder blob = soundHead().toolBarSection(6);
    blob.line(2, 2).toolBar("A"_s).toolBar("B"_s, 0).line(3, 1).toolBar("C"_s);
    blob.line(2, 0).line(2, 1).toolBar("D"_s).line(9, 1).toolBar("E"_s).line(0, 1);
    const WindowState state(blob.toolBar("F"_s, 3).blob());
    QCOMPARE(linesOf(state.toolBars()),
             lines({"'A' top 0 at 21", "'B' top 0 closed at 44", "'C' bottom 0 at 75",
                    "'D' top 2 at 114", "'E' none 0 at 145", "'F' left 0 vertical at 176"}));
}

void WindowStateTest::floatingToolBar()
{
    // x in bits 1 to 16 and y in bits 0 to 15, both with 32767 added: 70 and -16.
    const int first = ((32767 + 70) << 1) | 1;
    BlobBuilder blob = soundHead().toolBarSection(1).line(2, 1);
    blob.toolBar("T"_s, 1, {0, -1, first, 32767 - 16});
    blob.shortToolBarSection(1).line(2, 1).shortToolBar("S"_s, 1, {0, -1, first});
    QCOMPARE(linesOf(WindowState(blob.blob()).toolBars()),
             lines({"'T' top 0 floating 70,-16 at 21", "'S' top 1 at 57"}));
}

void WindowStateTest::millionLevels()
{
    const WindowState state(deepBlob(1000000));
    QVERIFY(state.isReadable());
    const QVector<WindowState::DockWidget> docks = state.dockWidgets();
    QCOMPARE(docks.size(), 1);
    QCOMPARE(docks[0].name, "D"_s);
    QCOMPARE(docks[0].tab->group, 0);
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::WindowStateTest)
#include "WindowStateTest.moc"
