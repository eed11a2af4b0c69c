// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QMainWindow>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Whether the saved views fit the windows. */
class ViewsValidTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void idsMustBeTheSame_data();
    void idsMustBeTheSame();
    void windowsMayChange();
    void changesNothing();
};

// The live windows are "v" and "w"; a third one has no id.
void ViewsValidTest::idsMustBeTheSame_data()
{
    QTest::addColumn<QByteArray>("groups");
    QTest::addColumn<bool>("valid");
    const QByteArray v = state("v", "aa");
    const QByteArray w = state("w", "bb");
    QTest::newRow("no views") << QByteArray() << true;
    QTest::newRow("both") << group("A", view("a", v + w)) << true;
    QTest::newRow("both in another order") << group("A", view("a", w + v)) << true;
    QTest::newRow("one missing") << group("A", view("a", v)) << false;
    QTest::newRow("one empty") << group("A", view("a", v + state("w", ""))) << false;
    QTest::newRow("none") << group("A", view("a")) << false;
    QTest::newRow("one more") << group("A", view("a", v + w + state("x", "cc"))) << false;
    QTest::newRow("one more without a name")
        << group("A", view("a", v + w + state("", "cc"))) << false;
    QTest::newRow("as many, but another") << group("A", view("a", v + state("x", "bb"))) << false;
    QTest::newRow("other case") << group("A", view("a", v + state("W", "bb"))) << false;
    QTest::newRow("second view lacks one") << group("A", view("a", v + w) + view("b", v)) << false;
    QTest::newRow("view of a group that is not active") << group("B", view("b", v)) << false;
    QTest::newRow("current views do not count") << group("A", {}, v) + group("B", {}, v) << true;
}

void ViewsValidTest::idsMustBeTheSame()
{
    QFETCH(QByteArray, groups);
    QFETCH(bool, valid);
    QMainWindow window;
    Owner owner({{"w"_s, &window}, {"v"_s, &window}, {QString(), &window}});
    Manager merging(names("A,B"), /*mergeOnApply=*/true);
    merging.registerManagable(owner);
    QVERIFY(merging.fromXml(document(groups), /*merge=*/false));
    QCOMPARE(merging.viewsValid(), valid);
    Manager plain(names("A,B"), /*mergeOnApply=*/false);
    plain.registerManagable(owner);
    QVERIFY(plain.fromXml(document(groups), /*merge=*/false));
    QVERIFY(plain.viewsValid());
}

void ViewsValidTest::windowsMayChange()
{
    QMainWindow window;
    Owner owner;
    Manager manager(names("A"), /*mergeOnApply=*/true);
    manager.registerManagable(owner);
    owner.windows = {{"v"_s, &window}};
    QVERIFY(manager.createView("a"_s));
    QVERIFY(manager.viewsValid());
    owner.windows = {{"v"_s, &window}, {"w"_s, &window}};
    QVERIFY(!manager.viewsValid());
    owner.windows = {};
    QVERIFY(!manager.viewsValid());
    manager.deleteView("a"_s);
    QVERIFY(manager.viewsValid());
}

void ViewsValidTest::changesNothing()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(names("A"), /*mergeOnApply=*/true);
    manager.registerManagable(owner);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    window.moveDock(Qt::RightDockWidgetArea);
    const SignalLog log(manager, SignalLog::SignalsAndModel);
    QVERIFY(manager.viewsValid());
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(window.dockArea(), Qt::RightDockWidgetArea);
    // Reading nothing applies the current view, which still is the one saved first.
    QVERIFY(manager.fromXml(document({}), /*merge=*/true));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
}

QTEST_MAIN(ViewsValidTest)
#include "ViewsValidTest.moc"
