// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <functional>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

/** Runs @p act at the @p nth viewActivated from now on, once, however much act emits itself. */
void atViewActivated(Manager& manager, int nth, const std::function<void()>& act)
{
    auto* receiver = new QObject(&manager);
    QObject::connect(&manager, &Manager::viewActivated, receiver, [=]() mutable {
        if (--nth == 0)
            act();
    });
}

void atGroupModified(Manager& manager, int nth, const std::function<void()>& act)
{
    auto* receiver = new QObject(&manager);
    QObject::connect(&manager, &Manager::groupModified, receiver, [=]() mutable {
        if (--nth == 0)
            act();
    });
}

} // namespace

/** Receivers that call the Manager back: each operation goes on by its own steps afterwards. */
class ManagerReentryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteInDelete();
    void activateInDelete();
    void saveInDelete();
    void clearInDelete();
    void switchGroupInDelete();
    void replaceInDelete_data();
    void replaceInDelete();

    void createInClear_data();
    void createInClear();
    void createAtTheEndOfClear();
    void activateInClear();
    void deleteInClear();
    void clearInClear();
    void switchGroupInClear();

    void deleteInActivate();
    void activateInActivate();
    void deleteInSave();
    void createInCreate();
    void switchGroupInSwitch();
    void clearInSwitch();
    void changeViewsWhileRestoring_data();
    void changeViewsWhileRestoring();
};

void ManagerReentryTest::deleteInDelete()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView("b"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atViewActivated(manager, 1, [&] { manager.deleteView("a"_s); });
    manager.deleteView("a"_s);
    QCOMPARE(log.lines(),
             lines({"viewActivated('') [G: a, b; active null]",
                    "groupModified() [G: b; active null]", "groupModified() [G: b; active null]"}));
}

void ManagerReentryTest::activateInDelete()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atViewActivated(manager, 1, [&] { QVERIFY(manager.activateView("a"_s)); });
    manager.deleteView("a"_s);
    QCOMPARE(log.lines(), lines({"viewActivated('') [G: a; active null]",
                                 "viewActivated('a') [G: a; active 'a']",
                                 "groupModified() [G: ; active null]"}));
}

void ManagerReentryTest::saveInDelete()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atViewActivated(manager, 1, [&] { QVERIFY(manager.saveCurrentViewAs("a"_s)); });
    manager.deleteView("a"_s);
    QCOMPARE(log.lines(), lines({"viewActivated('') [G: a; active null]",
                                 "viewActivated('a') [G: a; active 'a']",
                                 "groupModified() [G: ; active null]"}));
}

void ManagerReentryTest::clearInDelete()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView("b"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atViewActivated(manager, 1, [&] { manager.clear(); });
    manager.deleteView("a"_s);
    QCOMPARE(
        log.lines(),
        lines({"viewActivated('') [G: a, b; active null]",
               "viewActivated('') [G: a, b; active null]", "groupModified() [G: a, b; active null]",
               "viewActivated(null) [G: a, b; active null]", "groupModified() [G: ; active null]",
               "groupModified() [G: ; active null]"}));
}

void ManagerReentryTest::switchGroupInDelete()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.activateGroup("H"_s));
    QVERIFY(manager.createView("a"_s));
    QVERIFY(manager.activateGroup("G"_s));
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    atViewActivated(manager, 1, [&] { QVERIFY(manager.activateGroup("H"_s)); });
    manager.deleteView("a"_s);
    // It goes from the group that was active at the call.
    QCOMPARE(manager.views(), lines({"a"}));
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(manager.views(), QStringList());
}

void ManagerReentryTest::replaceInDelete_data()
{
    QTest::addColumn<QString>("successor");
    QTest::addColumn<bool>("byClear");

    QTest::newRow("other name") << "b"_s << false;
    QTest::newRow("same name") << "a"_s << false;
    QTest::newRow("other name, cleared") << "b"_s << true;
    QTest::newRow("same name, cleared") << "a"_s << true;
}

void ManagerReentryTest::replaceInDelete()
{
    QFETCH(QString, successor);
    QFETCH(bool, byClear);
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    atViewActivated(manager, 1, [&] {
        if (byClear)
            manager.clear();
        else
            manager.deleteView("a"_s);
        // Likely to get the memory that the deleted view has just left.
        QVERIFY(manager.createView(successor));
    });
    manager.deleteView("a"_s);
    QCOMPARE(manager.views(), QStringList{successor});
}

void ManagerReentryTest::createInClear_data()
{
    QTest::addColumn<bool>("atModified");
    QTest::addColumn<int>("nth");

    QTest::newRow("first signal") << false << 1;
    QTest::newRow("second signal") << true << 1;
    QTest::newRow("third signal") << false << 2;
}

void ManagerReentryTest::createInClear()
{
    QFETCH(bool, atModified);
    QFETCH(int, nth);
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    bool created = false;
    const auto create = [&] { created = manager.createView("new"_s); };
    if (atModified)
        atGroupModified(manager, nth, create);
    else
        atViewActivated(manager, nth, create);
    manager.clear();
    // It came before the views were destroyed, and went with them.
    QVERIFY(created);
    QCOMPARE(manager.views(), QStringList());
}

void ManagerReentryTest::createAtTheEndOfClear()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atGroupModified(manager, 2, [&] { QVERIFY(manager.createView("a"_s)); });
    manager.clear();
    QCOMPARE(manager.views(), lines({"a"}));
    QCOMPARE(quoted(manager.activeView()), "null"_s);
    QCOMPARE(log.lines(),
             lines({"viewActivated('') [G: a; active 'a']", "groupModified() [G: a; active 'a']",
                    "viewActivated(null) [G: a; active null]", "groupModified() [G: ; active null]",
                    "groupModified() [G: a; active null]"}));
}

void ManagerReentryTest::activateInClear()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atViewActivated(manager, 2, [&] { QVERIFY(manager.activateView("a"_s)); });
    manager.clear();
    QCOMPARE(quoted(manager.activeView()), "null"_s);
    QCOMPARE(
        log.lines(),
        lines({"viewActivated('') [G: a; active 'a']", "groupModified() [G: a; active 'a']",
               "viewActivated(null) [G: a; active null]", "viewActivated('a') [G: a; active 'a']",
               "groupModified() [G: ; active null]"}));
}

void ManagerReentryTest::deleteInClear()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView("b"_s));
    atViewActivated(manager, 2, [&] { manager.deleteView("a"_s); });
    manager.clear();
    QCOMPARE(manager.views(), QStringList());
}

void ManagerReentryTest::clearInClear()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager);
    atViewActivated(manager, 1, [&] { manager.clear(); });
    manager.clear();
    QCOMPARE(manager.views(), QStringList());
    QCOMPARE(log.lines(), lines({"viewActivated('')", "viewActivated('')", "groupModified()",
                                 "viewActivated(null)", "groupModified()", "groupModified()",
                                 "viewActivated(null)", "groupModified()"}));
}

void ManagerReentryTest::switchGroupInClear()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.createView("g"_s));
    QVERIFY(manager.activateGroup("H"_s));
    QVERIFY(manager.createView("h"_s));
    QVERIFY(manager.activateGroup("G"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atGroupModified(manager, 1, [&] { QVERIFY(manager.activateGroup("H"_s)); });
    manager.clear();
    QCOMPARE(
        log.lines(),
        lines({"viewActivated('') [G: g; active null]", "groupModified() [G: g; active null]",
               "groupActivated('H') [H: h; active null]", "viewActivated(null) [H: h; active null]",
               "viewActivated(null) [H: h; active null]", "groupModified() [H: ; active null]"}));
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(manager.views(), QStringList());
}

void ManagerReentryTest::deleteInActivate()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atViewActivated(manager, 1, [&] { manager.deleteView("a"_s); });
    QCOMPARE(manager.activateView("a"_s), true);
    QCOMPARE(log.lines(), lines({"viewActivated('a') [G: a; active 'a']",
                                 "viewActivated('') [G: a; active null]",
                                 "groupModified() [G: ; active null]"}));
}

void ManagerReentryTest::activateInActivate()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    QVERIFY(manager.createView("b"_s));
    const SignalLog log(manager);
    atViewActivated(manager, 1, [&] { QVERIFY(manager.activateView("b"_s)); });
    QCOMPARE(manager.activateView("a"_s), true);
    QCOMPARE(manager.activeView(), "b"_s);
    QCOMPARE(log.lines(), lines({"viewActivated('a')", "viewActivated('b')"}));
}

void ManagerReentryTest::deleteInSave()
{
    Manager manager(lines({"G"}), false);
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    atGroupModified(manager, 1, [&] { manager.deleteView("a"_s); });
    QCOMPARE(manager.saveCurrentViewAs("a"_s), true);
    QCOMPARE(
        log.lines(),
        lines({"groupModified() [G: a; active 'a']", "viewActivated('') [G: a; active null]",
               "groupModified() [G: ; active null]", "viewActivated('a') [G: ; active null]"}));
}

void ManagerReentryTest::createInCreate()
{
    Manager manager(lines({"G"}), false);
    atGroupModified(manager, 1, [&] {
        QCOMPARE(manager.createView("a"_s), false);
        QCOMPARE(manager.createView("b"_s), true);
    });
    QCOMPARE(manager.createView("a"_s), true);
    QCOMPARE(manager.views(), lines({"a", "b"}));
}

void ManagerReentryTest::switchGroupInSwitch()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.saveCurrentViewAs("g"_s));
    const SignalLog log(manager);
    bool back = false;
    connect(&manager, &Manager::groupActivated, &manager, [&] {
        if (back)
            return;
        back = true;
        QVERIFY(manager.activateGroup("G"_s));
    });
    QCOMPARE(manager.activateGroup("H"_s), true);
    QCOMPARE(manager.activeGroup(), "G"_s);
    // The last one is the outer call's and names the group it had found.
    QCOMPARE(log.lines(), lines({"groupActivated('H')", "groupActivated('G')", "viewActivated('g')",
                                 "viewActivated(null)"}));
}

void ManagerReentryTest::clearInSwitch()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.saveCurrentViewAs("g"_s));
    QVERIFY(manager.activateGroup("H"_s));
    connect(&manager, &Manager::groupActivated, &manager, [&] { manager.clear(); });
    const SignalLog log(manager);
    QCOMPARE(manager.activateGroup("G"_s), true);
    QCOMPARE(log.lines(), lines({"viewActivated('')", "groupModified()", "viewActivated(null)",
                                 "groupModified()", "groupActivated('G')", "viewActivated(null)"}));
}

void ManagerReentryTest::changeViewsWhileRestoring_data()
{
    QTest::addColumn<bool>("byClear");
    QTest::addColumn<bool>("merge");

    QTest::newRow("deleted") << false << false;
    QTest::newRow("deleted, merging") << false << true;
    QTest::newRow("cleared") << true << false;
    QTest::newRow("cleared, merging") << true << true;
}

void ManagerReentryTest::changeViewsWhileRestoring()
{
    QFETCH(bool, byClear);
    QFETCH(bool, merge);
    SmallWindow first;
    SmallWindow second;
    Owner owner({{"1"_s, &first}, {"2"_s, &second}});
    Manager manager(lines({"G"}), merge);
    manager.registerManagable(owner);
    QVERIFY(manager.createView("a"_s));
    first.moveDock(Qt::RightDockWidgetArea);
    second.moveDock(Qt::RightDockWidgetArea);
    first.onPlaced = [&] { byClear ? manager.clear() : manager.deleteView("a"_s); };

    SignalLog log(manager);
    QCOMPARE(manager.activateView("a"_s), true);
    QCOMPARE(log.lines().last(), "viewActivated('a')"_s);
    QCOMPARE(second.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(manager.views(), QStringList());
    QCOMPARE(quoted(manager.activeView()), "null"_s);
}

QTEST_MAIN(ManagerReentryTest)
#include "ManagerReentryTest.moc"
