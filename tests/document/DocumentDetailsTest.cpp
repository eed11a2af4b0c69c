// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Text.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** What a document brings, and when, in cases that are easily overlooked. */
class DocumentDetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void specialViewIsThereInItsSignal();
    void userDataKeepsItsBlanks();
    void currentViewKeepsUserDataThatIsNotNamed();

private:
    Manager m_manager{names("A"), /*mergeOnApply=*/false};
};

void DocumentDetailsTest::specialViewIsThereInItsSignal()
{
    QStringList seen;
    const auto see = [&](bool isSet, bool isActivated) {
        seen += isSet && isActivated ? m_manager.views() : QStringList{"nothing"_s};
    };
    connect(&m_manager, &Manager::factoryDefaultViewChanged, this, [&] {
        see(m_manager.factoryDefaultViewSet(), m_manager.activateFactoryDefaultView());
    });
    connect(&m_manager, &Manager::programStartViewChanged, this,
            [&] { see(m_manager.programStartViewSet(), m_manager.activateProgramStartView()); });
    QVERIFY(m_manager.setFactoryDefaultView(document(group("A", view("factory")))));
    QVERIFY(m_manager.setFactoryDefaultView(document(group("A", view("later")))));
    QVERIFY(m_manager.setProgramStartView(document(group("A", view("start")))));
    QCOMPARE(seen, names("factory,later,start"));
}

void DocumentDetailsTest::userDataKeepsItsBlanks()
{
    const QByteArray text = " \ta  b\n ";
    QVERIFY(m_manager.fromXml(document(group("A", view("v", userData(text)), userData("  "))),
                              /*merge=*/false));
    const QByteArray written = m_manager.toXml(false);
    QVERIFY(written.contains(userData(text)));
    QVERIFY(written.contains(userData("  ")));
}

void DocumentDetailsTest::currentViewKeepsUserDataThatIsNotNamed()
{
    QVERIFY(m_manager.fromXml(document(group("A", {}, userData("kept"))), /*merge=*/false));
    QVERIFY(m_manager.fromXml(document(group("A", {})), /*merge=*/false));
    QVERIFY(m_manager.toXml(false).contains(userData("kept")));
    QVERIFY(m_manager.fromXml(document(group("A", {}, userData(""))), /*merge=*/true));
    QVERIFY(!m_manager.toXml(false).contains("kept"));
}

QTEST_MAIN(DocumentDetailsTest)
#include "DocumentDetailsTest.moc"
