// SPDX-License-Identifier: MIT
#include "Catalogue.h"

#include <QKeySequence>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using namespace Panorel::Tests;

namespace {

// The one Latin that is in every language: mnemonics such as "(&N)" and the pattern of view files.
QString withoutLatinParts(QString text)
{
    static const QRegularExpression latin(QStringLiteral("\\(&[A-Z]\\)|\\*\\.views"));
    return text.remove(latin);
}

QVector<QChar::Script> scriptsOf(const QString& language)
{
    static const QHash<QString, QVector<QChar::Script>> notLatin{
        {QStringLiteral("ar"), {QChar::Script_Arabic}},
        {QStringLiteral("el"), {QChar::Script_Greek}},
        {QStringLiteral("he"), {QChar::Script_Hebrew}},
        {QStringLiteral("ja"), {QChar::Script_Han, QChar::Script_Hiragana, QChar::Script_Katakana}},
        {QStringLiteral("ko"), {QChar::Script_Hangul}},
        {QStringLiteral("ru"), {QChar::Script_Cyrillic}},
        {QStringLiteral("uk"), {QChar::Script_Cyrillic}},
        {QStringLiteral("zh_CN"), {QChar::Script_Han}},
        {QStringLiteral("zh_TW"), {QChar::Script_Han}},
    };
    return notLatin.value(language, {QChar::Script_Latin});
}

// How a language's word for "layout" is recognised, whatever its ending.
QRegularExpression layoutWord(const QString& language)
{
    static const QHash<QString, QString> stems{
        {QStringLiteral("ar"), QStringLiteral("تخطيط")},
        {QStringLiteral("ca"), QStringLiteral("disposici")},
        {QStringLiteral("cs"), QStringLiteral("rozložení")},
        {QStringLiteral("da"), QStringLiteral("layout")},
        {QStringLiteral("de"), QStringLiteral("fensterlayout")},
        {QStringLiteral("el"), QStringLiteral("διάταξ|διατάξ")},
        {QStringLiteral("es"), QStringLiteral("disposici")},
        {QStringLiteral("fi"), QStringLiteral("asettelu")},
        {QStringLiteral("fr"), QStringLiteral("disposition")},
        {QStringLiteral("he"), QStringLiteral("פריס")},
        {QStringLiteral("hu"), QStringLiteral("elrendezés")},
        {QStringLiteral("it"), QStringLiteral("layout")},
        {QStringLiteral("ja"), QStringLiteral("レイアウト")},
        {QStringLiteral("ko"), QStringLiteral("레이아웃")},
        {QStringLiteral("nb"), QStringLiteral("oppsett")},
        {QStringLiteral("nl"), QStringLiteral("indeling")},
        {QStringLiteral("pl"), QStringLiteral("układ")},
        {QStringLiteral("pt"), QStringLiteral("disposiç")},
        {QStringLiteral("pt_BR"), QStringLiteral("layout")},
        {QStringLiteral("ro"), QStringLiteral("aranjament")},
        {QStringLiteral("ru"), QStringLiteral("компонов")},
        {QStringLiteral("sk"), QStringLiteral("rozložen")},
        {QStringLiteral("sv"), QStringLiteral("layout")},
        {QStringLiteral("tr"), QStringLiteral("yerleşim")},
        {QStringLiteral("uk"), QStringLiteral("компонуван")},
        {QStringLiteral("zh_CN"), QStringLiteral("布局")},
        {QStringLiteral("zh_TW"), QStringLiteral("版面配置")},
    };
    // A language without an entry matches nothing.
    const QString stem = stems.value(language, QStringLiteral("(?!)"));
    return QRegularExpression(stem, QRegularExpression::CaseInsensitiveOption);
}

// Whether the English text, or what it means, is about layouts.
bool saysLayout(const QString& source)
{
    return source.contains(QLatin1String("layout"), Qt::CaseInsensitive) ||
           source.startsWith(QLatin1String("View File"));
}

// The patterns of a file filter, whose words may be anything without a parenthesis.
QStringList filterPatterns(const QString& filter)
{
    static const QRegularExpression entry(QStringLiteral("^[^()*;]*[^()*; ] \\(([^()]*)\\)$"));
    QStringList patterns;
    const QStringList entries = filter.split(QStringLiteral(";;"));
    for (const QString& text : entries)
        patterns.append(entry.match(text).captured(1));
    return patterns;
}

QStringList placeholders(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral("%(L?[0-9]+|n)"));
    QStringList found;
    for (auto it = placeholder.globalMatch(text); it.hasNext();)
        found.append(it.next().captured());
    found.sort();
    return found;
}

bool isLetterMnemonic(const QKeySequence& mnemonic)
{
    const uint key = static_cast<uint>(mnemonic[0]) & ~static_cast<uint>(Qt::ALT);
    return QChar::isLetter(key);
}

} // namespace

/** Every catalogue is complete and has what a program relies on in the texts. */
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sourceTexts();
    void languages();
    void hasEveryText_data() { addLanguages(); }
    void hasEveryText();
    void declaresItsLanguage_data() { addLanguages(); }
    void declaresItsLanguage();
    void isTranslated_data() { addMessages(); }
    void isTranslated();
    void hasNoBlanksAtItsEnds_data() { addMessages(); }
    void hasNoBlanksAtItsEnds();
    void keepsPlaceholders_data() { addMessages(); }
    void keepsPlaceholders();
    void keepsEnding_data() { addMessages(); }
    void keepsEnding();
    void keepsMnemonic_data() { addMessages(); }
    void keepsMnemonic();
    void saysAndInWords_data() { addLanguages(); }
    void saysAndInWords();
    void hasOneWordForLayout_data() { addMessages(); }
    void hasOneWordForLayout();
    void keepsFileFilter_data() { addLanguages(); }
    void keepsFileFilter();
    void usesItsScript_data() { addMessages(); }
    void usesItsScript();
    void usesItsChineseCharacters_data();
    void usesItsChineseCharacters();

private:
    static void addLanguages();
    static void addMessages();

    QTemporaryDir m_folder;
    /** What lupdate finds in the source now. */
    Catalogue m_source;
};

void CatalogueTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void CatalogueTest::addMessages()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages) {
        const Catalogue catalogue = Catalogue::read(catalogueFile(language));
        for (const Message& message : catalogue.messages()) {
            QTest::newRow(qPrintable(language + QLatin1Char(' ') + message.source))
                << language << message.source << message.translation;
        }
    }
}

void CatalogueTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const QString file = m_folder.filePath(QStringLiteral("source.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE), {QStringLiteral("-I"), QStringLiteral(INCLUDE_DIR),
                                            QStringLiteral(UI_DIR), QStringLiteral("-ts"), file});
    QVERIFY2(lupdate.waitForFinished(), qPrintable(lupdate.errorString()));
    QCOMPARE(lupdate.exitStatus(), QProcess::NormalExit);
    QCOMPARE(lupdate.exitCode(), 0);
    m_source = Catalogue::read(file);
}

void CatalogueTest::sourceTexts()
{
    const QStringList expected{
        QStringLiteral("Panorel::Menu/Layouts"),
        QStringLiteral("Panorel::Menu/Save Current Layout As..."),
        QStringLiteral("Panorel::Menu/Delete Layout..."),
        QStringLiteral("Panorel::Menu/Export ..."),
        QStringLiteral("Panorel::Menu/Import ..."),
        QStringLiteral("Panorel::Menu/Import & Merge ..."),
        QStringLiteral("Panorel::Menu/Reset Layout to Program Start"),
        QStringLiteral("Panorel::Menu/Reset Layout to Factory Default"),
        QStringLiteral("Panorel::Menu/Save Layouts"),
        QStringLiteral("Panorel::Menu/View File (*.views);;All Files (*.*)"),
        QStringLiteral("Panorel::Menu/Load Layouts"),
        QStringLiteral("Panorel::NameDialog/Save Layout"),
        QStringLiteral("Panorel::NameDialog/&Name of the layout:"),
        QStringLiteral("Panorel::NameDialog/Name must not be empty!"),
        QStringLiteral("Panorel::NameDialog/Name already in use!"),
    };
    QStringList found;
    for (const Message& message : m_source.messages())
        found.append(message.key());
    QCOMPARE(found, expected);
}

void CatalogueTest::languages()
{
    const QStringList promised{
        QStringLiteral("ar"),    QStringLiteral("cs"),    QStringLiteral("da"),
        QStringLiteral("de"),    QStringLiteral("el"),    QStringLiteral("es"),
        QStringLiteral("fi"),    QStringLiteral("fr"),    QStringLiteral("he"),
        QStringLiteral("hu"),    QStringLiteral("it"),    QStringLiteral("ja"),
        QStringLiteral("ko"),    QStringLiteral("nb"),    QStringLiteral("nl"),
        QStringLiteral("pl"),    QStringLiteral("pt_BR"), QStringLiteral("ru"),
        QStringLiteral("sv"),    QStringLiteral("tr"),    QStringLiteral("uk"),
        QStringLiteral("zh_CN"), QStringLiteral("zh_TW")};
    const QStringList languages = catalogueLanguages();
    for (const QString& language : promised)
        QVERIFY2(languages.contains(language), qPrintable(language));
}

void CatalogueTest::hasEveryText()
{
    QFETCH(QString, language);
    QStringList expected;
    for (const Message& message : m_source.messages())
        expected.append(message.key() + QLatin1String(" is finished"));
    QStringList found;
    const Catalogue catalogue = Catalogue::read(catalogueFile(language));
    for (const Message& message : catalogue.messages()) {
        const QString state = message.state.isEmpty() ? QStringLiteral("finished") : message.state;
        found.append(message.key() + QLatin1String(" is ") + state);
    }
    QCOMPARE(found, expected);
}

void CatalogueTest::declaresItsLanguage()
{
    QFETCH(QString, language);
    const QString declared = Catalogue::read(catalogueFile(language)).language();
    // A bare "pt" would be Brazil's to Qt.
    const QString expected = language == QLatin1String("pt") ? QStringLiteral("pt_PT") : language;
    QCOMPARE(declared, QLocale(expected).name());
}

void CatalogueTest::isTranslated()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QVERIFY(!translation.isEmpty());
    QVERIFY(translation.compare(source, Qt::CaseInsensitive) != 0);
}

void CatalogueTest::hasNoBlanksAtItsEnds()
{
    QFETCH(QString, translation);
    QCOMPARE(translation, translation.trimmed());
}

void CatalogueTest::keepsPlaceholders()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QCOMPARE(placeholders(translation), placeholders(source));
}

// Three full stops, with a blank before them where the source has one; a colon may be a wide one.
void CatalogueTest::keepsEnding()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    static const QRegularExpression ending(QStringLiteral("( ?\\.\\.\\.|:|：)$"));
    const QString found = ending.match(translation).captured();
    QCOMPARE(found == QStringLiteral("：") ? QStringLiteral(":") : found,
             ending.match(source).captured());
    QVERIFY(!translation.contains(QChar(0x2026)));
}

// An "&" is a mnemonic, with a letter that each language chooses, and nothing else.
void CatalogueTest::keepsMnemonic()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    const bool hasMnemonic = isLetterMnemonic(QKeySequence::mnemonic(source));
    QCOMPARE(isLetterMnemonic(QKeySequence::mnemonic(translation)), hasMnemonic);
    QCOMPARE(translation.count(QLatin1Char('&')), hasMnemonic ? 1 : 0);
    QVERIFY(!translation.contains(QLatin1Char('_')));
}

// Qt would show the "&" of the English text as an underlined blank.
void CatalogueTest::saysAndInWords()
{
    QFETCH(QString, language);
    const QString context = QStringLiteral("Panorel::Menu");
    const Catalogue catalogue = Catalogue::read(catalogueFile(language));
    const QString import = catalogue.translation(context, QStringLiteral("Import ...")).chopped(4);
    const QString merge = catalogue.translation(context, QStringLiteral("Import & Merge ..."));
    QVERIFY2(merge.startsWith(import), qPrintable(merge));
    QVERIFY(merge.chopped(4).size() > import.size() + 1);
}

void CatalogueTest::hasOneWordForLayout()
{
    QFETCH(QString, language);
    QFETCH(QString, source);
    QFETCH(QString, translation);
    // Japanese says "back to the initial settings", and no more.
    if (language == QLatin1String("ja") && source.startsWith(QLatin1String("Reset")))
        QVERIFY(!translation.contains(layoutWord(language)));
    else
        QCOMPARE(translation.contains(layoutWord(language)), saysLayout(source));
}

void CatalogueTest::keepsFileFilter()
{
    QFETCH(QString, language);
    const QString filter = Catalogue::read(catalogueFile(language))
                               .translation(QStringLiteral("Panorel::Menu"),
                                            QStringLiteral("View File (*.views);;All Files (*.*)"));
    QCOMPARE(filterPatterns(filter),
             QStringList({QStringLiteral("*.views"), QStringLiteral("*.*")}));
}

void CatalogueTest::usesItsScript()
{
    QFETCH(QString, language);
    QFETCH(QString, translation);
    const QVector<QChar::Script> scripts = scriptsOf(language);
    int letters = 0;
    const QString text = withoutLatinParts(translation);
    for (const QChar character : text) {
        // Script_Common: the mark that lengthens a vowel in Japanese is a letter of no script.
        if (!character.isLetter() || character.script() == QChar::Script_Common)
            continue;
        ++letters;
        QVERIFY2(scripts.contains(character.script()), qPrintable(QString(character)));
    }
    QVERIFY(letters > 0);
}

void CatalogueTest::usesItsChineseCharacters_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("codec");
    // A Qt without ICU knows fewer.
    if (QTextCodec::codecForName("HZ-GB-2312"))
        QTest::newRow("simplified") << QStringLiteral("zh_CN") << QByteArray("HZ-GB-2312");
    QTest::newRow("traditional") << QStringLiteral("zh_TW") << QByteArray("Big5");
}

// The two old character sets have hardly a character of the other way of writing.
void CatalogueTest::usesItsChineseCharacters()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, codec);
    const QTextCodec* const characters = QTextCodec::codecForName(codec);
    QVERIFY(characters);
    const Catalogue catalogue = Catalogue::read(catalogueFile(language));
    for (const Message& message : catalogue.messages())
        QVERIFY2(characters->canEncode(message.translation), qPrintable(message.translation));
}

QTEST_GUILESS_MAIN(CatalogueTest)
#include "CatalogueTest.moc"
