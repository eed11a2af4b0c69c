// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/SignalLog.h"

#include <panorel/Manager.h>

#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/**
 * Characters that XML 1.0 does not allow or gives a meaning to, in names that are written. What
 * becomes of them is up to Qt's writer; a new Qt that takes them otherwise is to be noticed.
 */
class DocumentCharactersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void lost_data();
    void lost();
    void kept_data();
    void kept();
    void namesThatBecomeOne();
    void groupNoLongerFound();
    void loneSurrogateSpoilsTheDocument_data();
    void loneSurrogateSpoilsTheDocument();

private:
    std::unique_ptr<Manager> m_manager;
};

namespace {

QString around(ushort code)
{
    return "a"_s + QChar(code) + "b"_s;
}

} // namespace

void DocumentCharactersTest::init()
{
    m_manager = std::make_unique<Manager>(names("G"), /*mergeOnApply=*/false);
}

void DocumentCharactersTest::lost_data()
{
    QTest::addColumn<ushort>("code");
    for (ushort code = 0; code < 0x20; ++code) {
        if (code != '\t' && code != '\n' && code != '\r')
            QTest::addRow("U+%04X", unsigned(code)) << code;
    }
    QTest::newRow("U+FFFE") << ushort(0xFFFE);
    QTest::newRow("U+FFFF") << ushort(0xFFFF);
}

void DocumentCharactersTest::lost()
{
    QFETCH(ushort, code);
    QVERIFY(m_manager->createView(around(code)));
    const QByteArray data = m_manager->toXml(/*markActive=*/true);
    QCOMPARE(data.count("<View Name=\"ab\">"), 1);
    QCOMPARE(m_manager->views(), QStringList(around(code)));
    QVERIFY(m_manager->fromXml(data, /*merge=*/false));
    QCOMPARE(m_manager->views(), names("ab"));
}

void DocumentCharactersTest::kept_data()
{
    QTest::addColumn<ushort>("code");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](ushort code, const char* written) {
        QTest::addRow("U+%04X", unsigned(code)) << code << QByteArray(written);
    };
    // As they are, white space would come back from an attribute as blanks.
    row('\t', "&#9;");
    row('\n', "&#10;");
    row('\r', "&#13;");
    row(0x007F, "\x7F");
    row(0x0085, "\xC2\x85");
    row(0x2028, "\xE2\x80\xA8");
    row(0xFDD0, "\xEF\xB7\x90");
    row(0xFFFD, "\xEF\xBF\xBD");
}

void DocumentCharactersTest::kept()
{
    QFETCH(ushort, code);
    QFETCH(QByteArray, written);
    QVERIFY(m_manager->createView(around(code)));
    const QByteArray data = m_manager->toXml(/*markActive=*/true);
    QCOMPARE(data.count("<View Name=\"a" + written + "b\">"), 1);
    QVERIFY(m_manager->fromXml(data, /*merge=*/false));
    QCOMPARE(m_manager->views(), QStringList(around(code)));
}

void DocumentCharactersTest::namesThatBecomeOne()
{
    QVERIFY(m_manager->createView(around(1)));
    QVERIFY(m_manager->createView("ab"_s));
    const QByteArray data = m_manager->toXml(/*markActive=*/true);
    QCOMPARE(data.count("<View Name=\"ab\">"), 2);
    QVERIFY(m_manager->fromXml(data, /*merge=*/false));
    QCOMPARE(m_manager->views(), names("ab"));
}

void DocumentCharactersTest::groupNoLongerFound()
{
    Manager manager({around(1)}, /*mergeOnApply=*/false);
    QVERIFY(manager.createView("v"_s));
    const QByteArray data = manager.toXml(/*markActive=*/true);
    QCOMPARE(data.count("<Group Name=\"ab\">"), 1);
    QVERIFY(manager.fromXml(data, /*merge=*/false));
    QCOMPARE(manager.views(), QStringList());
}

void DocumentCharactersTest::loneSurrogateSpoilsTheDocument_data()
{
    QTest::addColumn<ushort>("code");
    QTest::newRow("high") << ushort(0xD800);
    QTest::newRow("low") << ushort(0xDC00);
}

// From there on Qt's writer leaves out every name, so nobody reads the document again.
void DocumentCharactersTest::loneSurrogateSpoilsTheDocument()
{
    QFETCH(ushort, code);
    QVERIFY(m_manager->createView("v"_s));
    const QByteArray sound = m_manager->toXml(/*markActive=*/true);
    QVERIFY(m_manager->createView(around(code)));
    const QByteArray spoilt = m_manager->toXml(/*markActive=*/true);
    const SignalLog log(*m_manager);
    QVERIFY(!m_manager->fromXml(spoilt, /*merge=*/false));
    QVERIFY(!m_manager->fromXml(spoilt, /*merge=*/true));
    QVERIFY(!m_manager->setFactoryDefaultView(spoilt));
    QCOMPARE(m_manager->views(), QStringList({"v"_s, around(code)}));
    QCOMPARE(log.lines(), QStringList());
    // Only the document is spoilt: without the view the next one is as before.
    m_manager->deleteView(around(code));
    QCOMPARE(m_manager->toXml(/*markActive=*/true), sound);
}

QTEST_MAIN(DocumentCharactersTest)
#include "DocumentCharactersTest.moc"
