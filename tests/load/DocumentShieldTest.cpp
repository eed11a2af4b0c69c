// SPDX-License-Identifier: MIT
#include "DocumentShield.h"
#include "support/BlobBuilder.h"
#include "support/Owner.h"
#include "support/RecordedBlobs.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** The check that SECURITY.md gives to applications. */
class DocumentShieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void realBlobsPass();
    void harmfulBlobsDoNot_data();
    void harmfulBlobsDoNot();
    void documents();
};

void DocumentShieldTest::realBlobsPass()
{
    const QString folder = QFINDTESTDATA("../data/blobs");
    for (const QString& path : {folder, QString(folder + "/qt6"_s)}) {
        const auto blobs = recordedBlobs(path);
        QCOMPARE(blobs.size(), std::size_t(22));
        for (const RecordedBlob& blob : blobs)
            QVERIFY2(isHarmless(blob.bytes), blob.name.constData());
    }
}

void DocumentShieldTest::harmfulBlobsDoNot_data()
{
    QTest::addColumn<QByteArray>("blob");
    const auto docks = [](int area) {
        return soundHead().dockSection(1).dock(area, 1, 1).sequence(1, 0).dockTail();
    };
    const auto bars = [](int area) {
        return soundHead().toolBarSection(1).line(area, 1).toolBar("T"_s);
    };
    QVERIFY(isHarmless(docks(0).blob()) && isHarmless(docks(3).blob()));
    QVERIFY(isHarmless(bars(0).blob()) && isHarmless(bars(3).blob()));
    QTest::addRow("dock area -1") << docks(-1).blob();
    QTest::addRow("dock area 4") << docks(4).blob();
    QTest::addRow("tool-bar area -1") << bars(-1).blob();
    QTest::addRow("tool-bar area 4") << bars(4).blob();
    QTest::addRow("nothing") << QByteArray();
    QTest::addRow("bytes left over") << docks(0).byte(0).blob();
    QTest::addRow("cut off") << docks(0).blob().chopped(1);
    QTest::addRow("larger than any real one")
        << soundHead().raw(docks(0).blob().mid(8).repeated(400)).blob();
}

void DocumentShieldTest::harmfulBlobsDoNot()
{
    QFETCH(QByteArray, blob);
    QVERIFY(!isHarmless(blob));
}

void DocumentShieldTest::documents()
{
    SmallWindow window;
    Owner owner({{"1"_s, &window}});
    Manager manager(lines({"G"}), true);
    manager.registerManagable(owner);
    QVERIFY(manager.createView("a"_s));
    const QByteArray document = manager.toXml(/*markActive=*/true);
    QVERIFY(isHarmlessDocument(document));
    QVERIFY(!isHarmlessDocument(document.chopped(20)));
    // Every state of it in turn: of the tool bars, of the view and of the current view.
    const QByteArray head = "000000ff00000000";
    int states = 0;
    for (int at = document.indexOf(head); at >= 0; at = document.indexOf(head, at + 1)) {
        ++states;
        QVERIFY(!isHarmlessDocument(QByteArray(document).replace(at, 8, "000000fe")));
    }
    QCOMPARE(states, 3);
}

QTEST_MAIN(DocumentShieldTest)
#include "DocumentShieldTest.moc"
