// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <QDir>
#include <QTranslator>
#include <QtTest>

using namespace Panorel::Tests;

/** What the build makes of the catalogues gives a program the same texts. */
class CompiledCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCatalogueIsCompiled();
    void givesEveryText_data();
    void givesEveryText();
};

void CompiledCatalogueTest::everyCatalogueIsCompiled()
{
    QStringList expected;
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages)
        expected.append(QStringLiteral("panorel_%1.qm").arg(language));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(QDir(QStringLiteral(COMPILED_CATALOGUE_DIR)).entryList(QDir::Files, QDir::Name),
             expected);
}

void CompiledCatalogueTest::givesEveryText_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void CompiledCatalogueTest::givesEveryText()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(compiledCatalogueFile(language)));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const Catalogue catalogue = Catalogue::read(catalogueFile(language));
    QVERIFY(!catalogue.messages().isEmpty());
    for (const Message& message : catalogue.messages()) {
        QCOMPARE(QCoreApplication::translate(message.context.toUtf8().constData(),
                                             message.source.toUtf8().constData()),
                 message.translation);
    }
}

QTEST_GUILESS_MAIN(CompiledCatalogueTest)
#include "CompiledCatalogueTest.moc"
