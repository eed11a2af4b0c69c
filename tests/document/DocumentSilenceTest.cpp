// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"
#include "ErrorOutput.h"

#include <panorel/Manager.h>

#include <QTemporaryFile>
#include <QtTest>

using namespace Panorel::Tests;

/** Validation prints nothing, whatever is wrong with a document. */
class DocumentSilenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsPrinted_data();
    void nothingIsPrinted();
};

void DocumentSilenceTest::nothingIsPrinted_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("valid") << document(group("A", view("v")));
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("text");
    QTest::newRow("ill-formed") << document("<Group>");
    QTest::newRow("unknown root") << QByteArray("<Foreign/>");
    QTest::newRow("against the schema") << document("<Group Name=\"A\"/>");
    QTest::newRow("wrong digits") << document(group("A", view("v", state("w", "zz"))));
    QTest::newRow("unknown encoding") << "<?xml version=\"1.0\" encoding=\"none\"?>" + document({});
    QTest::newRow("external entity")
        << "<!DOCTYPE ViewData [<!ENTITY e SYSTEM \"file:///none\">]>" + document("&e;");
}

void DocumentSilenceTest::nothingIsPrinted()
{
    QFETCH(QByteArray, data);
    Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
    QTemporaryFile file;
    QVERIFY(file.open());
    {
        const ErrorOutput output(file);
        (void)manager.fromXml(data, /*merge=*/false);
        (void)manager.setFactoryDefaultView(data);
    }
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), QByteArray());
}

QTEST_MAIN(DocumentSilenceTest)
#include "DocumentSilenceTest.moc"
