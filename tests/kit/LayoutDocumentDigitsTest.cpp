// SPDX-License-Identifier: MIT
#include "document/DocumentFixture.h"
#include "support/MessageWatch.h"

#include <panorel/kit/LayoutDocument.h>

#include <QTest>
#include <QTextCodec>

using namespace Panorel;
using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** Digits of states are distinguished from what looks like them, in each encoding. */
class LayoutDocumentDigitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void inEachPlace();
    void digits_data();
    void digits();

private:
    MessageWatch m_watch;
};

namespace {

// A document of one view with user data and, after it, one state.
QByteArray withUserData(const QByteArray& text)
{
    return document(group("G", view("a", state("w", "1a") + userData(text)), state("w", "2B")),
                    toolBarState("w", "3c"));
}

QByteArray declared(const QByteArray& encoding, const QByteArray& document)
{
    return "<?xml version=\"1.0\" encoding='" + encoding + "'?>" + document;
}

// In UTF-16 without a byte order mark.
QByteArray utf16(const QString& text, const char* codecName)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(codecName)->fromUnicode(text.constData(), text.size(), &state);
}

} // namespace

void LayoutDocumentDigitsTest::inEachPlace()
{
    const LayoutDocument document(
        Tests::document(group("G",
                              view("a", "<State DescriptorId=\"v\"/>" + state("w", "1a")) +
                                  view("b", state("w", "1b") + state("v", "1d")),
                              state("w", "2B")) +
                            group("H", "", state("w", "4F")),
                        toolBarState("w", "3c")));
    QVERIFY(document.isReadable());
    QCOMPARE(document.view("G"_s, "a"_s).states, (StateMap{{"w"_s, "1a"_hex}}));
    QCOMPARE(document.view("G"_s, "b"_s).states, (StateMap{{"w"_s, "1b"_hex}, {"v"_s, "1d"_hex}}));
    QCOMPARE(document.currentView("G"_s).states, (StateMap{{"w"_s, "2b"_hex}}));
    QCOMPARE(document.currentView("H"_s).states, (StateMap{{"w"_s, "4f"_hex}}));
    QCOMPARE(document.toolBarStates(), (StateMap{{"w"_s, "3c"_hex}}));
}

void LayoutDocumentDigitsTest::digits_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("userData");
    const QByteArray tags = "<State DescriptorId=\"x\">00ff</State>";
    const QString text = QString::fromLatin1(tags);
    const QByteArray umlaut = "\xC3\x84";
    QTest::newRow("user data of digits") << withUserData("00ff") << "00ff"_s;
    QTest::newRow("CDATA") << withUserData("<![CDATA[" + tags + "]]>") << text;
    QTest::newRow("comment") << "<!--" + tags + "-->" + withUserData("<!--" + tags + "-->") << ""_s;
    QTest::newRow("processing instruction") << withUserData("<?x " + tags + "?>") << ""_s;
    QTest::newRow("UTF-8") << withUserData(umlaut) << "\u00C4"_s;
    QTest::newRow("UTF-8, declared") << declared("utf-8", withUserData(umlaut)) << "\u00C4"_s;
    QTest::newRow("UTF-8, marked") << "\xEF\xBB\xBF" + withUserData(umlaut) << "\u00C4"_s;
    QTest::newRow("Latin 1") << declared("ISO-8859-1", withUserData("\xC4")) << "\u00C4"_s;

    // The second byte of the first character is a bracket, so the section seems to end there.
    QTest::newRow("Shift_JIS") << declared("Shift_JIS",
                                           withUserData("<![CDATA[\x81\x5D]>" + tags + "]]>"))
                               << QString("\u2010]>"_s + text);

    // Characters whose bytes are those of a state.
    const QByteArray bytes = "<State>00ff</State> ";
    for (const char* codec : {"UTF-16LE", "UTF-16BE"}) {
        const QString characters = QTextCodec::codecForName(codec)->toUnicode(bytes);
        QString all = QString::fromLatin1(withUserData("?"));
        all.replace(u'?', characters);
        QTest::newRow(codec) << utf16(all, codec) << characters;
        QTest::newRow(qPrintable(QLatin1String(codec) + " marked"_s))
            << utf16(QChar(QChar::ByteOrderMark) + all, codec) << characters;
    }

    // The reader makes an element of the entity, which is the first of the view then.
    const QByteArray entity = "<!DOCTYPE ViewData [<!ENTITY e '<State DescriptorId=\"w\"/>'>]>";
    QTest::newRow("entity with a tag")
        << entity + withUserData("x").replace("<View Name=\"a\">", "<View Name=\"a\">&e;") << "x"_s;
}

void LayoutDocumentDigitsTest::digits()
{
    QFETCH(QByteArray, document);
    const LayoutDocument read(document);
    QVERIFY(read.isReadable());
    QTEST(read.view("G"_s, "a"_s).userData, "userData");
    QCOMPARE(read.view("G"_s, "a"_s).states, (StateMap{{"w"_s, "1a"_hex}}));
    QCOMPARE(read.currentView("G"_s).states, (StateMap{{"w"_s, "2b"_hex}}));
    QCOMPARE(read.toolBarStates(), (StateMap{{"w"_s, "3c"_hex}}));
}

// Without the application object of a user interface: a document is a value.
QTEST_GUILESS_MAIN(LayoutDocumentDigitsTest)
#include "LayoutDocumentDigitsTest.moc"
