// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

/** Windows, owners and texts that come and go while the Manager is at work. */
class WindowLifeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void destroyedBetweenCaptureAndApply_data() { addMerge(); }
    void destroyedBetweenCaptureAndApply();
    void createdAgainBetweenCaptureAndApply_data() { addMerge(); }
    void createdAgainBetweenCaptureAndApply();
    void destroyedByAnotherOwner_data();
    void destroyedByAnotherOwner();
    void destroyedByAnotherWindowsRestoring_data();
    void destroyedByAnotherWindowsRestoring();
    void listThatChangesBetweenCalls_data() { addMerge(); }
    void listThatChangesBetweenCalls();
    void ownerRegisteredWhileAsked();
    void nullWindow();
    void nameThatChangesDuringTheCall_data();
    void nameThatChangesDuringTheCall();

private:
    static void addMerge();

    std::unique_ptr<SmallWindow> m_first;
    std::unique_ptr<SmallWindow> m_second;
};

void WindowLifeTest::init()
{
    m_first = std::make_unique<SmallWindow>();
    m_second = std::make_unique<SmallWindow>();
}

void WindowLifeTest::cleanup()
{
    m_first.reset();
    m_second.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void WindowLifeTest::addMerge()
{
    QTest::addColumn<bool>("merge");
    QTest::addRow("as stored") << false;
    QTest::addRow("merging") << true;
}

void WindowLifeTest::destroyedBetweenCaptureAndApply()
{
    QFETCH(bool, merge);
    Owner owner({{"1"_s, m_first.get()}, {"2"_s, m_second.get()}});
    Manager manager(lines({"G"}), merge);
    manager.registerManagable(owner);
    QVERIFY(manager.createView("a"_s));
    m_second->moveDock(Qt::RightDockWidgetArea);
    owner.windows.removeFirst();
    m_first.reset();
    QCOMPARE(manager.activateView("a"_s), true);
    QCOMPARE(m_second->dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(manager.viewsValid(), !merge);
}

// The layout of a window that is gone is kept for the one that takes its place.
void WindowLifeTest::createdAgainBetweenCaptureAndApply()
{
    QFETCH(bool, merge);
    Owner owner({{"1"_s, m_first.get()}});
    Manager manager(lines({"G"}), merge);
    manager.registerManagable(owner);
    m_first->moveDock(Qt::BottomDockWidgetArea);
    QVERIFY(manager.createView("a"_s));
    owner.windows.clear();
    m_first.reset();
    QCOMPARE(manager.activateView("a"_s), true);
    m_first = std::make_unique<SmallWindow>();
    owner.windows = {{"1"_s, m_first.get()}};
    QCOMPARE(m_first->dockArea(), Qt::LeftDockWidgetArea);
    QCOMPARE(manager.activateView("a"_s), true);
    QCOMPARE(m_first->dockArea(), Qt::BottomDockWidgetArea);
}

void WindowLifeTest::destroyedByAnotherOwner_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<bool>("merge");
    QTest::addRow("while capturing") << 1 << false;
    QTest::addRow("while restoring") << 2 << false;
    QTest::addRow("while capturing for the merge") << 2 << true;
    QTest::addRow("while restoring what was merged") << 3 << true;
}

// The first owner has answered with its window when the second one destroys it.
void WindowLifeTest::destroyedByAnotherOwner()
{
    QFETCH(int, call);
    QFETCH(bool, merge);
    Owner first({{"1"_s, m_first.get()}});
    Owner second({{"2"_s, m_second.get()}});
    Manager manager(lines({"G"}), merge);
    manager.registerManagable(first);
    manager.registerManagable(second);
    second.onAsked = [&] {
        if (second.calls != call)
            return;
        first.windows.clear();
        m_first.reset();
    };
    QVERIFY(manager.createView("a"_s));
    m_second->moveDock(Qt::RightDockWidgetArea);
    QCOMPARE(manager.activateView("a"_s), true);
    QVERIFY(!m_first);
    QCOMPARE(m_second->dockArea(), Qt::LeftDockWidgetArea);
}

void WindowLifeTest::destroyedByAnotherWindowsRestoring_data()
{
    QTest::addColumn<bool>("merge");
    QTest::addColumn<bool>("oneOwner");
    QTest::addRow("one owner") << false << true;
    QTest::addRow("one owner, merging") << true << true;
    QTest::addRow("two owners") << false << false;
    QTest::addRow("two owners, merging") << true << false;
}

void WindowLifeTest::destroyedByAnotherWindowsRestoring()
{
    QFETCH(bool, merge);
    QFETCH(bool, oneOwner);
    Owner first({{"1"_s, m_first.get()}});
    Owner second({{"2"_s, m_second.get()}});
    if (oneOwner)
        first.windows += second.windows;
    Manager manager(lines({"G"}), merge);
    manager.registerManagable(first);
    if (!oneOwner)
        manager.registerManagable(second);
    QVERIFY(manager.createView("a"_s));
    m_first->moveDock(Qt::RightDockWidgetArea);
    m_first->onPlaced = [&] {
        first.windows = {{"1"_s, m_first.get()}};
        second.windows.clear();
        m_second.reset();
    };
    QCOMPARE(manager.activateView("a"_s), true);
    QVERIFY(!m_second);
    QCOMPARE(m_first->dockArea(), Qt::LeftDockWidgetArea);
    m_first->onPlaced = nullptr;
}

// Each capture and each restore asks for the list again, so each may meet another window.
void WindowLifeTest::listThatChangesBetweenCalls()
{
    QFETCH(bool, merge);
    Owner owner({{"1"_s, m_first.get()}});
    Manager manager(lines({"G"}), merge);
    manager.registerManagable(owner);
    owner.onAsked = [&] {
        owner.windows = {{"1"_s, owner.calls % 2 == 1 ? m_first.get() : m_second.get()}};
    };
    m_first->moveDock(Qt::BottomDockWidgetArea);
    QVERIFY(manager.createView("a"_s));
    m_first->moveDock(Qt::TopDockWidgetArea);
    m_second->moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("a"_s));
    // Merging takes the second call for the capture, so that the restore meets the first window.
    QCOMPARE(owner.calls, merge ? 3 : 2);
    QCOMPARE(m_first->dockArea(), merge ? Qt::BottomDockWidgetArea : Qt::TopDockWidgetArea);
    QCOMPARE(m_second->dockArea(), merge ? Qt::RightDockWidgetArea : Qt::BottomDockWidgetArea);
}

void WindowLifeTest::ownerRegisteredWhileAsked()
{
    Owner first({{"1"_s, m_first.get()}});
    Owner second({{"2"_s, m_second.get()}});
    Manager manager(lines({"G"}), true);
    manager.registerManagable(first);
    first.onAsked = [&] {
        if (first.calls == 1)
            manager.registerManagable(second);
    };
    QVERIFY(manager.createView("a"_s));
    // It was not asked yet, so the view lacks its window.
    QCOMPARE(second.calls, 0);
    QCOMPARE(manager.viewsValid(), false);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QCOMPARE(manager.viewsValid(), true);
}

void WindowLifeTest::nullWindow()
{
    Owner owner({{"1"_s, nullptr}, {"2"_s, m_second.get()}});
    Manager manager(lines({"G"}), true);
    manager.registerManagable(owner);
    QVERIFY(manager.createView("a"_s));
    m_second->moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("a"_s));
    QCOMPARE(m_second->dockArea(), Qt::LeftDockWidgetArea);
    QVERIFY(manager.viewsValid());
}

void WindowLifeTest::nameThatChangesDuringTheCall_data()
{
    QTest::addColumn<bool>("save");
    QTest::addColumn<bool>("byOwner");
    QTest::addRow("created, by the owner") << false << true;
    QTest::addRow("saved, by the owner") << true << true;
    QTest::addRow("saved, by a receiver") << true << false;
}

// A caller may hand in an element of a list that it fills again when views change.
void WindowLifeTest::nameThatChangesDuringTheCall()
{
    QFETCH(bool, save);
    QFETCH(bool, byOwner);
    Owner owner({{"1"_s, m_first.get()}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    auto name = std::make_unique<QString>("a"_s);
    const auto drop = [&] { name.reset(); };
    if (byOwner)
        owner.onAsked = drop;
    else
        connect(&manager, &Manager::groupModified, &manager, drop);
    const SignalLog log(manager);
    QVERIFY(save ? manager.saveCurrentViewAs(*name) : manager.createView(*name));
    QCOMPARE(manager.views(), lines({"a"}));
    QCOMPARE(log.lines(),
             save ? lines({"groupModified()", "viewActivated('a')"}) : lines({"groupModified()"}));
    m_first->moveDock(Qt::RightDockWidgetArea);
    owner.onAsked = nullptr;
    QVERIFY(manager.activateView("a"_s));
    QCOMPARE(m_first->dockArea(), Qt::LeftDockWidgetArea);
}

QTEST_MAIN(WindowLifeTest)
#include "WindowLifeTest.moc"
