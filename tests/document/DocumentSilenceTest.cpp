// SPDX-License-Identifier: MIT
#include "DocumentFixture.h"

#include <panorel/Manager.h>

#include <QTemporaryFile>
#include <QtTest>

#include <unistd.h>

using namespace Panorel::Tests;

namespace {

// Qt's schema validator by itself prints to the standard error output and logs nothing, so what is
// written there is caught, below all C and C++ streams.
class ErrorOutput
{
public:
    explicit ErrorOutput(QTemporaryFile& file)
        : m_saved(::dup(STDERR_FILENO))
    {
        ::dup2(file.handle(), STDERR_FILENO);
    }
    ~ErrorOutput()
    {
        ::dup2(m_saved, STDERR_FILENO);
        ::close(m_saved);
    }
    ErrorOutput(const ErrorOutput&) = delete;
    ErrorOutput& operator=(const ErrorOutput&) = delete;

private:
    int m_saved;
};

} // namespace

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
