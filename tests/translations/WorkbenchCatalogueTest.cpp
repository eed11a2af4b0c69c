// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Panorel::Tests;

/** The workbench's own texts: as many languages as the library's, each complete. */
class WorkbenchCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void catalogue_data();
    void catalogue();

private:
    QTemporaryDir m_folder;
    QStringList m_sources;
};

void WorkbenchCatalogueTest::initTestCase()
{
    const QString file = m_folder.filePath(QStringLiteral("source.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE),
                  {QStringLiteral(EXAMPLES_DIR "/07-workbench"),
                   QStringLiteral(EXAMPLES_DIR "/editor-window"), QStringLiteral("-ts"), file});
    QVERIFY2(lupdate.waitForFinished(), qPrintable(lupdate.errorString()));
    const Catalogue source = Catalogue::read(file);
    for (const Message& message : source.messages())
        m_sources.append(message.key());
    m_sources.sort();
    QVERIFY(m_sources.size() > 30);
}

void WorkbenchCatalogueTest::catalogue_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = catalogueLanguages();
    QCOMPARE(languages.size(), 27);
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void WorkbenchCatalogueTest::catalogue()
{
    QFETCH(QString, language);
    const Catalogue catalogue =
        Catalogue::read(QStringLiteral(EXAMPLES_DIR "/translations/workbench_%1.ts").arg(language));
    QStringList keys;
    for (const Message& message : catalogue.messages()) {
        keys.append(message.key());
        QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.source));
        QCOMPARE(message.translation.count(QLatin1Char('&')),
                 message.source.count(QLatin1Char('&')));
    }
    keys.sort();
    QCOMPARE(keys, m_sources);
}

QTEST_GUILESS_MAIN(WorkbenchCatalogueTest)
#include "WorkbenchCatalogueTest.moc"
