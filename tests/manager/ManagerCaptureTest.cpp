// SPDX-License-Identifier: MIT
#include "GroupAccess.h"

#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** What a capture takes from which window. */
class ManagerCaptureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void oneBlobForEachWindow();
    void layoutVersionIsZero();
    void nobodyRegistered();
    void noWindows();
    void idsAreCaseSensitive();
    void windowWithoutId_data();
    void windowWithoutId();
    void missingWindow();
    void laterEntryWins();
    void laterOwnerWins();
    void missingWindowDoesNotWin();
    void registeredTwice();
    void sparesTheWindows();
    void oneWindowUnderTwoIds();

private:
    SmallWindow m_left;
    SmallWindow m_right;
};

void ManagerCaptureTest::init()
{
    m_left.arrange(Qt::LeftDockWidgetArea, Qt::TopToolBarArea);
    m_right.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
    QVERIFY(m_left.saveState(0) != m_right.saveState(0));
}

void ManagerCaptureTest::oneBlobForEachWindow()
{
    Owner first({{"l"_s, &m_left}});
    Owner second({{"r"_s, &m_right}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(first);
    manager.registerManagable(second);
    QCOMPARE(capture(manager),
             (StateMap{{"l"_s, m_left.saveState(0)}, {"r"_s, m_right.saveState(0)}}));
}

void ManagerCaptureTest::layoutVersionIsZero()
{
    Owner owner({{"l"_s, &m_left}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager).value("l"_s).left(8), "000000ff 00000000"_hex);
}

void ManagerCaptureTest::nobodyRegistered()
{
    Manager manager(lines({"G"}), false);
    QCOMPARE(capture(manager), StateMap());
}

void ManagerCaptureTest::noWindows()
{
    Owner owner;
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager), StateMap());
}

void ManagerCaptureTest::idsAreCaseSensitive()
{
    Owner owner({{"w"_s, &m_left}, {"W"_s, &m_right}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager),
             (StateMap{{"w"_s, m_left.saveState(0)}, {"W"_s, m_right.saveState(0)}}));
}

void ManagerCaptureTest::windowWithoutId_data()
{
    QTest::addColumn<QString>("id");

    QTest::newRow("empty") << ""_s;
    QTest::newRow("null") << QString();
}

void ManagerCaptureTest::windowWithoutId()
{
    QFETCH(QString, id);
    Owner owner({{id, &m_left}, {"r"_s, &m_right}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager), (StateMap{{"r"_s, m_right.saveState(0)}}));
}

void ManagerCaptureTest::missingWindow()
{
    Owner owner({{"gone"_s, nullptr}, {"r"_s, &m_right}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager), (StateMap{{"r"_s, m_right.saveState(0)}}));
}

void ManagerCaptureTest::laterEntryWins()
{
    Owner owner({{"w"_s, &m_left}, {"w"_s, &m_right}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager), (StateMap{{"w"_s, m_right.saveState(0)}}));
}

void ManagerCaptureTest::laterOwnerWins()
{
    Owner first({{"w"_s, &m_left}});
    Owner second({{"w"_s, &m_right}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(second);
    manager.registerManagable(first);
    QCOMPARE(capture(manager), (StateMap{{"w"_s, m_left.saveState(0)}}));
}

void ManagerCaptureTest::missingWindowDoesNotWin()
{
    Owner owner({{"w"_s, &m_left}, {"w"_s, nullptr}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager), (StateMap{{"w"_s, m_left.saveState(0)}}));
}

void ManagerCaptureTest::registeredTwice()
{
    Owner owner({{"w"_s, &m_left}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    manager.registerManagable(owner);
    // The later answer of one owner, as well as the later one of two, is the one that stays.
    owner.onAsked = [&] { owner.windows = {{"w"_s, owner.calls == 1 ? &m_left : &m_right}}; };
    QCOMPARE(capture(manager), (StateMap{{"w"_s, m_right.saveState(0)}}));
}

void ManagerCaptureTest::sparesTheWindows()
{
    Owner owner({{"l"_s, &m_left}, {"r"_s, &m_right}});
    Manager manager(lines({"G"}), true);
    manager.registerManagable(owner);
    m_left.placed = 0;
    m_right.placed = 0;
    QCOMPARE(capture(manager).size(), 2);
    QCOMPARE(m_left.placed, 0);
    QCOMPARE(m_right.placed, 0);
}

void ManagerCaptureTest::oneWindowUnderTwoIds()
{
    Owner owner({{"1"_s, &m_left}, {"2"_s, &m_left}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QCOMPARE(capture(manager),
             (StateMap{{"1"_s, m_left.saveState(0)}, {"2"_s, m_left.saveState(0)}}));
}

QTEST_MAIN(ManagerCaptureTest)
#include "ManagerCaptureTest.moc"
