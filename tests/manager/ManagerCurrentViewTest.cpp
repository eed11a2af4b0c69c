// SPDX-License-Identifier: MIT
#include "GroupAccess.h"
#include "ManagerPrivate.h"

#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

/**
 * The working layout of a group: which operations capture or replace it, and which leave it alone.
 * Every test runs with and without the merge, which must not show here.
 */
class ManagerCurrentViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();

    void startsEmpty();
    void createView();
    void saveCurrentViewAs();
    void saveOverExistingView();
    void activateView();
    void activateGroup();
    void activateActiveGroup();
    void deleteView();
    void clear();
    void failedOperations();

private:
    StateMap live() { return capture(*m_manager); }
    Group& active() { return activeGroupOf(*m_manager); }
    StateMap current() { return active().currentView->states; }
    StateMap saved(const QString& name) { return active().findView(name)->states; }

    SmallWindow m_window;
    Owner m_owner{{{"w"_s, &m_window}}};
    std::unique_ptr<Manager> m_manager;
};

void ManagerCurrentViewTest::initTestCase_data()
{
    QTest::addColumn<bool>("merge");

    QTest::newRow("plain") << false;
    QTest::newRow("merging") << true;
}

void ManagerCurrentViewTest::init()
{
    QFETCH_GLOBAL(bool, merge);
    m_window.arrange(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    m_manager = std::make_unique<Manager>(lines({"G", "H"}), merge);
    m_manager->registerManagable(m_owner);
}

void ManagerCurrentViewTest::startsEmpty()
{
    QCOMPARE(active().name, "G"_s);
    QCOMPARE(active().manager, m_manager.get());
    QCOMPARE(active().currentView->name, "__current__"_s);
    QCOMPARE(current(), StateMap());
}

void ManagerCurrentViewTest::createView()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    const StateMap left = live();
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(m_manager->createView("right"_s));
    QCOMPARE(saved("right"_s), live());
    QVERIFY(!active().findView("right"_s)->userData.isValid());
    QCOMPARE(current(), left);
}

void ManagerCurrentViewTest::saveCurrentViewAs()
{
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QCOMPARE(current(), live());
    QCOMPARE(saved("a"_s), live());
    QVERIFY(!active().findView("a"_s)->userData.isValid());
    QCOMPARE(active().activeView, active().findView("a"_s));
}

void ManagerCurrentViewTest::saveOverExistingView()
{
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    active().findView("a"_s)->userData = 7;
    const View* view = active().findView("a"_s);
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(m_manager->saveCurrentViewAs("a"_s));
    QCOMPARE(active().findView("a"_s), view);
    QCOMPARE(view->states, live());
    QCOMPARE(view->userData, QVariant(7));
    QCOMPARE(current(), live());
}

void ManagerCurrentViewTest::activateView()
{
    QVERIFY(m_manager->createView("left"_s));
    const StateMap left = live();
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(m_manager->activateView("left"_s));
    // The stored layout, even where the windows got it merged with the live one.
    QCOMPARE(current(), left);
    QCOMPARE(saved("left"_s), left);
}

void ManagerCurrentViewTest::activateGroup()
{
    const StateMap left = live();
    Group& first = active();
    QVERIFY(m_manager->activateGroup("H"_s));
    QCOMPARE(first.currentView->states, left);
    QCOMPARE(current(), StateMap());

    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    const StateMap right = live();
    Group& second = active();
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(second.currentView->states, right);
    QCOMPARE(first.currentView->states, left);
}

void ManagerCurrentViewTest::activateActiveGroup()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    const StateMap left = live();
    m_window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    const StateMap right = live();
    m_window.placed = 0;
    QVERIFY(m_manager->activateGroup("G"_s));
    QCOMPARE(current(), right);
    QCOMPARE(saved("left"_s), left);
    // Applied again as well, though the window looks so already.
    QCOMPARE(m_window.placed, 1);
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(m_window.barArea(), Qt::BottomToolBarArea);
}

void ManagerCurrentViewTest::deleteView()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    const StateMap left = live();
    m_window.moveDock(Qt::RightDockWidgetArea);
    m_manager->deleteView("left"_s);
    QCOMPARE(current(), left);
}

void ManagerCurrentViewTest::clear()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    const StateMap left = live();
    Group& first = active();
    QVERIFY(m_manager->activateGroup("H"_s));
    m_window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(m_manager->saveCurrentViewAs("right"_s));
    const StateMap right = live();
    m_window.moveDock(Qt::TopDockWidgetArea);
    m_manager->clear();
    QCOMPARE(first.currentView->states, left);
    QCOMPARE(current(), right);
    QCOMPARE(active().currentView->name, "__current__"_s);
}

void ManagerCurrentViewTest::failedOperations()
{
    QVERIFY(m_manager->saveCurrentViewAs("left"_s));
    const StateMap left = live();
    m_window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(!m_manager->activateGroup("unknown"_s));
    QVERIFY(!m_manager->activateView("unknown"_s));
    QVERIFY(!m_manager->activateView(""_s));
    QVERIFY(!m_manager->createView("left"_s));
    m_manager->deleteView("unknown"_s);
    QCOMPARE(current(), left);
    QCOMPARE(saved("left"_s), left);
    QCOMPARE(active().activeView, active().findView("left"_s));
    QCOMPARE(m_window.dockArea(), Qt::RightDockWidgetArea);
}

QTEST_MAIN(ManagerCurrentViewTest)
#include "ManagerCurrentViewTest.moc"
