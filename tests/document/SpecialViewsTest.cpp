// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"

#include <QtTest>

using namespace Panorel;
using namespace Panorel::DocumentTests;

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
    QVERIFY(m_manager->createView(text("own")));
}

void SpecialViewsTest::notSetAtFirst()
{
    QFETCH(Special, special);
    const SignalRecord record(*m_manager);
    QVERIFY(!(m_manager.get()->*special.isSet)());
    QVERIFY(!(m_manager.get()->*special.activate)());
    QCOMPARE(record.lines, QStringList());
    QCOMPARE(m_manager->views(), names("own"));
}

void SpecialViewsTest::setting()
{
    QFETCH(Special, special);
    QFETCH(Special, other);
    const SignalRecord record(*m_manager);
    const QByteArray data = document(group("A", view("special", {}, "1")));
    QVERIFY((m_manager.get()->*special.setDocument)(data));
    QVERIFY((m_manager.get()->*special.setDocument)(data));
    QVERIFY((m_manager.get()->*special.isSet)());
    QVERIFY(!(m_manager.get()->*other.isSet)());
    const QString line = QStringLiteral("%1(true) [own] null").arg(text(special.signal));
    QCOMPARE(record.lines, QStringList({line, line}));
}

void SpecialViewsTest::refusedDocumentKeepsTheEarlierOne()
{
    QFETCH(Special, special);
    QVERIFY((m_manager.get()->*special.setDocument)(document(group("A", view("special")))));
    const SignalRecord record(*m_manager);
    for (const QByteArray& data : {QByteArray(), QByteArray(""), QByteArray("<ViewData/>")})
        QVERIFY(!(m_manager.get()->*special.setDocument)(data));
    QCOMPARE(record.lines, QStringList());
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
        text("viewActivated('') [own] null"),   text("groupModified() [own] null"),
        text("viewActivated(null) [own] null"), text("groupModified() [] null"),
        text("groupModified() [s] 's'"),        text("viewActivated('s') [s] 's'")};
    const SignalRecord record(*m_manager);
    QVERIFY((m_manager.get()->*special.activate)());
    QCOMPARE(record.lines, expected);
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
