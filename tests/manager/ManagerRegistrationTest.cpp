// SPDX-License-Identifier: MIT
#include "ManagerPrivate.h"

#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

#include <functional>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

using Operation = std::function<void(Manager&)>;

} // namespace

Q_DECLARE_METATYPE(Operation)

/** Which owners are asked for their windows, how often, and in which order. */
class ManagerRegistrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksNobodyAtRegistration();
    void concatenatesInOrder();
    void registeredTwiceIsAskedTwice();
    void concatenatesNothing();

    void numberOfRequests_data();
    void numberOfRequests();
    void ownersAreAskedInOrder();
    void answerMayChange();
    void registeredLater();
    void createAppendsBeforeItAsks();
    void saveAppendsBeforeItAsks();
    void windowWithoutAnIdIsNotTouched_data();
    void windowWithoutAnIdIsNotTouched();
};

// Such an entry is not managed, so its window may be gone already.
void ManagerRegistrationTest::windowWithoutAnIdIsNotTouched_data()
{
    QTest::addColumn<int>("owners");
    QTest::newRow("one owner") << 1;
    QTest::newRow("two owners") << 2;
    QTest::newRow("three owners") << 3;
}

void ManagerRegistrationTest::windowWithoutAnIdIsNotTouched()
{
    QFETCH(int, owners);
    auto* const gone = reinterpret_cast<QMainWindow*>(quintptr(8));
    SmallWindow window;
    Owner owner({{QString(), gone}, {""_s, gone}, {"w"_s, &window}});
    Owner other;
    Manager manager(lines({"G"}), /*mergeOnApply=*/true);
    manager.registerManagable(owner);
    for (int i = 1; i < owners; ++i)
        manager.registerManagable(other);
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QVERIFY(manager.createView("b"_s));
    QVERIFY(manager.activateView("b"_s));
    QVERIFY(manager.viewsValid());
    QCOMPARE(managedWindowsOf(manager).at(0).window, gone);
}

void ManagerRegistrationTest::asksNobodyAtRegistration()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G"}), true);
    window.placed = 0;
    manager.registerManagable(owner);
    QCOMPARE(owner.calls, 0);
    QCOMPARE(window.placed, 0);
}

void ManagerRegistrationTest::concatenatesInOrder()
{
    SmallWindow a;
    SmallWindow b;
    Owner first({{"z"_s, &a}, {"y"_s, nullptr}});
    Owner none;
    Owner last({{"x"_s, &b}, {"z"_s, &b}, {""_s, &a}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(first);
    manager.registerManagable(none);
    manager.registerManagable(last);

    QStringList ids;
    QList<QMainWindow*> windows;
    for (const ManagedWindow& managed : managedWindowsOf(manager)) {
        ids.append(managed.descriptorId);
        windows.append(managed.window);
    }
    QCOMPARE(ids, lines({"z", "y", "x", "z", ""}));
    QCOMPARE(windows, (QList<QMainWindow*>{&a, nullptr, &b, &b, &a}));
}

void ManagerRegistrationTest::registeredTwiceIsAskedTwice()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    manager.registerManagable(owner);
    QCOMPARE(managedWindowsOf(manager).size(), 2);
    QCOMPARE(owner.calls, 2);
}

void ManagerRegistrationTest::concatenatesNothing()
{
    Manager manager(lines({"G"}), false);
    QCOMPARE(managedWindowsOf(manager).size(), 0);
}

void ManagerRegistrationTest::numberOfRequests_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<int>("plain");
    QTest::addColumn<int>("merging");

    // Merging costs each restore a capture of its own.
    const auto row = [](const char* name, int plain, int merging, const Operation& operation) {
        QTest::newRow(name) << operation << plain << merging;
    };
    row("createView", 1, 1, [](Manager& m) { m.createView("new"_s); });
    row("createView, taken", 0, 0, [](Manager& m) { m.createView("saved"_s); });
    row("saveCurrentViewAs, new", 1, 1, [](Manager& m) { m.saveCurrentViewAs("new"_s); });
    row("saveCurrentViewAs, existing", 1, 1, [](Manager& m) { m.saveCurrentViewAs("saved"_s); });
    row("activateView", 1, 2, [](Manager& m) { m.activateView("saved"_s); });
    row("activateView, unknown", 0, 0, [](Manager& m) { m.activateView("unknown"_s); });
    row("activateView, empty", 0, 0, [](Manager& m) { m.activateView(""_s); });
    row("activateGroup", 2, 3, [](Manager& m) { m.activateGroup("H"_s); });
    row("activateGroup, active", 2, 3, [](Manager& m) { m.activateGroup("G"_s); });
    row("activateGroup, unknown", 0, 0, [](Manager& m) { m.activateGroup("unknown"_s); });
    row("deleteView, active", 0, 0, [](Manager& m) { m.deleteView("saved"_s); });
    row("deleteView, inactive", 0, 0, [](Manager& m) { m.deleteView("other"_s); });
    row("clear", 0, 0, [](Manager& m) { m.clear(); });
    row("setViewUserData", 0, 0, [](Manager& m) { m.setViewUserData(QVariant(1)); });
}

void ManagerRegistrationTest::numberOfRequests()
{
    QFETCH(Operation, operation);
    QFETCH(int, plain);
    QFETCH(int, merging);
    for (const bool merge : {false, true}) {
        SmallWindow window;
        Owner owner({{"w"_s, &window}});
        Manager manager(lines({"G", "H"}), merge);
        manager.registerManagable(owner);
        QVERIFY(manager.createView("other"_s));
        QVERIFY(manager.saveCurrentViewAs("saved"_s));
        owner.calls = 0;
        operation(manager);
        QCOMPARE(owner.calls, merge ? merging : plain);
    }
}

void ManagerRegistrationTest::ownersAreAskedInOrder()
{
    Owner a;
    Owner b;
    QStringList asked;
    a.onAsked = [&] { asked.append("a"_s); };
    b.onAsked = [&] { asked.append("b"_s); };
    Manager manager(lines({"G", "H"}), false);
    manager.registerManagable(b);
    manager.registerManagable(a);
    QVERIFY(manager.createView("v"_s));
    QCOMPARE(asked, lines({"b", "a"}));
    QVERIFY(manager.activateGroup("H"_s));
    QCOMPARE(asked, lines({"b", "a", "b", "a", "b", "a"}));
}

void ManagerRegistrationTest::answerMayChange()
{
    SmallWindow first;
    SmallWindow second;
    Owner owner({{"w"_s, &first}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QVERIFY(manager.createView("left"_s));
    first.moveDock(Qt::RightDockWidgetArea);
    second.moveDock(Qt::RightDockWidgetArea);
    // From here on another window goes by that id.
    owner.windows = {{"w"_s, &second}};
    QVERIFY(manager.activateView("left"_s));
    QCOMPARE(first.dockArea(), Qt::RightDockWidgetArea);
    QCOMPARE(second.dockArea(), Qt::LeftDockWidgetArea);
}

void ManagerRegistrationTest::registeredLater()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("before"_s));
    manager.registerManagable(owner);
    QVERIFY(manager.createView("after"_s));
    window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("before"_s));
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("after"_s));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
}

void ManagerRegistrationTest::createAppendsBeforeItAsks()
{
    Owner owner;
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QStringList seen;
    owner.onAsked = [&] { seen = manager.views(); };
    QVERIFY(manager.createView("a"_s));
    QCOMPARE(seen, lines({"a"}));
}

void ManagerRegistrationTest::saveAppendsBeforeItAsks()
{
    Owner owner;
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QStringList seen;
    QString active = "not asked"_s;
    owner.onAsked = [&] {
        seen = manager.views();
        active = quoted(manager.activeView());
    };
    QVERIFY(manager.saveCurrentViewAs("a"_s));
    QCOMPARE(seen, lines({"a"}));
    QCOMPARE(active, "null"_s);
}

QTEST_MAIN(ManagerRegistrationTest)
#include "ManagerRegistrationTest.moc"
