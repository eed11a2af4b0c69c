// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

using namespace Panorel::Tests;

namespace {

QString kitCatalogueFile(const QString& language)
{
    return QStringLiteral(CATALOGUE_DIR "/panorelkit_%1.ts").arg(language);
}

// "%1", command line options and the like, which are the same in every language.
QStringList fixedParts(const QString& text)
{
    static const QRegularExpression fixed(
        QStringLiteral("%[0-9]|--[a-z-]+|ViewData|PNG|SVG|\"panorel"));
    QStringList parts;
    auto matches = fixed.globalMatch(text);
    while (matches.hasNext())
        parts.append(matches.next().captured());
    std::sort(parts.begin(), parts.end());
    return parts;
}

// The letters to press with Alt, in upper case.
QString mnemonics(const QString& text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&([^& ])"));
    QString letters;
    auto matches = mnemonic.globalMatch(text);
    while (matches.hasNext())
        letters.append(matches.next().captured(1).toUpper());
    return letters;
}

// The menu or dialog that shows texts of the context; those that share one are listed here.
QString placeOf(const QString& context)
{
    static const QHash<QString, QString> shared{
        {QStringLiteral("Cycle"), QStringLiteral("menu")},
        {QStringLiteral("GroupMenu"), QStringLiteral("menu")},
        {QStringLiteral("KitEntries"), QStringLiteral("menu")},
        {QStringLiteral("Lock"), QStringLiteral("menu")},
        {QStringLiteral("Slots"), QStringLiteral("menu")},
        {QStringLiteral("DetailsPane"), QStringLiteral("dialog")},
        {QStringLiteral("LayoutsDialog"), QStringLiteral("dialog")}};
    const QString name = context.section(QStringLiteral("::"), -1);
    return shared.value(name, name);
}

} // namespace

/** The catalogues of Panorel Kit and the command: as many languages as the main library's, each
    complete, with letters for Alt that differ within a menu or dialog. */
class KitCatalogueTest : public QObject
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

void KitCatalogueTest::initTestCase()
{
    const QString file = m_folder.filePath(QStringLiteral("source.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE), {QStringLiteral("-I"), QStringLiteral(INCLUDE_DIR),
                                            QStringLiteral(KIT_DIR), QStringLiteral(PLUGIN_DIR),
                                            QStringLiteral(TOOL_DIR), QStringLiteral("-ts"), file});
    QVERIFY2(lupdate.waitForFinished(), qPrintable(lupdate.errorString()));
    const Catalogue source = Catalogue::read(file);
    for (const Message& message : source.messages())
        m_sources.append(message.key());
    m_sources.sort();
    QVERIFY(m_sources.size() > 100);
}

void KitCatalogueTest::catalogue_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = catalogueLanguages();
    QCOMPARE(languages.size(), 27);
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void KitCatalogueTest::catalogue()
{
    QFETCH(QString, language);
    const Catalogue catalogue = Catalogue::read(kitCatalogueFile(language));
    QStringList keys;
    QHash<QString, QString> letters;
    for (const Message& message : catalogue.messages()) {
        keys.append(message.key());
        const QByteArray where = message.source.toUtf8();
        QVERIFY2(message.state.isEmpty(), where.constData());
        QVERIFY2(!message.translation.trimmed().isEmpty(), where.constData());
        QVERIFY2(fixedParts(message.translation) == fixedParts(message.source), where.constData());
        const QString letter = mnemonics(message.translation);
        QCOMPARE(letter.size(), mnemonics(message.source).size());
        QVERIFY2(letter.isEmpty() || !letters[placeOf(message.context)].contains(letter),
                 where.constData());
        letters[placeOf(message.context)] += letter;
    }
    keys.sort();
    QCOMPARE(keys, m_sources);
}

QTEST_GUILESS_MAIN(KitCatalogueTest)
#include "KitCatalogueTest.moc"
