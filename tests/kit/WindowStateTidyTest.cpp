// SPDX-License-Identifier: MIT
#include "GrownState.h"
#include "support/BlobBuilder.h"

#include <panorel/kit/WindowState.h>

#include <QtTest>

namespace Panorel::Tests {

using Kit::WindowState;

/** Which bytes tidying and merging make of others. */
class WindowStateTidyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoesMerging();
    void dropsPlacesAndWhatHeldThem();
    void frontTabFollows_data();
    void frontTabFollows();
    void namelessParts();
    void unsoundStaysAsItIs();
    void mergedTakesDocksAndBars();
    void mergedKeepsFloatingTabs_data();
    void mergedKeepsFloatingTabs();
    void mergedRefusesUnsound();
};

namespace {

using Ints = BlobBuilder::Ints;

BlobBuilder& real(BlobBuilder& blob, const char* name)
{
    return blob.widget(QString::fromLatin1(name), 1, {0, 9, 44, 16777215});
}

BlobBuilder& place(BlobBuilder& blob, const char* name)
{
    return blob.widget(QString::fromLatin1(name), 1, {0, 9, 0, 0});
}

QByteArray floatingTabs()
{
    BlobBuilder group = BlobBuilder().byte(0xF9).ints({1, 2, 103, 204}).tabs(1, 1, 2);
    return group.widget("A"_s).widget("B"_s).blob();
}

} // namespace

void WindowStateTidyTest::undoesMerging()
{
    BlobBuilder clean = soundHead(3).dockSection(3);
    real(clean.dock(0, 1, 2).sequence(2, 1), "A");
    real(clean.dock(1, 3, 4).sequence(2, 1).nested({5, 6, 7, 8}).tabs(0, 2, 2), "B");
    real(clean, "C");
    real(clean.dock(3, 5, 6).sequence(1, 1), "D").dockTail().toolBarSection(3);
    clean.line(2, 2).toolBar("X"_s).toolBar("Y"_s).line(2, 1).toolBar("Z"_s).line(3, 0);
    clean.shortToolBarSection(2).line(0, 1).shortToolBar("S"_s).line(1, 1).shortToolBar("T"_s);
    const QByteArray merged = mergedOnce(clean.blob());
    QVERIFY(merged.size() > clean.blob().size());
    QCOMPARE(WindowState(clean.blob()).tidied(), clean.blob());
    // The empty line has got what the one before it has, and nothing of its own, so it stays.
    const QByteArray tidied = WindowState(merged).tidied();
    QCOMPARE(WindowState(tidied).toolBars().size(), 5);
    QCOMPARE(WindowState(tidied).tidied(), tidied);
    const int docksEnd = clean.blob().indexOf(BlobBuilder().toolBarSection(3).blob());
    QCOMPARE(tidied.left(docksEnd), clean.blob().left(docksEnd));
}

void WindowStateTidyTest::dropsPlacesAndWhatHeldThem()
{
    BlobBuilder grown = soundHead().dockSection(3);
    real(grown.dock(0, 1, 2).sequence(2, 1), "A");
    place(grown.dock(1, 3, 4).sequence(2, 2), "A");
    real(grown.nested({5, 6, 7, 8}).sequence(1, 2), "B");
    place(grown.nested({1, 1, 1, 1}).tabs(0, 1, 1), "A");
    place(grown.dock(3, 5, 6).sequence(1, 1), "B").dockTail();
    BlobBuilder tidied = soundHead().dockSection(2);
    real(tidied.dock(0, 1, 2).sequence(2, 1), "A");
    real(tidied.dock(1, 3, 4).sequence(2, 1).nested({5, 6, 7, 8}).sequence(1, 1), "B").dockTail();
    QCOMPARE(WindowState(grown.blob()).tidied(), tidied.blob());
}

void WindowStateTidyTest::frontTabFollows_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expected");
    QTest::addRow("one before the first") << -1 << -1;
    QTest::addRow("a repeat") << 0 << 0;
    QTest::addRow("the first after the repeat") << 1 << 0;
    QTest::addRow("the block, since those without a name do not count") << 2 << 1;
    QTest::addRow("the last") << 3 << 2;
    QTest::addRow("one after the last") << 4 << 4;
}

void WindowStateTidyTest::frontTabFollows()
{
    QFETCH(int, index);
    QFETCH(int, expected);
    const auto tabs = [](BlobBuilder& blob) {
        real(blob, "B").widget(QString());
        real(blob.nested().sequence(1, 1), "C");
        real(blob, "D").dockTail();
    };
    BlobBuilder grown = soundHead().dockSection(2);
    real(grown.dock(0, 1, 2).sequence(2, 1), "A");
    place(grown.dock(1, 3, 4).tabs(index, 2, 5), "A");
    tabs(grown);
    BlobBuilder tidied = soundHead().dockSection(2);
    real(tidied.dock(0, 1, 2).sequence(2, 1), "A");
    tabs(tidied.dock(1, 3, 4).tabs(expected, 2, 4));
    QCOMPARE(WindowState(grown.blob()).tidied(), tidied.blob());
}

// Qt ignores dock widgets without a name, but gives each such tool bar the next of them.
void WindowStateTidyTest::namelessParts()
{
    BlobBuilder clean = soundHead().dockSection(2).dock(0, 1, 2).sequence(2, 1).widget(QString());
    real(clean.dock(1, 3, 4).sequence(2, 1), "B").dockTail();
    QCOMPARE(WindowState(mergedOnce(clean.blob())).tidied(), clean.blob());
    BlobBuilder bars = soundHead().toolBarSection(2).line(2, 1).toolBar(QString());
    bars.line(2, 1).toolBar(""_s);
    const QByteArray merged = mergedOnce(bars.blob());
    QCOMPARE(WindowState(merged).tidied(), merged);
}

void WindowStateTidyTest::unsoundStaysAsItIs()
{
    BlobBuilder grown = soundHead().dockSection(2);
    real(grown.dock(9, 1, 2).sequence(2, 1), "A");
    place(grown.dock(1, 3, 4).sequence(2, 1), "A").dockTail();
    QCOMPARE(WindowState(grown.blob()).tidied(), grown.blob());
    QCOMPARE(WindowState("not a state").tidied(), QByteArray("not a state"));
}

void WindowStateTidyTest::mergedTakesDocksAndBars()
{
    BlobBuilder stored = soundHead(5).toolBarSection(1).line(2, 1).toolBar("X"_s);
    real(stored.dockSection(1).dock(0, 1, 2).sequence(2, 1), "A").dockTail(7, 8, {4, 4, 8, 8});
    BlobBuilder live = soundHead(6).dockSection(0).dockTail().toolBarSection(2);
    live.line(3, 1).toolBar("Y"_s).line(3, 2).toolBar("Y"_s).toolBar("Z"_s);
    BlobBuilder expected = soundHead(5).dockSection(1).dock(0, 1, 2).sequence(2, 1);
    real(expected, "A").dockTail(7, 8, {4, 4, 8, 8}).toolBarSection(2);
    expected.line(3, 1).toolBar("Y"_s).line(3, 1).toolBar("Z"_s);
    const WindowState storedState(stored.blob());
    const WindowState liveState(live.blob());
    QCOMPARE(WindowState::merged(storedState, liveState), expected.blob());
}

void WindowStateTidyTest::mergedKeepsFloatingTabs_data()
{
    QTest::addColumn<bool>("inStored");
    QTest::addColumn<bool>("inLive");
    QTest::addRow("stored") << true << false;
    QTest::addRow("live") << false << true;
    QTest::addRow("both") << true << true;
}

void WindowStateTidyTest::mergedKeepsFloatingTabs()
{
    QFETCH(bool, inStored);
    QFETCH(bool, inLive);
    BlobBuilder docks = soundHead().dockSection(1).dock(0, 1, 2).sequence(2, 2);
    docks.widget("A"_s, 0, {0, -1, 0, 0}).widget("B"_s, 0, {0, -1, 0, 0}).dockTail();
    const QByteArray stored = docks.blob() + (inStored ? floatingTabs() : QByteArray());
    const QByteArray bars = BlobBuilder().toolBarSection(1).line(1, 1).toolBar("X"_s).blob();
    const QByteArray live =
        soundHead().raw(inLive ? floatingTabs() : QByteArray()).raw(bars).blob();
    const QByteArray otherBars = BlobBuilder().toolBarSection(0).blob();
    QCOMPARE(WindowState::merged(WindowState(stored + otherBars), WindowState(live)),
             stored + bars);
}

void WindowStateTidyTest::mergedRefusesUnsound()
{
    const WindowState sound(exampleBlob());
    QCOMPARE(WindowState::merged(sound, sound), exampleBlob());
    QCOMPARE(WindowState::merged(sound, WindowState()), QByteArray());
    QCOMPARE(WindowState::merged(WindowState(exampleBlob() + 'x'), sound), QByteArray());
    BlobBuilder area = soundHead().dockSection(1).dock(4, 1, 1).sequence(1, 0).dockTail();
    QCOMPARE(WindowState::merged(WindowState(area.blob()), sound), QByteArray());
}

} // namespace Panorel::Tests

QTEST_GUILESS_MAIN(Panorel::Tests::WindowStateTidyTest)
#include "WindowStateTidyTest.moc"
