// SPDX-License-Identifier: MIT
#include "support/Owner.h"
#include "support/Text.h"
#include "ui/MenuFileFixture.h"

#include <QTextCodec>
#include <QtTest>

using namespace Panorel;
using namespace Panorel::Tests;

/** Export through the file dialog to the end, without a word. */
class MenuExportTest : public MenuFileFixture
{
    Q_OBJECT

private Q_SLOTS:
    void exported();
    void exportedInTheLocalesEncoding_data();
    void exportedInTheLocalesEncoding();
    void exportedOverAFile();
    void exportedOverNoFile();
    void exportedIntoNoFolder();
};

void MenuExportTest::exported()
{
    Owner counter;
    m_manager->registerManagable(counter);
    QVERIFY(choose("Export ...", path("out.views")));
    QCOMPARE(content(path("out.views")), document());
    // The live layout was captured once for it.
    QCOMPARE(counter.calls, 1);
    QCOMPARE(m_signals->take(), QStringList());
    QCOMPARE(m_manager->activeView(), "own"_s);
}

void MenuExportTest::exportedInTheLocalesEncoding_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("\xC3\xA9");
    QTest::newRow("ISO 8859-1") << QByteArray("ISO 8859-1") << QByteArray("\xE9");
    QTest::newRow("CP850") << QByteArray("IBM 850") << QByteArray("\x82");
}

void MenuExportTest::exportedInTheLocalesEncoding()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, bytes);

    m_manager->deleteView("n"_s);
    QVERIFY(m_manager->createView("\u00e9"_s));
    QTextCodec* localeCodec = QTextCodec::codecForLocale();
    QVERIFY(QTextCodec::codecForName(codec));
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
    const bool exported = choose("Export ...", path("out.views"));
    QTextCodec::setCodecForLocale(localeCodec);
    QVERIFY(exported);
    QCOMPARE(content(path("out.views")), documentWith(bytes.constData()));
}

void MenuExportTest::exportedOverAFile()
{
    const QString file = fileWith(QByteArray(5000, 'x'));
    QVERIFY(choose("Export ...", file, QMessageBox::Yes));
    QCOMPARE(content(file), document());
}

void MenuExportTest::exportedOverNoFile()
{
    const QString file = fileWith("kept");
    QVERIFY(choose("Export ...", file, QMessageBox::No));
    QCOMPARE(content(file), QByteArray("kept"));
}

void MenuExportTest::exportedIntoNoFolder()
{
    Owner counter;
    m_manager->registerManagable(counter);
    QVERIFY(choose("Export ...", path("missing/out.views")));
    QVERIFY(!QFile::exists(path("missing")));
    QCOMPARE(counter.calls, 0);
    QCOMPARE(m_signals->take(), QStringList());
}

QTEST_MAIN(MenuExportTest)
#include "MenuExportTest.moc"
