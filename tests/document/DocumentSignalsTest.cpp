// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"

#include <QtTest>

using namespace Panorel;
using namespace Panorel::DocumentTests;

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
        text("viewActivated('') [a b] 'b'"), text("groupModified() [a b] 'b'"),
        text("viewActivated(null) [a b] null"), text("groupModified() [] null")};
    const QByteArray marked = document(group("A", view("c", {}, "1")));
    const QByteArray unmarked = document(group("A", view("c")));
    const QByteArray otherGroup = document(group("B", view("c", {}, "1")));
    const QByteArray otherVersion = QByteArray(marked).replace("1.1.0", "1.1.1");
    QTest::newRow("replace, marked") << marked << false
                                     << cleared + QStringList{text("groupModified() [c] 'c'"),
                                                              text("viewActivated('c') [c] 'c'")};
    QTest::newRow("replace, no mark")
        << unmarked << false
        << cleared +
               QStringList{text("groupModified() [c] null"), text("viewActivated(null) [c] null")};
    for (const QByteArray& data : {otherGroup, otherVersion}) {
        QTest::newRow(data == otherGroup ? "replace, other group" : "replace, other version")
            << data << false
            << cleared + QStringList{text("groupModified() [] null"),
                                     text("viewActivated(null) [] null")};
        QTest::newRow(data == otherGroup ? "merge, other group" : "merge, other version")
            << data << true
            << QStringList{text("groupModified() [a b] 'b'"), text("viewActivated('b') [a b] 'b'")};
    }
    QTest::newRow("merge, marked")
        << marked << true
        << QStringList{text("groupModified() [a b c] 'c'"), text("viewActivated('c') [a b c] 'c'")};
    QTest::newRow("merge, no mark")
        << unmarked << true
        << QStringList{text("groupModified() [a b c] 'b'"), text("viewActivated('b') [a b c] 'b'")};
    QTest::newRow("active view without a name")
        << document(group("A", view("", {}, "1"))) << true
        << QStringList{text("groupModified() [a b ] ''"), text("viewActivated('') [a b ] ''")};
}

void DocumentSignalsTest::sequence()
{
    QFETCH(QByteArray, data);
    QFETCH(bool, merge);
    QFETCH(QStringList, expected);
    const SignalRecord record(*m_manager);
    QVERIFY(m_manager->fromXml(data, merge));
    QCOMPARE(record.lines, expected);
}

void DocumentSignalsTest::windowsAreReadyWithTheLastSignalOnly()
{
    SmallWindow window;
    WindowOwner owner;
    owner.windows = {{text("w"), &window}};
    const QByteArray left = window.saveState(0).toHex();
    window.addDockWidget(Qt::RightDockWidgetArea, window.dock);
    m_manager->registerManagable(owner);
    QList<Qt::DockWidgetArea> areas;
    const auto look = [&] { areas.append(window.dockWidgetArea(window.dock)); };
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
