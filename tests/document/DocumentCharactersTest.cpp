// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "support/Owner.h"

#include <panorel/Manager.h>

#include <QMainWindow>
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
    void halfOfAPair_data();
    void halfOfAPair();
    void pairs();
    void halfOfAPairBesideOthers_data();
    void halfOfAPairBesideOthers();
    void halfOfAPairInUserData();

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

void DocumentCharactersTest::halfOfAPair_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");
    QTest::newRow("first half") << around(0xD800) << "a?b"_s;
    QTest::newRow("second half") << around(0xDC00) << "a?b"_s;
    QTest::newRow("at the end") << "ab"_s + QChar(0xD800) << "ab?"_s;
    QTest::newRow("wrong order") << "a"_s + QChar(0xDC00) + QChar(0xD800) << "a??"_s;
}

// Qt's writer would leave out every name after it, and the document could not be read again.
void DocumentCharactersTest::halfOfAPair()
{
    QFETCH(QString, name);
    QFETCH(QString, written);
    Manager manager({name, "G"_s}, /*mergeOnApply=*/true);
    QMainWindow window;
    Owner owner({{name, &window}});
    manager.registerManagable(owner);
    QVERIFY(manager.createView(name));
    QVERIFY(manager.createView("later"_s));
    const QByteArray data = manager.toXml(/*markActive=*/true);
    QCOMPARE(data.count("<Group Name=\"" + written.toUtf8() + "\">"), 1);
    // The live state, and those of two views and the current one.
    QCOMPARE(data.count("DescriptorId=\"" + written.toUtf8() + "\""), 4);
    Manager other({written}, /*mergeOnApply=*/false);
    QVERIFY(other.fromXml(data, /*merge=*/false));
    QCOMPARE(other.views(), QStringList({written, "later"_s}));
}

void DocumentCharactersTest::pairs()
{
    const QString both = "a"_s + QChar(0xD83D) + QChar(0xDE00);
    QVERIFY(m_manager->createView(both));
    const QByteArray data = m_manager->toXml(/*markActive=*/true);
    QCOMPARE(data.count("<View Name=\"a\xF0\x9F\x98\x80\">"), 1);
    QVERIFY(m_manager->fromXml(data, /*merge=*/false));
    QCOMPARE(m_manager->views(), QStringList(both));
}

// The text of user data comes from a document, which holds such halves only in UTF-16.
void DocumentCharactersTest::halfOfAPairBesideOthers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const QChar high(0xD83D);
    const QChar low(0xDE00);
    const QChar mark(0xFEFF);
    const QString pair = QString(high) + low;
    const auto row = [](const char* name, const QString& written, const QString& read) {
        QTest::newRow(name) << written << read;
    };
    row("byte order mark first", mark + QString(high) + "a"_s, mark + "?a"_s);
    row("two first halves", QString(high) + high, "??"_s);
    row("two second halves", QString(low) + low, "??"_s);
    row("halves in the wrong order", QString(low) + high, "??"_s);
    row("half before a pair", high + pair, "?"_s + pair);
    row("half after a pair", pair + low, pair + "?"_s);
}

void DocumentCharactersTest::halfOfAPairBesideOthers()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QVERIFY(m_manager->createView(name));
    QVERIFY(m_manager->fromXml(m_manager->toXml(false), /*merge=*/false));
    QCOMPARE(m_manager->views(), QStringList{expected});
}

void DocumentCharactersTest::halfOfAPairInUserData()
{
    const QString text = QString::fromUtf8(document(group("G", view("v", userData("half")))));
    const QString utf16 =
        QChar(QChar::ByteOrderMark) + QString(text).replace("half"_s, around(0xD800));
    const QByteArray bytes(reinterpret_cast<const char*>(utf16.utf16()), utf16.size() * 2);
    QVERIFY(m_manager->fromXml(bytes, /*merge=*/false));
    QVERIFY(m_manager->createView("later"_s));
    const QByteArray data = m_manager->toXml(/*markActive=*/true);
    QVERIFY(m_manager->fromXml(data, /*merge=*/false));
    QCOMPARE(m_manager->views(), names("v,later"));
}

QTEST_MAIN(DocumentCharactersTest)
#include "DocumentCharactersTest.moc"
