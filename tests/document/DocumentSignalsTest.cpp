// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"
#include "support/SignalLog.h"
#include "support/SmallWindow.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Which signals fromXml() emits, in which order and with which model. */
class DocumentSignalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sequence_data();
    void sequence();
    void windowsAreReadyWithTheLastSignalOnly();
    void receiverMayChangeTheCallersArray();

private:
    std::unique_ptr<Manager> m_manager;
};

void DocumentSignalsTest::init()
{
    m_manager = std::make_unique<Manager>(names("A,B"), /*mergeOnApply=*/false);
    QVERIFY(m_manager->fromXml(document(group("A", view("a") + view("b", {}, "1"))), false));
}

void DocumentSignalsTest::sequence_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("merge");
    QTest::addColumn<QStringList>("expected");
    const QStringList cleared = {
        "viewActivated('') [A: a, b; active 'b']"_s, "groupModified() [A: a, b; active 'b']"_s,
        "viewActivated(null) [A: a, b; active null]"_s, "groupModified() [A: ; active null]"_s};
    const QByteArray marked = document(group("A", view("c", {}, "1")));
    const QByteArray unmarked = document(group("A", view("c")));
    const QByteArray otherGroup = document(group("B", view("c", {}, "1")));
    const QByteArray otherVersion = QByteArray(marked).replace("1.1.0", "1.1.1");
    QTest::newRow("replace, marked")
        << marked << false
        << cleared + QStringList{"groupModified() [A: c; active 'c']"_s,
                                 "viewActivated('c') [A: c; active 'c']"_s};
    QTest::newRow("replace, no mark")
        << unmarked << false
        << cleared + QStringList{"groupModified() [A: c; active null]"_s,
                                 "viewActivated(null) [A: c; active null]"_s};
    for (const QByteArray& data : {otherGroup, otherVersion}) {
        QTest::newRow(data == otherGroup ? "replace, other group" : "replace, other version")
            << data << false
            << cleared + QStringList{"groupModified() [A: ; active null]"_s,
                                     "viewActivated(null) [A: ; active null]"_s};
        QTest::newRow(data == otherGroup ? "merge, other group" : "merge, other version")
            << data << true
            << QStringList{"groupModified() [A: a, b; active 'b']"_s,
                           "viewActivated('b') [A: a, b; active 'b']"_s};
    }
    QTest::newRow("merge, marked") << marked << true
                                   << QStringList{"groupModified() [A: a, b, c; active 'c']"_s,
                                                  "viewActivated('c') [A: a, b, c; active 'c']"_s};
    QTest::newRow("merge, no mark") << unmarked << true
                                    << QStringList{"groupModified() [A: a, b, c; active 'b']"_s,
                                                   "viewActivated('b') [A: a, b, c; active 'b']"_s};
    QTest::newRow("active view without a name")
        << document(group("A", view("", {}, "1"))) << true
        << QStringList{"groupModified() [A: a, b, ; active '']"_s,
                       "viewActivated('') [A: a, b, ; active '']"_s};
}

void DocumentSignalsTest::sequence()
{
    QFETCH(QByteArray, data);
    QFETCH(bool, merge);
    QFETCH(QStringList, expected);
    const SignalLog log(*m_manager, SignalLog::SignalsAndModel);
    QVERIFY(m_manager->fromXml(data, merge));
    QCOMPARE(log.lines(), expected);
}

void DocumentSignalsTest::windowsAreReadyWithTheLastSignalOnly()
{
    SmallWindow window;
    Owner owner({{"w"_s, &window}});
    const QByteArray left = window.saveState(0).toHex();
    window.moveDock(Qt::RightDockWidgetArea);
    m_manager->registerManagable(owner);
    QList<Qt::DockWidgetArea> areas;
    const auto look = [&] { areas.append(window.dockArea()); };
    connect(m_manager.get(), &Manager::groupModified, &window, look);
    connect(m_manager.get(), &Manager::viewActivated, &window, look);
    QVERIFY(m_manager->fromXml(document(group("A", {}, state("w", left))), /*merge=*/true));
    QCOMPARE(areas, QList<Qt::DockWidgetArea>({Qt::RightDockWidgetArea, Qt::LeftDockWidgetArea}));
}

void DocumentSignalsTest::receiverMayChangeTheCallersArray()
{
    QByteArray data = document(group("A", view("c")));
    connect(m_manager.get(), &Manager::groupModified, this, [&] { data.fill('x'); });
    QVERIFY(m_manager->fromXml(data, /*merge=*/false));
    QCOMPARE(m_manager->views(), names("c"));
}

QTEST_MAIN(DocumentSignalsTest)
#include "DocumentSignalsTest.moc"
