// SPDX-License-Identifier: MIT
#include "support/MenuReading.h"
#include "support/SignalLog.h"
#include "support/Text.h"

#include <panorel/Manager.h>
#include <panorel/Menu.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** The two reset entries of the extended menu. */
class MenuResetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enabledAtConstruction_data();
    void enabledAtConstruction();
    void enabledBySignal();
    void followTheSignalNotTheManager();
    void compactMenuIsUntouched();
    void resetToProgramStart();
    void resetToFactoryDefault();
    void resetThatFails();
};

namespace {

QByteArray documentWith(const char* view)
{
    return QByteArray(
               "<ViewData Version=\"1.1.0\"><Groups><Group Name=\"G\"><Views><View Name=\"") +
           view + "\"/></Views><CurrentView Name=\"__current__\"/></Group></Groups></ViewData>";
}

QAction* programStart(const QMenu& menu)
{
    return entry(&menu, "Reset Layout to Program Start"_s);
}

QAction* factoryDefault(const QMenu& menu)
{
    return entry(&menu, "Reset Layout to Factory Default"_s);
}

} // namespace

void MenuResetTest::enabledAtConstruction_data()
{
    QTest::addColumn<bool>("start");
    QTest::addColumn<bool>("factory");

    QTest::newRow("none") << false << false;
    QTest::newRow("program start") << true << false;
    QTest::newRow("factory default") << false << true;
    QTest::newRow("both") << true << true;
}

void MenuResetTest::enabledAtConstruction()
{
    QFETCH(bool, start);
    QFETCH(bool, factory);

    Manager manager({"G"_s}, false);
    QCOMPARE(start && manager.setProgramStartView(documentWith("s")), start);
    QCOMPARE(factory && manager.setFactoryDefaultView(documentWith("f")), factory);
    const Menu menu(&manager, true, nullptr);
    QCOMPARE(programStart(menu)->isEnabled(), start);
    QCOMPARE(factoryDefault(menu)->isEnabled(), factory);
}

void MenuResetTest::enabledBySignal()
{
    Manager manager({"G"_s}, false);
    const Menu menu(&manager, true, nullptr);
    QVERIFY(manager.setProgramStartView(documentWith("s")));
    QVERIFY(programStart(menu)->isEnabled());
    QVERIFY(!factoryDefault(menu)->isEnabled());
    QVERIFY(manager.setFactoryDefaultView(documentWith("f")));
    QVERIFY(factoryDefault(menu)->isEnabled());
}

void MenuResetTest::followTheSignalNotTheManager()
{
    Manager manager({"G"_s}, false);
    const Menu menu(&manager, true, nullptr);
    QVERIFY(manager.setProgramStartView(documentWith("s")));
    QVERIFY(manager.setFactoryDefaultView(documentWith("f")));
    Q_EMIT manager.programStartViewChanged(false);
    QVERIFY(!programStart(menu)->isEnabled());
    QVERIFY(factoryDefault(menu)->isEnabled());
    Q_EMIT manager.factoryDefaultViewChanged(false);
    QVERIFY(!factoryDefault(menu)->isEnabled());
}

void MenuResetTest::compactMenuIsUntouched()
{
    Manager manager({"G"_s}, false);
    const Menu menu(&manager, false, nullptr);
    QVERIFY(manager.setProgramStartView(documentWith("s")));
    QVERIFY(manager.setFactoryDefaultView(documentWith("f")));
    QCOMPARE(entries(menu), lines({"---", "Save Current Layout As... >", "Delete Layout... >"}));
}

void MenuResetTest::resetToProgramStart()
{
    Manager manager({"G"_s}, false);
    QVERIFY(manager.setProgramStartView(documentWith("s")));
    QVERIFY(manager.setFactoryDefaultView(documentWith("f")));
    QVERIFY(manager.createView("own"_s));
    const Menu menu(&manager, true, nullptr);
    SignalLog signalLog(manager);
    programStart(menu)->trigger();
    QCOMPARE(manager.views(), lines({"s"}));
    QCOMPARE(signalLog.take(),
             lines({"viewActivated('')", "groupModified()", "viewActivated(null)",
                    "groupModified()", "groupModified()", "viewActivated(null)"}));
    QCOMPARE(entries(menu).first(), "s"_s);
}

void MenuResetTest::resetToFactoryDefault()
{
    Manager manager({"G"_s}, false);
    QVERIFY(manager.setProgramStartView(documentWith("s")));
    QVERIFY(manager.setFactoryDefaultView(documentWith("f")));
    QVERIFY(manager.createView("own"_s));
    const Menu menu(&manager, true, nullptr);
    factoryDefault(menu)->trigger();
    QCOMPARE(manager.views(), lines({"f"}));
    QCOMPARE(entries(menu).first(), "f"_s);
}

void MenuResetTest::resetThatFails()
{
    Manager manager({"G"_s}, false);
    QVERIFY(manager.createView("own"_s));
    const Menu menu(&manager, true, nullptr);
    // Enabled by the signal alone: the Manager has no document, and reports nothing.
    Q_EMIT manager.programStartViewChanged(true);
    Q_EMIT manager.factoryDefaultViewChanged(true);
    const QStringList before = entries(menu);
    SignalLog signalLog(manager);
    programStart(menu)->trigger();
    factoryDefault(menu)->trigger();
    QCOMPARE(signalLog.take(), QStringList());
    QCOMPARE(entries(menu), before);
}

QTEST_MAIN(MenuResetTest)
#include "MenuResetTest.moc"
