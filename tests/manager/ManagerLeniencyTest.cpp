// SPDX-License-Identifier: MIT
#include "support/MessageWatch.h"
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Names that other parts of an application would refuse: the Manager takes them all. */
class ManagerLeniencyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createView_data();
    void createView();
    void saveCurrentViewAs_data();
    void saveCurrentViewAs();
    void activateView_data();
    void activateView();
    void deleteActiveView_data();
    void deleteActiveView();
    void groupName_data();
    void groupName();
    void descriptorId_data();
    void descriptorId();
    void currentViewIsNotTheViewOfItsName();
};

namespace {

void addNames()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty") << ""_s;
    QTest::newRow("null") << QString();
    QTest::newRow("reserved") << "__current__"_s;
    QTest::newRow("blank") << " "_s;
    QTest::newRow("line break") << "a\nb\r\n"_s;
    QTest::newRow("zero character") << QString("a"_s + QChar(0) + "b"_s);
    QTest::newRow("lone surrogate") << QString(1, QChar(0xD800));
    QTest::newRow("markup") << "<View Name=\"&amp;\"/>"_s;
    QTest::newRow("mnemonic") << "&Layout"_s;
    QTest::newRow("placeholder") << "%1 %n"_s;
    QTest::newRow("not Latin") << u8"\u03a9\u6f22\U0001f600"_s;
    QTest::newRow("a million characters") << QString(1000000, QLatin1Char('x'));
}

} // namespace

void ManagerLeniencyTest::createView_data()
{
    addNames();
}

void ManagerLeniencyTest::createView()
{
    QFETCH(QString, name);
    const MessageWatch watch(MessageWatch::Started);
    Manager manager(lines({"G"}), false);
    const SignalLog signalLog(manager);
    QCOMPARE(manager.createView(name), true);
    QCOMPARE(manager.createView(name), false);
    QCOMPARE(manager.views(), QStringList{name});
    QCOMPARE(quoted(manager.activeView()), "null"_s);
    QCOMPARE(signalLog.lines(), lines({"groupModified()"}));
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerLeniencyTest::saveCurrentViewAs_data()
{
    addNames();
}

void ManagerLeniencyTest::saveCurrentViewAs()
{
    QFETCH(QString, name);
    const MessageWatch watch(MessageWatch::Started);
    Manager manager(lines({"G"}), false);
    SignalLog signalLog(manager);
    const QString activated = "viewActivated("_s + quoted(name) + ")"_s;
    QCOMPARE(manager.saveCurrentViewAs(name), true);
    QCOMPARE(signalLog.take(), (QStringList{"groupModified()"_s, activated}));
    QCOMPARE(manager.saveCurrentViewAs(name), true);
    QCOMPARE(signalLog.take(), QStringList{activated});
    QCOMPARE(manager.views(), QStringList{name});
    QCOMPARE(quoted(manager.activeView()), quoted(name));
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerLeniencyTest::activateView_data()
{
    addNames();
}

void ManagerLeniencyTest::activateView()
{
    QFETCH(QString, name);
    const MessageWatch watch(MessageWatch::Started);
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView(name));
    const SignalLog signalLog(manager);
    // Deliberate: a view without a name can be saved and deleted, but not activated.
    const bool activated = !name.isEmpty();
    QCOMPARE(manager.activateView(name), activated);
    QCOMPARE(quoted(manager.activeView()), activated ? quoted(name) : "null"_s);
    QCOMPARE(signalLog.lines().size(), activated ? 1 : 0);
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerLeniencyTest::deleteActiveView_data()
{
    addNames();
}

void ManagerLeniencyTest::deleteActiveView()
{
    QFETCH(QString, name);
    const MessageWatch watch(MessageWatch::Started);
    Manager manager(lines({"G"}), false);
    QVERIFY(manager.createView("other"_s));
    QVERIFY(manager.saveCurrentViewAs(name));
    const SignalLog signalLog(manager);
    manager.deleteView(name);
    QCOMPARE(manager.views(), lines({"other"}));
    QCOMPARE(signalLog.lines(), lines({"viewActivated('')", "groupModified()"}));
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerLeniencyTest::groupName_data()
{
    addNames();
}

void ManagerLeniencyTest::groupName()
{
    QFETCH(QString, name);
    const MessageWatch watch(MessageWatch::Started);
    Manager manager({"G"_s, name}, false);
    QCOMPARE(manager.groups(), (QStringList{"G"_s, name}));
    const SignalLog signalLog(manager);
    QCOMPARE(manager.activateGroup(name), true);
    QCOMPARE(quoted(manager.activeGroup()), quoted(name));
    QCOMPARE(signalLog.lines().first(), QString("groupActivated("_s + quoted(name) + ")"_s));
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerLeniencyTest::descriptorId_data()
{
    addNames();
}

void ManagerLeniencyTest::descriptorId()
{
    QFETCH(QString, name);
    const MessageWatch watch(MessageWatch::Started);
    SmallWindow window;
    Owner owner({{name, &window}});
    Manager manager(lines({"G"}), false);
    manager.registerManagable(owner);
    QVERIFY(manager.createView("left"_s));
    window.moveDock(Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("left"_s));
    // Only a window without an id is not managed.
    QCOMPARE(window.dockArea(), name.isEmpty() ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea);
    QCOMPARE(watch.messages(), QStringList());
}

void ManagerLeniencyTest::currentViewIsNotTheViewOfItsName()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(lines({"G", "H"}), false);
    manager.registerManagable(owner);
    QCOMPARE(manager.activateView("__current__"_s), false);
    QVERIFY(manager.createView("__current__"_s));
    window.moveDock(Qt::RightDockWidgetArea);
    // Leaving the group captures its current view and spares the saved one of the same name.
    QVERIFY(manager.activateGroup("H"_s));
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
    QVERIFY(manager.activateView("__current__"_s));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
    // And deleting the saved one spares the current view.
    manager.deleteView("__current__"_s);
    QVERIFY(manager.activateGroup("H"_s));
    window.moveDock(Qt::TopDockWidgetArea);
    QVERIFY(manager.activateGroup("G"_s));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
}

QTEST_MAIN(ManagerLeniencyTest)
#include "ManagerLeniencyTest.moc"
