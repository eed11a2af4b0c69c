// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Documents of another version are not read, and yet the answer is true. */
class DocumentVersionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherVersionIsNotRead_data();
    void otherVersionIsNotRead();
    void ownVersionInOtherWritingIsRead();
    void currentViewIsAppliedAllTheSame_data();
    void currentViewIsAppliedAllTheSame();
};

void DocumentVersionTest::otherVersionIsNotRead_data()
{
    QTest::addColumn<QByteArray>("version");
    for (const char* version : {"", "1.0.0", "1.1", "1.1.1", "1.1.0.0", "2.0", " 1.1.0", "1.1.0 ",
                                "01.1.0", "1.1.0\xC2\xA0", "v1.1.0", "1,1,0"})
        QTest::newRow(qPrintable(quoted(QString::fromUtf8(version)))) << QByteArray(version);
}

void DocumentVersionTest::otherVersionIsNotRead()
{
    QFETCH(QByteArray, version);
    Manager manager(names("A,B"), /*mergeOnApply=*/false);
    const QByteArray kept = group("A", view("a", state("w", "aa"), "1")) +
                            group("B", view("b", {}, "1"), state("w", "cc"));
    QVERIFY(manager.fromXml(document(kept), /*merge=*/false));
    const QByteArray before = manager.toXml(true);
    const QByteArray other = document(group("A", view("a", state("w", "bb")) + view("n", {}, "1")) +
                                          group("B", {}, state("w", "dd")),
                                      {}, version);
    QVERIFY(manager.fromXml(other, /*merge=*/true));
    QCOMPARE(manager.toXml(true), before);
    QVERIFY(manager.fromXml(other, /*merge=*/false));
    QCOMPARE(manager.views(), QStringList());
    QCOMPARE(quoted(manager.activeView()), "null"_s);
    QVERIFY(manager.toXml(true).contains("<State DescriptorId=\"w\">cc</State>"));
    QVERIFY(manager.activateGroup("B"_s));
    QCOMPARE(manager.views(), QStringList());
}

void DocumentVersionTest::ownVersionInOtherWritingIsRead()
{
    Manager manager(names("A"), /*mergeOnApply=*/false);
    const QByteArray data = document(group("A", view("a")), {}, "&#49;.1.0");
    QVERIFY(manager.fromXml(data, /*merge=*/false));
    QCOMPARE(manager.views(), names("a"));
}

void DocumentVersionTest::currentViewIsAppliedAllTheSame_data()
{
    QTest::addColumn<bool>("mergeOnApply");
    QTest::addColumn<bool>("merge");
    for (const bool mergeOnApply : {false, true}) {
        QTest::addRow("replace, mergeOnApply %d", mergeOnApply) << mergeOnApply << false;
        QTest::addRow("merge, mergeOnApply %d", mergeOnApply) << mergeOnApply << true;
    }
}

void DocumentVersionTest::currentViewIsAppliedAllTheSame()
{
    QFETCH(bool, mergeOnApply);
    QFETCH(bool, merge);
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    Manager manager(names("A"), mergeOnApply);
    manager.registerManagable(owner);
    QVERIFY(manager.saveCurrentViewAs("left"_s));
    const QByteArray bars = window.saveState(0).toHex();
    window.moveDock(Qt::RightDockWidgetArea);
    window.moveBar(Qt::BottomToolBarArea);
    const QByteArray other = document({}, toolBarState("w", bars), "1.0");
    QVERIFY(manager.fromXml(other, merge));
    QCOMPARE(window.dockArea(), Qt::LeftDockWidgetArea);
    // The document's tool bars are not read, so only the current view could bring them back.
    QCOMPARE(window.barArea(), mergeOnApply ? Qt::BottomToolBarArea : Qt::TopToolBarArea);
}

QTEST_MAIN(DocumentVersionTest)
#include "DocumentVersionTest.moc"
