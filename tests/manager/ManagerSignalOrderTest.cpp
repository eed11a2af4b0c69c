// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Which signals each operation emits, in which order, and what the model tells meanwhile. */
class ManagerSignalOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registrationIsSilent();
    void queriesAreSilent();

    void createView();
    void createTakenView();
    void createViewCapturesFirst();

    void saveNewView();
    void saveExistingView();
    void saveEmitsTheNameAsGiven_data();
    void saveEmitsTheNameAsGiven();

    void activateView();
    void activateViewRestoresFirst();

    void activateGroup();
    void activateGroupWithActiveView();
    void activateActiveGroup();
    void activateGroupCapturesForTheOldGroup();
    void activateGroupRestoresFirst();
    void activateGroupEmitsTheNamesKept_data();
    void activateGroupEmitsTheNamesKept();

    void deleteActiveView();
    void deleteInactiveView();
    void deleteWithoutActiveView();

    void clear();
    void clearWithoutViews();
    void clearWithoutActiveView();
};

void ManagerSignalOrderTest::registrationIsSilent()
{
    Owner owner;
    Manager manager(lines({"G"}), false);
    const SignalLog log(manager);
    manager.registerManagable(owner);
    manager.registerManagable(owner);
    QCOMPARE(log.lines(), QStringList());
}

void ManagerSignalOrderTest::queriesAreSilent()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager);
    QCOMPARE(manager.groups(), lines({"G"}));
    QCOMPARE(manager.activeGroup(), "G"_s);
    QCOMPARE(manager.views(), lines({"a"}));
    QCOMPARE(manager.activeView(), "a"_s);
    QCOMPARE(log.lines(), QStringList());
}

void ManagerSignalOrderTest::createView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    QVERIFY(manager.createView("b"_s));
    QCOMPARE(log.lines(), lines({"groupModified() [G: a, b; active 'a']"}));
}

void ManagerSignalOrderTest::createTakenView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    const SignalLog log(manager);
    QCOMPARE(manager.createView("a"_s), false);
    QCOMPARE(log.lines(), QStringList());
}

void ManagerSignalOrderTest::createViewCapturesFirst()
{
    Owner owner;
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    int callsAtSignal = 0;
    connect(&manager, &Manager::groupModified, &manager, [&] { callsAtSignal = owner.calls; });
    QVERIFY(manager.createView("a"_s));
    QCOMPARE(callsAtSignal, 1);
}

void ManagerSignalOrderTest::saveNewView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    QVERIFY(manager.saveCurrentViewAs("b"_s));
    QCOMPARE(log.lines(), lines({"groupModified() [G: a, b; active 'b']",
                                 "viewActivated('b') [G: a, b; active 'b']"}));
}

void ManagerSignalOrderTest::saveExistingView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    SignalLog log(manager, SignalLog::SignalsAndModel);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QCOMPARE(log.take(), lines({"viewActivated('a') [G: a; active 'a']"}));
    // Again, now that the view is active already.
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QCOMPARE(log.take(), lines({"viewActivated('a') [G: a; active 'a']"}));
}

void ManagerSignalOrderTest::saveEmitsTheNameAsGiven_data()
{
    QTest::addColumn<QString>("created");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("emitted");

    QTest::newRow("null over null") << QString() << QString() << "viewActivated(null)"_s;
    QTest::newRow("null over empty") << ""_s << QString() << "viewActivated(null)"_s;
    QTest::newRow("empty over null") << QString() << ""_s
                                     << "viewActivated('')"_s;
    QTest::newRow("empty over empty") << ""_s
                                      << ""_s
                                      << "viewActivated('')"_s;
}

void ManagerSignalOrderTest::saveEmitsTheNameAsGiven()
{
    QFETCH(QString, created);
    QFETCH(QString, saved);
    QFETCH(QString, emitted);
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView(created));
    const SignalLog log(manager);
    QVERIFY(manager.saveCurrentViewAs(saved));
    QCOMPARE(log.lines(), QStringList{emitted});
}

void ManagerSignalOrderTest::activateView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView("b"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    QVERIFY(manager.activateView("b"_s));
    QCOMPARE(log.lines(), lines({"viewActivated('b') [G: a, b; active 'b']"}));
}

void ManagerSignalOrderTest::activateViewRestoresFirst()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QVERIFY(manager.createView("left"_s));
    window.moveDock(Qt::RightDockWidgetArea);

    QString activeAtRestore;
    window.onPlaced = [&] { activeAtRestore = manager.activeView(); };
    Qt::DockWidgetArea areaAtSignal = Qt::NoDockWidgetArea;
    connect(&manager, &Manager::viewActivated, &manager, [&] { areaAtSignal = window.dockArea(); });
    QVERIFY(manager.activateView("left"_s));
    QCOMPARE(activeAtRestore, "left"_s);
    QCOMPARE(areaAtSignal, Qt::LeftDockWidgetArea);
}

void ManagerSignalOrderTest::activateGroup()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    QVERIFY(manager.activateGroup("H"_s));
    QCOMPARE(log.lines(), lines({"groupActivated('H') [H: ; active null]",
                                 "viewActivated(null) [H: ; active null]"}));
}

void ManagerSignalOrderTest::activateGroupWithActiveView()
{
    Manager manager(lines({"G", "H"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.activateGroup("H"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(log.lines(), lines({"groupActivated('G') [G: a; active 'a']",
                                 "viewActivated('a') [G: a; active 'a']"}));
}

void ManagerSignalOrderTest::activateActiveGroup()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    QCOMPARE(manager.activateGroup("G"_s), true);
    QCOMPARE(log.lines(), lines({"groupActivated('G') [G: a; active 'a']",
                                 "viewActivated('a') [G: a; active 'a']"}));
}

// The owner is asked once for the capture and once for the restore.
void ManagerSignalOrderTest::activateGroupCapturesForTheOldGroup()
{
    Owner owner;
    Manager manager(lines({"G", "H"}), false);
    manager.registerManagable(owner);
    QStringList groups;
    owner.onAsked = [&] { groups.append(manager.activeGroup()); };
    QVERIFY(manager.activateGroup("H"_s));
    QCOMPARE(groups, lines({"G", "H"}));
}

void ManagerSignalOrderTest::activateGroupRestoresFirst()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G", "H"}), false);
    manager.registerManagable(owner);
    QVERIFY(manager.activateGroup("H"_s));
    window.moveDock(Qt::RightDockWidgetArea);

    QString groupAtRestore;
    window.onPlaced = [&] { groupAtRestore = manager.activeGroup(); };
    Qt::DockWidgetArea areaAtSignal = Qt::NoDockWidgetArea;
    connect(&manager, &Manager::groupActivated, &manager,
            [&] { areaAtSignal = window.dockArea(); });
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(groupAtRestore, "G"_s);
    QCOMPARE(areaAtSignal, Qt::LeftDockWidgetArea);
}

void ManagerSignalOrderTest::activateGroupEmitsTheNamesKept_data()
{
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("shown");

    QTest::newRow("null for empty") << ""_s << QString() << "''"_s;
    QTest::newRow("empty for null") << QString() << ""_s
                                    << "null"_s;
    QTest::newRow("null for null") << QString() << QString() << "null"_s;
    QTest::newRow("empty for empty") << ""_s
                                     << ""_s
                                     << "''"_s;
}

void ManagerSignalOrderTest::activateGroupEmitsTheNamesKept()
{
    QFETCH(QString, kept);
    QFETCH(QString, given);
    QFETCH(QString, shown);
    Manager manager({kept, "other"_s}, false);
    QVERIFY(manager.saveCurrentViewAs(kept));
    QVERIFY(manager.activateGroup("other"_s));
    const SignalLog log(manager);
    QVERIFY(manager.activateGroup(given));
    const QStringList expected{"groupActivated("_s + shown + ")"_s,
                               "viewActivated("_s + shown + ")"_s};
    QCOMPARE(log.lines(), expected);
}

void ManagerSignalOrderTest::deleteActiveView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView("b"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    manager.deleteView("a"_s);
    QCOMPARE(log.lines(), lines({"viewActivated('') [G: a, b; active null]",
                                 "groupModified() [G: b; active null]"}));
}

void ManagerSignalOrderTest::deleteInactiveView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView("b"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    manager.deleteView("b"_s);
    QCOMPARE(log.lines(), lines({"groupModified() [G: a; active 'a']"}));
}

void ManagerSignalOrderTest::deleteWithoutActiveView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    manager.deleteView("a"_s);
    QCOMPARE(log.lines(), lines({"groupModified() [G: ; active null]"}));
}

void ManagerSignalOrderTest::clear()
{
    Manager manager(lines({"G", "H", "I"}), false);
    QVERIFY(manager.saveCurrentViewAs("g"_s));
    QVERIFY(manager.activateGroup("H"_s));
    QVERIFY(manager.createView("h1"_s));
    QVERIFY(manager.saveCurrentViewAs("h2"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    manager.clear();
    QCOMPARE(log.lines(), lines({"viewActivated('') [H: h1, h2; active 'h2']",
                                 "groupModified() [H: h1, h2; active 'h2']",
                                 "viewActivated(null) [H: h1, h2; active null]",
                                 "groupModified() [H: ; active null]"}));
}

void ManagerSignalOrderTest::clearWithoutViews()
{
    Manager manager(lines({"G", "H"}), false);
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    manager.clear();
    QCOMPARE(
        log.lines(),
        lines({"viewActivated('') [G: ; active null]", "groupModified() [G: ; active null]",
               "viewActivated(null) [G: ; active null]", "groupModified() [G: ; active null]"}));
}

void ManagerSignalOrderTest::clearWithoutActiveView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    manager.clear();
    QCOMPARE(
        log.lines(),
        lines({"viewActivated('') [G: a; active null]", "groupModified() [G: a; active null]",
               "viewActivated(null) [G: a; active null]", "groupModified() [G: ; active null]"}));
}

QTEST_MAIN(ManagerSignalOrderTest)
#include "ManagerSignalOrderTest.moc"
