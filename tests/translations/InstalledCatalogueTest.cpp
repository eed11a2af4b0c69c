// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Panorel::Tests;

/** A program that does nothing for it shows the user's language, once the library is installed. */
class InstalledCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void title_data();
    void title();
    void entries_data();
    void entries();

private:
    void runProgram(const QString& languages, const QString& locale, QStringList& lines);

    /** Without any catalogues, for those of a system must not help. */
    QTemporaryDir m_emptyFolder;
};

void InstalledCatalogueTest::initTestCase()
{
    QVERIFY(m_emptyFolder.isValid());
}

void InstalledCatalogueTest::runProgram(const QString& languages, const QString& locale,
                                        QStringList& lines)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), languages);
    environment.insert(QStringLiteral("LC_ALL"), locale);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_emptyFolder.path());
    environment.insert(QStringLiteral("XDG_DATA_DIRS"), m_emptyFolder.path());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(SHOW_MENU), QStringList());
    QVERIFY2(program.waitForFinished(), qPrintable(program.errorString()));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    lines = QString::fromUtf8(program.readAllStandardOutput())
                .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(!lines.isEmpty());
}

void InstalledCatalogueTest::title_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("title");
    const QString neutral = QStringLiteral("C.UTF-8");
    const QString english = QStringLiteral("Layouts");
    const QString german = QStringLiteral("Fensterlayouts");

    QTest::newRow("German") << QStringLiteral("de") << neutral << german;
    QTest::newRow("German of Austria") << QStringLiteral("de_AT") << neutral << german;
    QTest::newRow("German by the locale") << QString() << QStringLiteral("de_DE.UTF-8") << german;
    QTest::newRow("German after one without a catalogue")
        << QStringLiteral("is:de") << neutral << german;
    QTest::newRow("Chinese of Taiwan")
        << QStringLiteral("zh_TW") << neutral << QStringLiteral("版面配置");
    QTest::newRow("Chinese of China")
        << QStringLiteral("zh_CN") << neutral << QStringLiteral("布局");
    QTest::newRow("Portuguese of Brazil")
        << QStringLiteral("pt_BR") << neutral << QStringLiteral("Layouts de janela");
    QTest::newRow("Portuguese of Brazil by the locale")
        << QString() << QStringLiteral("pt_BR.UTF-8") << QStringLiteral("Layouts de janela");
    QTest::newRow("Portuguese of Portugal")
        << QStringLiteral("pt_PT") << neutral << QStringLiteral("Disposições");
    QTest::newRow("Arabic") << QStringLiteral("ar") << neutral << QStringLiteral("التخطيطات");
    QTest::newRow("English") << QStringLiteral("en") << neutral << english;
    QTest::newRow("English before German") << QStringLiteral("en_GB:de") << neutral << english;
    QTest::newRow("no language") << QString() << neutral << english;
}

void InstalledCatalogueTest::title()
{
    QFETCH(QString, languages);
    QFETCH(QString, locale);
    QStringList lines;
    runProgram(languages, locale, lines);
    if (!QTest::currentTestFailed())
        QTEST(lines.first(), "title");
}

void InstalledCatalogueTest::entries_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void InstalledCatalogueTest::entries()
{
    QFETCH(QString, language);
    const QStringList sources{
        QStringLiteral("Layouts"),
        QStringLiteral("Save Current Layout As..."),
        QStringLiteral("Delete Layout..."),
        QStringLiteral("Export ..."),
        QStringLiteral("Import ..."),
        QStringLiteral("Import & Merge ..."),
        QStringLiteral("Reset Layout to Program Start"),
        QStringLiteral("Reset Layout to Factory Default"),
    };
    const Catalogue catalogue = Catalogue::read(catalogueFile(language));
    QStringList expected;
    for (const QString& source : sources)
        expected.append(catalogue.translation(QStringLiteral("Panorel::Menu"), source));
    QStringList lines;
    // Named in full, because Qt takes a bare "pt" for Brazil's.
    runProgram(catalogue.language(), QStringLiteral("C.UTF-8"), lines);
    if (!QTest::currentTestFailed())
        QCOMPARE(lines, expected);
}

QTEST_GUILESS_MAIN(InstalledCatalogueTest)
#include "InstalledCatalogueTest.moc"
