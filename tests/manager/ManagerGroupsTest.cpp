// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QPointer>
#include <QtTest>

#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

/** The groups: how they come about, which one is active, and that each keeps its own views. */
class ManagerGroupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construct_data();
    void construct();
    void startsWithoutViews();
    void belongsToItsParent();
    void hasNoParentByDefault();
    void destructionSparesOwnersAndWindows();
    void activateGroup();
    void activateUnknownGroup_data();
    void activateUnknownGroup();
    void groupsKeepTheirOrder();
    void viewsBelongToTheirGroup();
    void activeViewBelongsToItsGroup();
    void sameViewNameInTwoGroups();
    void deleteViewSparesOtherGroups();
    void activateViewOfAnotherGroup();
};

void ManagerGroupsTest::construct_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("kept");

    QTest::newRow("one") << lines({"Edit"}) << lines({"Edit"});
    QTest::newRow("several, not sorted") << lines({"b", "c", "a"}) << lines({"b", "c", "a"});
    QTest::newRow("repeated at once") << lines({"a", "a", "b"}) << lines({"a", "b"});
    QTest::newRow("first repeated last") << lines({"a", "b", "a"}) << lines({"a", "b"});
    QTest::newRow("all repeated") << lines({"b", "a", "b", "a", "b"}) << lines({"b", "a"});
    QTest::newRow("only case differs") << lines({"a", "A", "a"}) << lines({"a", "A"});
    QTest::newRow("only blanks differ") << lines({"a", "a ", " a"}) << lines({"a", "a ", " a"});
    QTest::newRow("empty name") << lines({"", "a", ""}) << lines({"", "a"});
    QTest::newRow("name of the current view") << lines({"__current__"}) << lines({"__current__"});
    QTest::newRow("no name at all") << QStringList() << lines({""});
}

void ManagerGroupsTest::construct()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, kept);

    const Manager manager(given, false);
    QCOMPARE(manager.groups(), kept);
    QCOMPARE(manager.activeGroup(), kept.first());
}

void ManagerGroupsTest::startsWithoutViews()
{
    Manager manager(lines({"a", "b"}), true);
    for (const QString& group : manager.groups()) {
        QVERIFY(manager.activateGroup(group));
        QCOMPARE(manager.views(), QStringList());
        QCOMPARE(quoted(manager.activeView()), "null"_s);
    }
}

void ManagerGroupsTest::belongsToItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<Manager> manager = new Manager(lines({"a"}), false, parent.get());
    QCOMPARE(manager->parent(), parent.get());
    parent.reset();
    QVERIFY(!manager);
}

void ManagerGroupsTest::hasNoParentByDefault()
{
    const Manager manager(lines({"a"}), false);
    QVERIFY(!manager.parent());
}

void ManagerGroupsTest::destructionSparesOwnersAndWindows()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    {
        Manager manager(lines({"a", "b"}), true);
        manager.registerManagable(owner);
        QVERIFY(manager.createView("saved"_s));
        window.arrange(Qt::RightDockWidgetArea, Qt::BottomToolBarArea);
        owner.calls = 0;
    }
    QCOMPARE(owner.calls, 0);
    QCOMPARE(owner.windows.size(), 1);
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(window.barArea(), Qt::BottomToolBarArea);
}

void ManagerGroupsTest::activateGroup()
{
    Manager manager(lines({"a", "b"}), false);
    QCOMPARE(manager.activateGroup("b"_s), true);
    QCOMPARE(manager.activeGroup(), "b"_s);
    QCOMPARE(manager.activateGroup("a"_s), true);
    QCOMPARE(manager.activeGroup(), "a"_s);
    QCOMPARE(manager.activateGroup("a"_s), true);
    QCOMPARE(manager.activeGroup(), "a"_s);
}

void ManagerGroupsTest::activateUnknownGroup_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("unknown") << "c"_s;
    QTest::newRow("other case") << "B"_s;
    QTest::newRow("with a blank") << "b "_s;
    QTest::newRow("beginning of a name") << "lon"_s;
    QTest::newRow("empty") << ""_s;
    QTest::newRow("null") << QString();
    QTest::newRow("name of a view") << "view"_s;
    QTest::newRow("name of the current view") << "__current__"_s;
}

void ManagerGroupsTest::activateUnknownGroup()
{
    QFETCH(QString, name);
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"a", "b", "long"}), false);
    manager.registerManagable(owner);
    QVERIFY(manager.saveCurrentViewAs("view"_s));
    const SignalLog log(manager);
    owner.calls = 0;

    QCOMPARE(manager.activateGroup(name), false);
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(owner.calls, 0);
    QCOMPARE(manager.activeGroup(), "a"_s);
    QCOMPARE(manager.activeView(), "view"_s);
    QCOMPARE(manager.groups(), lines({"a", "b", "long"}));
}

void ManagerGroupsTest::groupsKeepTheirOrder()
{
    Manager manager(lines({"c", "a", "b"}), false);
    QVERIFY(manager.activateGroup("b"_s));
    QCOMPARE(manager.groups(), lines({"c", "a", "b"}));
    manager.clear();
    QCOMPARE(manager.groups(), lines({"c", "a", "b"}));
}

void ManagerGroupsTest::viewsBelongToTheirGroup()
{
    Manager manager(lines({"a", "b"}), false);
    QVERIFY(manager.createView("a1"_s));
    QVERIFY(manager.createView("a2"_s));
    QVERIFY(manager.activateGroup("b"_s));
    QCOMPARE(manager.views(), QStringList());
    QVERIFY(manager.createView("b1"_s));
    QCOMPARE(manager.views(), lines({"b1"}));
    QVERIFY(manager.activateGroup("a"_s));
    QCOMPARE(manager.views(), lines({"a1", "a2"}));
}

void ManagerGroupsTest::activeViewBelongsToItsGroup()
{
    Manager manager(lines({"a", "b"}), false);
    QVERIFY(manager.saveCurrentViewAs("a1"_s));
    QVERIFY(manager.activateGroup("b"_s));
    QCOMPARE(quoted(manager.activeView()), "null"_s);
    QVERIFY(manager.saveCurrentViewAs("b1"_s));
    QVERIFY(manager.activateGroup("a"_s));
    QCOMPARE(manager.activeView(), "a1"_s);
    QVERIFY(manager.activateGroup("b"_s));
    QCOMPARE(manager.activeView(), "b1"_s);
}

void ManagerGroupsTest::sameViewNameInTwoGroups()
{
    Manager manager(lines({"a", "b"}), false);
    QCOMPARE(manager.createView("same"_s), true);
    QVERIFY(manager.activateGroup("b"_s));
    QCOMPARE(manager.createView("same"_s), true);
    QCOMPARE(manager.createView("same"_s), false);
}

void ManagerGroupsTest::deleteViewSparesOtherGroups()
{
    Manager manager(lines({"a", "b"}), false);
    QVERIFY(manager.saveCurrentViewAs("same"_s));
    QVERIFY(manager.activateGroup("b"_s));
    QVERIFY(manager.saveCurrentViewAs("same"_s));
    manager.deleteView("same"_s);
    QVERIFY(manager.activateGroup("a"_s));
    QCOMPARE(manager.views(), lines({"same"}));
    QCOMPARE(manager.activeView(), "same"_s);
}

void ManagerGroupsTest::activateViewOfAnotherGroup()
{
    Manager manager(lines({"a", "b"}), false);
    QVERIFY(manager.createView("view of a"_s));
    QVERIFY(manager.activateGroup("b"_s));
    QCOMPARE(manager.activateView("view of a"_s), false);
    QCOMPARE(quoted(manager.activeView()), "null"_s);
}

QTEST_MAIN(ManagerGroupsTest)
#include "ManagerGroupsTest.moc"
