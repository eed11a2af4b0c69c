// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** What clear() removes, what it leaves, and in which order it goes through the groups. */
class ManagerClearTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removesAllViewsOfAllGroups();
    void keepsTheActiveGroup();
    void sparesWindowsAndOwners();
    void keepsTheCurrentViews();
    void namesAreFreeAgain();
    void clearTwice();
    void emptiesGroupsInOrder_data();
    void emptiesGroupsInOrder();
    void asksForTheActiveGroupAtEachGroup();
    void asksForTheActiveGroupOncePerGroup();
};

void ManagerClearTest::removesAllViewsOfAllGroups()
{
    const QStringList groups = lines({"G", "H", "I"});
    Manager manager(groups, false);
    for (const QString& group : groups) {
        QVERIFY(manager.activateGroup(group));
        QVERIFY(manager.createView("a"_s));
        QVERIFY(manager.saveCurrentViewAs("b"_s));
    }
    manager.clear();
    for (const QString& group : groups) {
        QVERIFY(manager.activateGroup(group));
        QCOMPARE(manager.views(), QStringList());
        QCOMPARE(quoted(manager.activeView()), "null"_s);
    }
}

void ManagerClearTest::keepsTheActiveGroup()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.activateGroup("H"_s));
    manager.clear();
    QCOMPARE(manager.activeGroup(), "H"_s);
}

void ManagerClearTest::sparesWindowsAndOwners()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    window.moveDock(Qt::RightDockWidgetArea);
    owner.calls = 0;
    manager.clear();
    QCOMPARE(owner.calls, 0);
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
    // The owner is still registered.
    QVERIFY(manager.createView("right"_s));
    QCOMPARE(owner.calls, 1);
}

void ManagerClearTest::keepsTheCurrentViews()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G", "H"}), false);
    manager.registerManagable(owner);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    QVERIFY(manager.activateGroup("H"_s));
    window.moveDock(Qt::RightDockWidgetArea);
    manager.clear();
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
    QVERIFY(manager.activateGroup("H"_s));
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
}

void ManagerClearTest::namesAreFreeAgain()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    manager.clear();
    QCOMPARE(manager.activateView("a"_s), false);
    QCOMPARE(manager.createView("a"_s), true);
    QCOMPARE(manager.views(), lines({"a"}));
}

void ManagerClearTest::clearTwice()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    SignalLog log(manager);
    const QStringList expected =
        lines({"viewActivated('')", "groupModified()", "viewActivated(null)", "groupModified()"});
    manager.clear();
    QCOMPARE(log.take(), expected);
    manager.clear();
    QCOMPARE(log.take(), expected);
}

void ManagerClearTest::emptiesGroupsInOrder_data()
{
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QStringList>("viewsOfOther");

    QTest::newRow("earlier group is empty") << "H"_s
                                            << "G"_s << QStringList();
    QTest::newRow("later group is full") << "G"_s
                                         << "H"_s << lines({"view of H"});
}

void ManagerClearTest::emptiesGroupsInOrder()
{
    QFETCH(QString, active);
    QFETCH(QString, other);
    QFETCH(QStringList, viewsOfOther);
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.createView("view of G"_s));
    QVERIFY(manager.activateGroup("H"_s));
    QVERIFY(manager.createView("view of H"_s));
    QVERIFY(manager.activateGroup(active));

    QStringList seen{"not asked"_s};
    connect(&manager, &Manager::viewActivated, &manager, [&](const QString& name) {
        if (!name.isNull() || manager.signalsBlocked())
            return;
        // Blocked, or looking at the other group would call this again.
        const QSignalBlocker blocker(manager);
        QVERIFY(manager.activateGroup(other));
        seen = manager.views();
        QVERIFY(manager.activateGroup(active));
    });
    manager.clear();
    QCOMPARE(seen, viewsOfOther);
}

void ManagerClearTest::asksForTheActiveGroupAtEachGroup()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.createView("g"_s));
    QVERIFY(manager.activateGroup("H"_s));
    QVERIFY(manager.createView("h"_s));
    QVERIFY(manager.activateGroup("G"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);

    int modified = 0;
    connect(&manager, &Manager::groupModified, &manager, [&] {
        if (++modified != 2)
            return;
        // G is empty by now, and H, active from here on, is still to come.
        const QSignalBlocker blocker(manager);
        QVERIFY(manager.activateGroup("H"_s));
    });
    manager.clear();
    QCOMPARE(
        log.lines(),
        lines({"viewActivated('') [G: g; active null]", "groupModified() [G: g; active null]",
               "viewActivated(null) [G: g; active null]", "groupModified() [G: ; active null]",
               "viewActivated(null) [H: h; active null]", "groupModified() [H: ; active null]"}));
}

void ManagerClearTest::asksForTheActiveGroupOncePerGroup()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.createView("g"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    bool switched = false;
    connect(&manager, &Manager::viewActivated, &manager, [&](const QString& name) {
        if (!name.isNull() || switched)
            return;
        switched = true;
        const QSignalBlocker blocker(manager);
        QVERIFY(manager.activateGroup("H"_s));
    });
    manager.clear();
    // The fourth signal is still G's, whose turn it was when it was asked.
    QCOMPARE(
        log.lines(),
        lines({"viewActivated('') [G: g; active null]", "groupModified() [G: g; active null]",
               "viewActivated(null) [G: g; active null]", "groupModified() [H: ; active null]",
               "viewActivated(null) [H: ; active null]", "groupModified() [H: ; active null]"}));
}

QTEST_MAIN(ManagerClearTest)
#include "ManagerClearTest.moc"
