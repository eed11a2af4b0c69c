// SPDX-License-Identifier: MIT
#include "GroupAccess.h"

#include "support/MessageWatch.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

const auto left = Qt::LeftDockWidgetArea;
const auto right = Qt::RightDockWidgetArea;

QByteArray rightState()
{
    return SmallWindow::stateOf(right, Qt::BottomToolBarArea);
}

} // namespace

/** Which window gets which blob, and what happens to blobs that fit no window. */
class ManagerRestoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void eachWindowGetsItsBlob();
    void windowsInListOrder();
    void unknownIdsAreIgnored();
    void idsAreCaseSensitive();
    void windowWithoutId_data();
    void windowWithoutId();
    void missingWindow();
    void emptyBlob();
    void refusedBlob_data();
    void refusedBlob();
    void windowsShareAnId();
    void registeredTwice();
    void windowDestroyedMeanwhile();

    void stateOfAbsentWindowComesBack_data();
    void stateOfAbsentWindowComesBack();
    void savingDropsTheStateOfAnAbsentWindow();

private:
    SmallWindow m_first;
    SmallWindow m_second;
    Owner m_owner;
};

void ManagerRestoreTest::init()
{
    for (SmallWindow* window : {&m_first, &m_second}) {
        window->onPlaced = nullptr;
        window->arrange(left, Qt::TopToolBarArea);
        window->placed = 0;
    }
    m_owner.windows = {{"1"_s, &m_first}, {"2"_s, &m_second}};
}

void ManagerRestoreTest::eachWindowGetsItsBlob()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    apply(manager, {{"1"_s, SmallWindow::stateOf(Qt::TopDockWidgetArea, Qt::LeftToolBarArea)},
                    {"2"_s, rightState()}});
    QCOMPARE(m_first.dockArea(), Qt::TopDockWidgetArea);
    QCOMPARE(m_first.barArea(), Qt::LeftToolBarArea);
    QCOMPARE(m_second.dockArea(), right);
    QCOMPARE(m_second.barArea(), Qt::BottomToolBarArea);
}

void ManagerRestoreTest::windowsInListOrder()
{
    m_owner.windows = {{"2"_s, &m_second}, {"1"_s, &m_first}};
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    QStringList order;
    m_first.onPlaced = [&] { order.append("first"_s); };
    m_second.onPlaced = [&] { order.append("second"_s); };
    apply(manager, {{"1"_s, rightState()}, {"2"_s, rightState()}});
    QCOMPARE(order, lines({"second", "first"}));
}

void ManagerRestoreTest::unknownIdsAreIgnored()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    apply(manager, {{"3"_s, rightState()}, {""_s, rightState()}, {"2"_s, rightState()}});
    QCOMPARE(m_first.placed, 0);
    QCOMPARE(m_second.dockArea(), right);
}

void ManagerRestoreTest::idsAreCaseSensitive()
{
    m_owner.windows = {{"w"_s, &m_first}, {"W"_s, &m_second}};
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    apply(manager, {{"W"_s, rightState()}});
    QCOMPARE(m_first.placed, 0);
    QCOMPARE(m_second.dockArea(), right);
}

void ManagerRestoreTest::windowWithoutId_data()
{
    QTest::addColumn<QString>("id");

    QTest::newRow("empty") << ""_s;
    QTest::newRow("null") << QString();
}

void ManagerRestoreTest::windowWithoutId()
{
    QFETCH(QString, id);
    m_owner.windows = {{id, &m_first}, {"2"_s, &m_second}};
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    apply(manager, {{""_s, rightState()}, {"2"_s, rightState()}});
    QCOMPARE(m_first.placed, 0);
    QCOMPARE(m_second.dockArea(), right);
}

void ManagerRestoreTest::missingWindow()
{
    m_owner.windows = {{"1"_s, nullptr}, {"2"_s, &m_second}};
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    apply(manager, {{"1"_s, rightState()}, {"2"_s, rightState()}});
    QCOMPARE(m_second.dockArea(), right);
}

void ManagerRestoreTest::emptyBlob()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    apply(manager, {{"1"_s, QByteArray("")}, {"2"_s, QByteArray()}});
    QCOMPARE(m_first.placed, 0);
    QCOMPARE(m_second.placed, 0);
}

void ManagerRestoreTest::refusedBlob_data()
{
    QTest::addColumn<QByteArray>("blob");

    SmallWindow window;
    window.arrange(right, Qt::BottomToolBarArea);
    QTest::newRow("text") << QByteArray("not a layout");
    QTest::newRow("one byte") << "00"_hex;
    QTest::newRow("other marker") << QByteArray("000000fe 00000000"_hex + rightState().mid(8));
    QTest::newRow("other layout version") << window.saveState(1);
    QTest::newRow("empty state") << "ffffffff ffffffff"_hex;
    QTest::newRow("unknown section") << QByteArray(rightState() + "00"_hex);
}

void ManagerRestoreTest::refusedBlob()
{
    QFETCH(QByteArray, blob);
    QVERIFY(!SmallWindow().restoreState(blob, 0));
    const MessageWatch watch(MessageWatch::Started);
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    apply(manager, {{"1"_s, blob}, {"2"_s, rightState()}});
    QCOMPARE(m_first.dockArea(), left);
    QCOMPARE(m_first.barArea(), Qt::TopToolBarArea);
    // The windows after it get their layouts all the same.
    QCOMPARE(m_second.dockArea(), right);
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerRestoreTest::windowsShareAnId()
{
    m_owner.windows = {{"w"_s, &m_first}, {"w"_s, &m_second}};
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    m_second.arrange(right, Qt::BottomToolBarArea);
    QVERIFY(manager.createView("second's"_s));
    m_second.arrange(Qt::TopDockWidgetArea, Qt::TopToolBarArea);
    QVERIFY(manager.activateView("second's"_s));
    for (const SmallWindow* window : {&m_first, &m_second}) {
        QCOMPARE(window->dockArea(), right);
        QCOMPARE(window->barArea(), Qt::BottomToolBarArea);
    }
}

void ManagerRestoreTest::registeredTwice()
{
    Manager once(lines({"G"}), false);
    once.registerManagable(m_owner);
    apply(once, {{"1"_s, rightState()}});
    QCOMPARE(m_first.placed, 1);

    Manager twice(lines({"G"}), false);
    twice.registerManagable(m_owner);
    twice.registerManagable(m_owner);
    m_first.placed = 0;
    apply(twice, {{"1"_s, rightState()}});
    QCOMPARE(m_first.placed, 2);
    QCOMPARE(m_first.dockArea(), right);
}

void ManagerRestoreTest::windowDestroyedMeanwhile()
{
    auto doomed = std::make_unique<SmallWindow>();
    m_owner.windows = {{"1"_s, &m_first}, {"d"_s, doomed.get()}, {"2"_s, &m_second}};
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    m_first.onPlaced = [&] { doomed.reset(); };
    apply(manager, {{"1"_s, rightState()}, {"d"_s, rightState()}, {"2"_s, rightState()}});
    QVERIFY(!doomed);
    QCOMPARE(m_second.dockArea(), right);
}

void ManagerRestoreTest::stateOfAbsentWindowComesBack_data()
{
    QTest::addColumn<bool>("merge");

    QTest::newRow("plain") << false;
    QTest::newRow("merging") << true;
}

void ManagerRestoreTest::stateOfAbsentWindowComesBack()
{
    QFETCH(bool, merge);
    Manager manager(lines({"G", "H"}), merge);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("both"_s));
    m_first.moveDock(right);
    m_owner.windows = {{"2"_s, &m_second}};
    for (int time = 0; time < 3; ++time)
        QVERIFY(manager.activateView("both"_s));
    QVERIFY(manager.activateGroup("H"_s));
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(m_first.dockArea(), right);

    m_owner.windows = {{"1"_s, &m_first}, {"2"_s, &m_second}};
    QVERIFY(manager.activateView("both"_s));
    QCOMPARE(m_first.dockArea(), left);
}

void ManagerRestoreTest::savingDropsTheStateOfAnAbsentWindow()
{
    Manager manager(lines({"G"}), false);
    manager.registerManagable(m_owner);
    QVERIFY(manager.createView("both"_s));
    m_first.moveDock(right);
    m_owner.windows = {{"2"_s, &m_second}};
    QVERIFY(manager.saveCurrentViewAs("both"_s));

    m_owner.windows = {{"1"_s, &m_first}, {"2"_s, &m_second}};
    QVERIFY(manager.activateView("both"_s));
    QCOMPARE(m_first.dockArea(), right);
}

QTEST_MAIN(ManagerRestoreTest)
#include "ManagerRestoreTest.moc"
