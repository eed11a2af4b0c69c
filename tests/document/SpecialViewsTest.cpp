// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/SignalLog.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

// The operations of one of the two special documents.
struct Special
{
    bool (Manager::*setDocument)(const QByteArray&);
    bool (Manager::*isSet)() const;
    bool (Manager::*activate)();
    const char* signal;
};

const Special factoryDefault = {&Manager::setFactoryDefaultView, &Manager::factoryDefaultViewSet,
                                &Manager::activateFactoryDefaultView, "factoryDefaultViewChanged"};
const Special programStart = {&Manager::setProgramStartView, &Manager::programStartViewSet,
                              &Manager::activateProgramStartView, "programStartViewChanged"};

} // namespace

Q_DECLARE_METATYPE(Special)

/** The factory-default and the program-start document. */
class SpecialViewsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void notSetAtFirst_data() { both(); }
    void notSetAtFirst();
    void setting_data() { both(); }
    void setting();
    void refusedDocumentKeepsTheEarlierOne_data() { both(); }
    void refusedDocumentKeepsTheEarlierOne();
    void activationReplacesAllViews_data() { both(); }
    void activationReplacesAllViews();
    void otherVersionIsKeptButNotRead_data() { both(); }
    void otherVersionIsKeptButNotRead();
    void receiverMaySetAnotherDocument_data() { both(); }
    void receiverMaySetAnotherDocument();
    void theTwoAreKeptApart();

private:
    void both()
    {
        QTest::addColumn<Special>("special");
        QTest::addColumn<Special>("other");
        QTest::newRow("factory default") << factoryDefault << programStart;
        QTest::newRow("program start") << programStart << factoryDefault;
    }

    std::unique_ptr<Manager> m_manager;
};

void SpecialViewsTest::init()
{
    m_manager = std::make_unique<Manager>(names("A,B"), /*mergeOnApply=*/false);
    QVERIFY(m_manager->createView("own"_s));
}

void SpecialViewsTest::notSetAtFirst()
{
    QFETCH(Special, special);
    const SignalLog log(*m_manager, SignalLog::SignalsAndModel);
    QVERIFY(!(m_manager.get()->*special.isSet)());
    QVERIFY(!(m_manager.get()->*special.activate)());
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(m_manager->views(), names("own"));
}

void SpecialViewsTest::setting()
{
    QFETCH(Special, special);
    QFETCH(Special, other);
    const SignalLog log(*m_manager, SignalLog::SignalsAndModel);
    const QByteArray data = document(group("A", view("special", {}, "1")));
    QVERIFY((m_manager.get()->*special.setDocument)(data));
    QVERIFY((m_manager.get()->*special.setDocument)(data));
    QVERIFY((m_manager.get()->*special.isSet)());
    QVERIFY(!(m_manager.get()->*other.isSet)());
    const QString line =
        QStringLiteral("%1(true) [A: own; active null]").arg(QString::fromLatin1(special.signal));
    QCOMPARE(log.lines(), QStringList({line, line}));
}

void SpecialViewsTest::refusedDocumentKeepsTheEarlierOne()
{
    QFETCH(Special, special);
    QVERIFY((m_manager.get()->*special.setDocument)(document(group("A", view("special")))));
    const SignalLog log(*m_manager, SignalLog::SignalsAndModel);
    for (const QByteArray& data : {QByteArray(), QByteArray(""), QByteArray("<ViewData/>")})
        QVERIFY(!(m_manager.get()->*special.setDocument)(data));
    QCOMPARE(log.lines(), QStringList());
    QVERIFY((m_manager.get()->*special.isSet)());
    QVERIFY((m_manager.get()->*special.activate)());
    QCOMPARE(m_manager->views(), names("special"));
}

void SpecialViewsTest::activationReplacesAllViews()
{
    QFETCH(Special, special);
    QFETCH(Special, other);
    QVERIFY((m_manager.get()->*other.setDocument)(document({})));
    QVERIFY((m_manager.get()->*special.setDocument)(document(group("A", view("s", {}, "1")))));
    const QStringList expected = {
        "viewActivated('') [A: own; active null]"_s,   "groupModified() [A: own; active null]"_s,
        "viewActivated(null) [A: own; active null]"_s, "groupModified() [A: ; active null]"_s,
        "groupModified() [A: s; active 's']"_s,        "viewActivated('s') [A: s; active 's']"_s};
    const SignalLog log(*m_manager, SignalLog::SignalsAndModel);
    QVERIFY((m_manager.get()->*special.activate)());
    QCOMPARE(log.lines(), expected);
    // It is kept, and so is the other one, which has no views.
    m_manager->clear();
    QVERIFY((m_manager.get()->*special.activate)());
    QCOMPARE(m_manager->views(), names("s"));
    QVERIFY((m_manager.get()->*other.activate)());
    QCOMPARE(m_manager->views(), QStringList());
}

void SpecialViewsTest::otherVersionIsKeptButNotRead()
{
    QFETCH(Special, special);
    const QByteArray data = document(group("A", view("special")), {}, "1.0");
    QVERIFY((m_manager.get()->*special.setDocument)(data));
    QCOMPARE(m_manager->views(), names("own"));
    QVERIFY((m_manager.get()->*special.activate)());
    QCOMPARE(m_manager->views(), QStringList());
}

void SpecialViewsTest::receiverMaySetAnotherDocument()
{
    QFETCH(Special, special);
    QVERIFY((m_manager.get()->*special.setDocument)(document(group("A", view("first")))));
    int changes = 0;
    connect(m_manager.get(), &Manager::groupModified, this, [&] {
        if ((m_manager.get()->*special.setDocument)(document(group("A", view("second")))))
            ++changes;
    });
    QVERIFY((m_manager.get()->*special.activate)());
    QCOMPARE(changes, 3);
    QCOMPARE(m_manager->views(), names("first"));
    QVERIFY((m_manager.get()->*special.activate)());
    QCOMPARE(m_manager->views(), names("second"));
}

void SpecialViewsTest::theTwoAreKeptApart()
{
    QVERIFY(m_manager->setFactoryDefaultView(document(group("A", view("factory")))));
    QVERIFY(m_manager->setProgramStartView(document(group("A", view("start")))));
    QVERIFY(m_manager->activateFactoryDefaultView());
    QCOMPARE(m_manager->views(), names("factory"));
    QVERIFY(m_manager->activateProgramStartView());
    QCOMPARE(m_manager->views(), names("start"));
}

QTEST_MAIN(SpecialViewsTest)
#include "SpecialViewsTest.moc"
