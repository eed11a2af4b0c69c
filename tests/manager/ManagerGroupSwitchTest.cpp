// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

/**
 * Leaving a group and coming back: the windows are shared, the layouts are not. Every test runs
 * with and without the merge; they move docks, which come back either way.
 */
class ManagerGroupSwitchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();

    void thereAndBack();
    void newGroupKeepsTheLiveLayout();
    void liveChangesComeBack();
    void eachGroupHasItsOwnLayout();
    void barsComeBackUnlessMerged();
    void switchingSparesTheSavedViews();
    void activateActiveGroup();
    void failedSwitchKeepsNothing();
    void returnsToTheLayoutNotToTheView();

private:
    SmallWindow m_window;
    Owner m_owner{{{"w"_s, &m_window}}};
    std::unique_ptr<Manager> m_manager;
};

void ManagerGroupSwitchTest::initTestCase_data()
{
    QTest::addColumn<bool>("merge");

    QTest::newRow("plain") << false;
    QTest::newRow("merging") << true;
}

void ManagerGroupSwitchTest::init()
{
    QFETCH_GLOBAL(bool, merge);
    m_window.arrange(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    m_manager = std::make_unique<Manager>(lines({"G", "H", "I"}), merge);
    m_manager->registerManagable(m_owner);
}

void ManagerGroupSwitchTest::thereAndBack()
{
    QVERIFY(m_manager->activateGroup("H"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QVERIFY(m_manager->activateGroup("H"_s));
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
}

void ManagerGroupSwitchTest::newGroupKeepsTheLiveLayout()
{
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    m_window.placed = 0;
    // Its current view is still empty, so there is nothing to restore.
    QVERIFY(m_manager->activateGroup("H"_s));
    QCOMPARE(m_window.placed, 0);
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::BottomToolBarArea);
}

void ManagerGroupSwitchTest::liveChangesComeBack()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    m_window.moveDock(Qt::TopDockWidgetArea);
    QVERIFY(m_manager->activateGroup("H"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(m_window.dockArea(), Qt::TopDockWidgetArea);
}

void ManagerGroupSwitchTest::eachGroupHasItsOwnLayout()
{
    const QMap<QString, Qt::DockWidgetArea> areas{{"G"_s, Qt::LeftDockWidgetArea},
                                                  {"H"_s, Qt::RightDockWidgetArea},
                                                  {"I"_s, Qt::BottomDockWidgetArea}};
    for (const QString& group : areas.keys()) {
        QVERIFY(m_manager->activateGroup(group));
        m_window.moveDock(areas.value(group));
    }
    for (const QString& group : lines({"H", "I", "G", "I", "H"})) {
        QVERIFY(m_manager->activateGroup(group));
        QCOMPARE(m_window.dockArea(), areas.value(group));
    }
}

void ManagerGroupSwitchTest::barsComeBackUnlessMerged()
{
    QFETCH_GLOBAL(bool, merge);
    QVERIFY(m_manager->activateGroup("H"_s));
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window.barArea(), merge ? Qt::BottomToolBarArea : Qt::TopToolBarArea);
}

void ManagerGroupSwitchTest::switchingSparesTheSavedViews()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(m_manager->activateGroup("H"_s));
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(m_manager->views(), lines({"left"}));
    QCOMPARE(m_manager->activeView(), "left"_s);
    QVERIFY(m_manager->activateView("left"_s));
    QCOMPARE(m_window.dockArea(), Qt::LeftDockWidgetArea);
}

void ManagerGroupSwitchTest::activateActiveGroup()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    m_window.placed = 0;
    const SignalLog log(*m_manager);
    QCOMPARE(m_manager->activateGroup("G"_s), true);
    // Captured first, so what is applied again is the live layout.
    QCOMPARE(m_window.placed, 1);
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::BottomToolBarArea);
    QCOMPARE(log.lines(), lines({"groupActivated('G')", "viewActivated('left')"}));
}

void ManagerGroupSwitchTest::failedSwitchKeepsNothing()
{
    QVERIFY(m_manager->activateGroup("H"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    m_window.placed = 0;
    QVERIFY(!m_manager->activateGroup("unknown"_s));
    QCOMPARE(m_window.placed, 0);
    QCOMPARE(m_manager->activeGroup(), "H"_s);
}

void ManagerGroupSwitchTest::returnsToTheLayoutNotToTheView()
{
    QVERIFY(m_manager->createView("left"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(m_manager->activateView("left"_s));
    m_window.moveDock(Qt::TopDockWidgetArea);
    QVERIFY(m_manager->activateGroup("H"_s));
    m_window.moveDock(Qt::BottomDockWidgetArea);
    const SignalLog log(*m_manager);
    QVERIFY(m_manager->activateGroup("G"_s));
    // "left" is still active though the windows show something else by now.
    QCOMPARE(m_window.dockArea(), Qt::TopDockWidgetArea);
    QCOMPARE(log.lines(), lines({"groupActivated('G')", "viewActivated('left')"}));
}

QTEST_MAIN(ManagerGroupSwitchTest)
#include "ManagerGroupSwitchTest.moc"
