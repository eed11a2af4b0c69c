// SPDX-License-Identifier: MIT
#include "GroupAccess.h"
#include "ManagerPrivate.h"

#include "support/MessageWatch.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

const QByteArray head = "000000ff 00000000"_hex;
const QByteArray nullHead = "ffffffff ffffffff"_hex;

// Dock areas without docks around a central widget of 400 x 300, the corners at 1, 2, 1, 8.
const QByteArray storedDocks =
    "fd 00000000 00000190 0000012c 00000001 00000002 00000001 00000008"_hex;
// The same with 500 x 200 and the corners at 4, 4, 8, 8.
const QByteArray liveDocks =
    "fd 00000000 000001f4 000000c8 00000004 00000004 00000008 00000008"_hex;

// One line on top with the tool bar S, or at the bottom with L.
const QByteArray storedBars =
    "fc 00000001 00000002 00000001 00000002 0053 01 00000000 ffffffff 00000000 00000000"_hex;
const QByteArray liveBars =
    "fc 00000001 00000003 00000001 00000002 004c 01 00000007 00000064 00000000 00000000"_hex;

const QByteArray stored = head + storedDocks + storedBars;
const QByteArray live = head + liveDocks + liveBars;

} // namespace

/** Stored dock areas over live tool bars: the bytes that come out, and what windows make of them.
 */
class ManagerMergeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void bytes_data();
    void bytes();
    void everyIdGetsAnEntry();
    void mergesNothing();

    void docksComeBackBarsStay();
    void withoutMergeBothComeBack();
    void liveIsCapturedAtEachApply();
    void brokenBlob_data();
    void brokenBlob();
    void blobBrokenInItsBars();
    void windowWithoutStoredBlob();
    void storedBlobWithoutWindow();
    void windowsShareAnId();
    void changesNoView();

private:
    SmallWindow m_window;
    Owner m_owner{{{"w"_s, &m_window}}};
};

void ManagerMergeTest::init()
{
    m_window.arrange(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    m_window.placed = 0;
    m_owner.windows = {{"w"_s, &m_window}};
}

void ManagerMergeTest::bytes_data()
{
    QTest::addColumn<QByteArray>("storedBlob");
    QTest::addColumn<QByteArray>("liveBlob");
    QTest::addColumn<QByteArray>("merged");

    const auto row = [](const char* name, const QByteArray& storedBlob, const QByteArray& liveBlob,
                        const QByteArray& merged) {
        QTest::newRow(name) << storedBlob << liveBlob << merged;
    };
    const QByteArray docksAndLiveBars = head + storedDocks + liveBars;

    row("both complete", stored, live, docksAndLiveBars);
    row("stored without docks", head + storedBars, live, head + liveBars);
    row("stored without sections", head, live, head + liveBars);
    row("live without bars", stored, head + liveDocks, head + storedDocks);
    row("stored layout version is kept", "000000ff 00000005"_hex + storedDocks, live,
        "000000ff 00000005"_hex + storedDocks + liveBars);
    row("live layout version is dropped", stored, "000000ff 00000005"_hex + liveBars,
        docksAndLiveBars);
    row("live layout version means none", stored, "000000ff ffffffff"_hex + liveBars,
        head + storedDocks);

    row("nothing stored", QByteArray(), live, nullHead + liveBars);
    row("nothing live", stored, QByteArray(), head + storedDocks);
    row("nothing at all", QByteArray(), QByteArray(), nullHead);

    row("stored ends in its marker", "0000"_hex, live, "00000000 00000000"_hex + liveBars);
    row("stored ends in its version", "000000ff 00"_hex, live, head + liveBars);
    row("stored has another marker", "000000fe 00000000"_hex + storedDocks, live,
        "000000fe 00000000"_hex + liveBars);
    row("stored ends in its docks", head + storedDocks.chopped(1), live, head + liveBars);
    row("stored ends in its bars", stored.chopped(1), live, docksAndLiveBars);
    row("live ends in its version", stored, "000000ff 00"_hex, head + storedDocks);
    row("live has another marker", stored, "000000fe 00000000"_hex + liveBars, head + storedDocks);
    row("live breaks after its bars", stored, live + "00"_hex, docksAndLiveBars);
    row("live breaks before its bars", stored, head + "00"_hex + liveBars, head + storedDocks);
}

void ManagerMergeTest::bytes()
{
    QFETCH(QByteArray, storedBlob);
    QFETCH(QByteArray, liveBlob);
    QFETCH(QByteArray, merged);
    Manager manager(lines({"G"}), true);

    const MessageWatch watch(MessageWatch::Started);
    const StateMap result = mergeStates(manager, {{"w"_s, storedBlob}}, {{"w"_s, liveBlob}});
    QCOMPARE(result.keys(), lines({"w"}));
    QCOMPARE(result.value("w"_s).toHex(' '), merged.toHex(' '));
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerMergeTest::everyIdGetsAnEntry()
{
    Manager manager(lines({"G"}), true);
    const StateMap storedStates{{"both"_s, stored}, {"stored"_s, stored}, {"s empty"_s, ""}};
    const StateMap liveStates{{"both"_s, live}, {"live"_s, live}, {"l empty"_s, ""}};
    const StateMap expected{{"both"_s, head + storedDocks + liveBars},
                            {"live"_s, nullHead + liveBars},
                            {"stored"_s, head + storedDocks},
                            {"s empty"_s, nullHead},
                            {"l empty"_s, nullHead}};
    QCOMPARE(mergeStates(manager, storedStates, liveStates), expected);
}

void ManagerMergeTest::mergesNothing()
{
    Manager manager(lines({"G"}), true);
    QCOMPARE(mergeStates(manager, StateMap(), StateMap()), StateMap());
}

void ManagerMergeTest::docksComeBackBarsStay()
{
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("a"_s));
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(manager.activateView("a"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::BottomToolBarArea);
}

void ManagerMergeTest::withoutMergeBothComeBack()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("a"_s));
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(manager.activateView("a"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::TopToolBarArea);
}

void ManagerMergeTest::liveIsCapturedAtEachApply()
{
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("a"_s));
    for (const auto area : {Qt::BottomToolBarArea, Qt::LeftToolBarArea, Qt::RightToolBarArea}) {
        m_window.arrange(Qt::RightDockWidgetArea, area);
        QVERIFY(manager.activateView("a"_s));
        QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
        QCOMPARE(m_window.barArea(), area);
    }
}

void ManagerMergeTest::brokenBlob_data()
{
    QTest::addColumn<QByteArray>("blob");

    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("not a layout");
    QTest::newRow("one byte") << "00"_hex;
    QTest::newRow("other marker") << "000000fe 00000000"_hex;
    QTest::newRow("other layout version") << "000000ff 00000001"_hex;
    QTest::newRow("empty state") << nullHead;
}

void ManagerMergeTest::brokenBlob()
{
    QFETCH(QByteArray, blob);
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    const MessageWatch watch(MessageWatch::Started);
    apply(manager, {{"w"_s, blob}});
    QCOMPARE(m_window.placed, 0);
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::TopToolBarArea);
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerMergeTest::blobBrokenInItsBars()
{
    const QByteArray whole = SmallWindow::stateOf(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    // The docks come before the bars, so they are still read.
    apply(manager, {{"w"_s, whole.chopped(1)}});
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::TopToolBarArea);
}

void ManagerMergeTest::windowWithoutStoredBlob()
{
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    apply(manager, {{"other"_s, stored}});
    QCOMPARE(m_window.placed, 0);
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::TopToolBarArea);
}

void ManagerMergeTest::storedBlobWithoutWindow()
{
    m_owner.windows.clear();
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    apply(manager, {{"w"_s, SmallWindow::stateOf(Qt::RightDockWidgetArea, Qt::TopToolBarArea)}});
    QCOMPARE(m_window.placed, 0);
}

void ManagerMergeTest::windowsShareAnId()
{
    SmallWindow other;
    m_owner.windows = {{"w"_s, &m_window}, {"w"_s, &other}};
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    m_window.moveBar(Qt::LeftToolBarArea);
    other.moveBar(Qt::RightToolBarArea);
    apply(manager, {{"w"_s, SmallWindow::stateOf(Qt::TopDockWidgetArea, Qt::TopToolBarArea)}});
    // The live bars are those of the later window, and both windows get them.
    for (const SmallWindow* window : {&m_window, &other}) {
        QCOMPARE(window->dockArea(), Qt::TopDockWidgetArea);
        QCOMPARE(window->barArea(), Qt::RightToolBarArea);
    }
}

void ManagerMergeTest::changesNoView()
{
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    const StateMap states{{"w"_s, m_window.saveState(0)}, {"gone"_s, stored}};
    Group group(&manager, "H"_s);
    View* view = group.appendView("a"_s);
    view->states = states;
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    group.selectView(view, /*emitSignal=*/false);
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(view->states, states);
    QCOMPARE(group.currentView->states, states);
}

QTEST_MAIN(ManagerMergeTest)
#include "ManagerMergeTest.moc"
