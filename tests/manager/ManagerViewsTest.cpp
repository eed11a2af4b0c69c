// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** The saved views of one group: their order, the active one, and what each operation keeps. */
class ManagerViewsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void createAppends();
    void createKeepsTheActiveView();
    void createSparesTheWindows();
    void createTakenName();
    void createdViewHoldsTheLiveLayout();
    void namesAreCompared_data();
    void namesAreCompared();

    void saveCreatesAndActivates();
    void saveOverwrites();
    void saveSparesOtherViews();
    void saveSparesTheWindows();

    void activate();
    void activateUnknown_data();
    void activateUnknown();
    void activateDropsLiveChanges();
    void activateAgainRestores();

    void deleteActive();
    void deleteInactive();
    void deleteKeepsTheOrder();
    void deleteUnknown_data();
    void deleteUnknown();
    void deleteSparesTheWindows();
    void deletedNameIsFree();

    void userDataIsInvalid();

private:
    /** Manages the window, saves "left" and moves the dock widget to the right. */
    void leaveLeft(Manager& manager);

    SmallWindow m_window;
    Owner m_owner{{{"w"_s, &m_window}}};
};

void ManagerViewsTest::init()
{
    m_window.arrange(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
}

void ManagerViewsTest::leaveLeft(Manager& manager)
{
    manager.registerManagable(m_owner);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
}

void ManagerViewsTest::createAppends()
{
    Manager manager(lines({"G"}), false);
    QCOMPARE(manager.createView("b"_s), true);
    QCOMPARE(manager.createView("c"_s), true);
    QCOMPARE(manager.createView("a"_s), true);
    QCOMPARE(manager.views(), lines({"b", "c", "a"}));
}

void ManagerViewsTest::createKeepsTheActiveView()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    QCOMPARE(quoted(manager.activeView()), "null"_s);
    QVERIFY(manager.activateView("a"_s));
    QVERIFY(manager.createView("b"_s));
    QCOMPARE(manager.activeView(), "a"_s);
}

void ManagerViewsTest::createSparesTheWindows()
{
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    m_window.placed = 0;
    QVERIFY(manager.createView("right"_s));
    QCOMPARE(m_window.placed, 0);
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::BottomToolBarArea);
}

void ManagerViewsTest::createTakenName()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("x"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    const SignalLog log(manager);
    QCOMPARE(manager.createView("x"_s), false);
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(manager.views(), lines({"x"}));
    // The view is still the one from the first call.
    QVERIFY(manager.activateView("x"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
}

void ManagerViewsTest::createdViewHoldsTheLiveLayout()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("left"_s));
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(manager.createView("right"_s));
    QVERIFY(manager.activateView("left"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::TopToolBarArea);
    QVERIFY(manager.activateView("right"_s));
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::BottomToolBarArea);
}

void ManagerViewsTest::namesAreCompared_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("same");

    QTest::newRow("equal") << "a"_s
                           << "a"_s << true;
    QTest::newRow("other case") << "a"_s
                                << "A"_s << false;
    QTest::newRow("trailing blank") << "a"_s
                                    << "a "_s << false;
    QTest::newRow("beginning") << "ab"_s
                               << "a"_s << false;
    QTest::newRow("composed and decomposed") << u8"\u00e9"_s << u8"e\u0301"_s << false;
    QTest::newRow("null and empty") << QString() << ""_s << true;
    QTest::newRow("empty and null") << ""_s << QString() << true;
}

void ManagerViewsTest::namesAreCompared()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, same);
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView(first));
    QCOMPARE(manager.createView(second), !same);
    QVERIFY(manager.saveCurrentViewAs(second));
    QCOMPARE(manager.views().size(), same ? 1 : 2);
    manager.deleteView(second);
    QCOMPARE(manager.views().size(), same ? 0 : 1);
}

void ManagerViewsTest::saveCreatesAndActivates()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    QCOMPARE(manager.saveCurrentViewAs("b"_s), true);
    QCOMPARE(manager.views(), lines({"a", "b"}));
    QCOMPARE(manager.activeView(), "b"_s);
    QCOMPARE(manager.saveCurrentViewAs("a"_s), true);
    QCOMPARE(manager.views(), lines({"a", "b"}));
    QCOMPARE(manager.activeView(), "a"_s);
}

void ManagerViewsTest::saveOverwrites()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    QVERIFY(manager.saveCurrentViewAs("x"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.saveCurrentViewAs("x"_s));
    m_window.moveDock(Qt::TopDockWidgetArea);
    QVERIFY(manager.activateView("x"_s));
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
}

void ManagerViewsTest::saveSparesOtherViews()
{
    Manager manager(lines({"G"}), false);
    leaveLeft(manager);
    // "left" is active, but the layout goes under the given name only.
    QVERIFY(manager.saveCurrentViewAs("right"_s));
    QVERIFY(manager.activateView("left"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
}

void ManagerViewsTest::saveSparesTheWindows()
{
    Manager manager(lines({"G"}), true);
    manager.registerManagable(m_owner);
    m_window.placed = 0;
    QVERIFY(manager.saveCurrentViewAs("x"_s));
    QVERIFY(manager.saveCurrentViewAs("x"_s));
    QCOMPARE(m_window.placed, 0);
}

void ManagerViewsTest::activate()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    QVERIFY(manager.createView("b"_s));
    QCOMPARE(manager.activateView("b"_s), true);
    QCOMPARE(manager.activeView(), "b"_s);
    QCOMPARE(manager.activateView("a"_s), true);
    QCOMPARE(manager.activeView(), "a"_s);
    QCOMPARE(manager.views(), lines({"a", "b"}));
}

void ManagerViewsTest::activateUnknown_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("unknown") << "other"_s;
    QTest::newRow("other case") << "LEFT"_s;
    QTest::newRow("empty") << ""_s;
    QTest::newRow("null") << QString();
    QTest::newRow("current view") << "__current__"_s;
    QTest::newRow("group") << "G"_s;
}

void ManagerViewsTest::activateUnknown()
{
    QFETCH(QString, name);
    Manager manager(lines({"G"}), false);
    leaveLeft(manager);
    m_owner.calls = 0;
    const SignalLog log(manager);

    QCOMPARE(manager.activateView(name), false);
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(m_owner.calls, 0);
    QCOMPARE(manager.activeView(), "left"_s);
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
}

void ManagerViewsTest::activateDropsLiveChanges()
{
    Manager manager(lines({"G"}), false);
    leaveLeft(manager);
    QVERIFY(manager.saveCurrentViewAs("right"_s));
    m_window.moveDock(Qt::TopDockWidgetArea);
    QVERIFY(manager.activateView("left"_s));
    // The dock's stay on top is in neither view.
    QVERIFY(manager.activateView("right"_s));
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
}

void ManagerViewsTest::activateAgainRestores()
{
    Manager manager(lines({"G"}), false);
    leaveLeft(manager);
    const SignalLog log(manager);
    QCOMPARE(manager.activateView("left"_s), true);
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(log.lines(), lines({"viewActivated('left')"}));
}

void ManagerViewsTest::deleteActive()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    QVERIFY(manager.saveCurrentViewAs("b"_s));
    manager.deleteView("b"_s);
    QCOMPARE(manager.views(), lines({"a"}));
    QCOMPARE(quoted(manager.activeView()), "null"_s);
}

void ManagerViewsTest::deleteInactive()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    QVERIFY(manager.saveCurrentViewAs("b"_s));
    manager.deleteView("a"_s);
    QCOMPARE(manager.views(), lines({"b"}));
    QCOMPARE(manager.activeView(), "b"_s);
}

void ManagerViewsTest::deleteKeepsTheOrder()
{
    Manager manager(lines({"G"}), false);
    for (const QString& name : lines({"d", "a", "c", "b"}))
        QVERIFY(manager.createView(name));
    manager.deleteView("a"_s);
    QCOMPARE(manager.views(), lines({"d", "c", "b"}));
    manager.deleteView("d"_s);
    QCOMPARE(manager.views(), lines({"c", "b"}));
}

void ManagerViewsTest::deleteUnknown_data()
{
    activateUnknown_data();
}

void ManagerViewsTest::deleteUnknown()
{
    QFETCH(QString, name);
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    const SignalLog log(manager);
    manager.deleteView(name);
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(manager.views(), lines({"left"}));
    QCOMPARE(manager.activeView(), "left"_s);
}

void ManagerViewsTest::deleteSparesTheWindows()
{
    Manager manager(lines({"G"}), false);
    leaveLeft(manager);
    QVERIFY(manager.saveCurrentViewAs("right"_s));
    m_window.moveDock(Qt::TopDockWidgetArea);
    m_owner.calls = 0;
    manager.deleteView("right"_s);
    manager.deleteView("left"_s);
    QCOMPARE(m_owner.calls, 0);
    QCOMPARE(m_window.dockArea(), Qt::TopDockWidgetArea);
}

void ManagerViewsTest::deletedNameIsFree()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("a"_s));
    QVERIFY(manager.createView("b"_s));
    manager.deleteView("a"_s);
    QCOMPARE(manager.activateView("a"_s), false);
    QCOMPARE(manager.createView("a"_s), true);
    QCOMPARE(manager.views(), lines({"b", "a"}));
}

void ManagerViewsTest::userDataIsInvalid()
{
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    const SignalLog log(manager);
    QCOMPARE(manager.setViewUserData(QVariant(true)), true);
    QCOMPARE(manager.setViewUserData(QVariant()), true);
    QCOMPARE(manager.setViewUserData(QVariant("text"_s)), true);
    QVERIFY(!manager.viewUserData().isValid());
    for (const QString& name : {"a"_s, "unknown"_s, ""_s, QString(), "__current__"_s})
        QVERIFY(!manager.viewUserData(name).isValid());
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(manager.views(), lines({"a"}));
    QCOMPARE(manager.activeView(), "a"_s);
    // Nor does it reach the document: neither the view nor the current view has any.
    QCOMPARE(manager.toXml(true).count("<UserData></UserData>"), 2);
}

QTEST_MAIN(ManagerViewsTest)
#include "ManagerViewsTest.moc"
