// SPDX-License-Identifier: MIT
#include "MarkupScan.h"

#include <QTest>

#include <algorithm>
#include <memory>

using Panorel::Detail::MarkupScan;

class MarkupScanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void result_data();
    void result();
    void hints_data();
    void hints();
    void isLinear_data();
    void isLinear();
};

namespace {

const QByteArray xsi = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";

// A document with something before the root, in the root's tag, and inside it.
QByteArray root(const QByteArray& attributes, const QByteArray& content = {},
                const QByteArray& before = {})
{
    return before + "<ViewData" + attributes + '>' + content + "</ViewData>";
}

void row(const char* name, const QByteArray& document, char expected)
{
    QTest::newRow(name) << document << expected;
}

QByteArray nested(int levels)
{
    return QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels);
}

// The results as letters, so that a row stays a line.
char letterOf(MarkupScan::Result result)
{
    switch (result) {
    case MarkupScan::Result::Harmless:
        return 'H';
    case MarkupScan::Result::Invalid:
        return 'I';
    case MarkupScan::Result::Unclear:
        break;
    }
    return 'U';
}

void addRootRows()
{
    row("nothing", "", 'H');
    row("the root", "<ViewData/>", 'H');
    row("byte order mark", "\xEF\xBB\xBF<ViewData/>", 'H');
    row("another root", "<a/>", 'H');
    row("six levels under another root", nested(6), 'H');
    row("seven levels under another root", nested(7), 'I');
    row("another root with a type", "<a" + xsi + " xsi:type='state'/>", 'H');
    row("a root in a namespace", root(" xmlns='u'"), 'H');
    row("a root out of a namespace", root(" xmlns=''"), 'H');
    row("a root with a prefix", "<p:ViewData xmlns:p='u'/>", 'H');
    row("a root whose type may be hidden", "<a xmlns:b='&#104;ttp'/>", 'U');
}

void addLevelRows()
{
    row("six levels", root("", nested(5)), 'H');
    row("seven levels", root("", nested(6)), 'I');
    row("the seventh level closed at once", root("", "<a><a><a><a><a><a/></a></a></a></a></a>"),
        'I');
    row("six levels again and again", root("", nested(5).repeated(3)), 'H');
    row("elements closed at once", root("", QByteArray("<a/>").repeated(9)), 'H');
    row("seven levels in a comment", root("", "<!--" + nested(6) + "-->"), 'H');
    row("seven levels in CDATA", root("", "<![CDATA[" + nested(6) + "]]>"), 'H');
    row("seven levels in an instruction", root("", "<?a" + nested(6) + "?>"), 'H');
    const QByteArray anything =
        "<a" + xsi + " xsi:type=' x:anyType '" + " xmlns:x='http://www.w3.org/2001/XMLSchema'>";
    row("1,000 levels of anything", anything + nested(999) + "</a>", 'H');
    row("1,001 levels of anything", anything + nested(1000) + "</a>", 'I');
    row("the declared root is not anything",
        root(xsi + " xmlns:x='u' xsi:type='x:anyType'", nested(6)), 'I');
}

void addAttributeRows()
{
    row("six attributes", root(" b='' c='' d='' e='' f='' g=''"), 'H');
    row("seven", root(" b='' c='' d='' e='' f='' g='' h=''"), 'I');
    row("seven, blanks around the signs", root(" b = '' c= '' d =''\ne='' f='' g='' h=''"), 'I');
    row("seven, double quotes", root(" b=\"\" c=\"\" d=\"\" e=\"\" f=\"\" g=\"\" h=\"\""), 'I');
    row("seven in an inner element", root("", "<a b='' c='' d='' e='' f='' g='' h=''/>"), 'I');
    row("seven after a comment", root(" b='' c='' d='' e='' f='' g='' h=''", "", "<!-- > -->"),
        'I');
    row("seven after an empty comment", root("", "<!----><a b='' c='' d='' e='' f='' g='' h=''/>"),
        'I');
    row("seven after an end of a tag in a value", root(" b='>' c='' d='' e='' f='' g='' h=''"),
        'I');
    row("six and three in two tags", root(" b='' c='' d='' e='' f='' g=''", "<a b='' c='' d=''/>"),
        'H');
    row("six and namespaces",
        root(" xmlns='' b='' c='' xmlns:y = 'u' d='' e='' f='' g='' xmlns:z='u'"), 'H');
    row("seven and namespaces", root(" xmlns:y='u' b='' c='' d='' e='' f='' g='' h=''"), 'I');
    row("seven, the first almost a namespace", root(" xmlnsy='u' b='' c='' d='' e='' f='' g=''"),
        'I');
    row("seven after a document type",
        root(" b='' c='' d='' e='' f='' g='' h=''", "", "<!DOCTYPE a>"), 'I');
    row("seven after declarations",
        root(" b='' c='' d='' e='' f='' g='' h=''", "", "<!DOCTYPE a [<!ENTITY b 'c'>]>"), 'I');
    row("seven under a namespace with a reference",
        root(" xmlns:x='&amp;'", "<a b='' c='' d='' e='' f='' g='' h=''/>"), 'I');
    row("seven at anything",
        "<a" + xsi +
            " xmlns:x='u' xsi:type='x:anyType' b='' c='' d='' e='' "
            "f='' g='' h=''/>",
        'H');
    row("signs in a value", root(" b='========' c=\"========\""), 'H');
    row("signs in text", root("", "========="), 'H');
    row("other quotes in a value", root(" b='\"' c='' d=\"'\" e='' f='' g='' h=''"), 'I');
    row("no value", root(" b"), 'I');
    row("no quotes", root(" b=c"), 'I');
    row("value that does not end", "<ViewData b='", 'I');
    row("tag that does not end", "<ViewData b=''", 'H');
    row("only a bracket", "<", 'H');
    row("only the start of a comment", "<ViewData><!-", 'H');
}

void addTypeRows()
{
    const QByteArray xs = " xmlns:xs='u'";
    row("no prefix", root(xsi + " xsi:type='state'"), 'H');
    row("declared", root(xsi + xs + " xsi:type='xs:string'"), 'H');
    row("declared after it", root(" xsi:type=' xs:string '" + xsi + xs), 'H');
    row("declared by the parent", root(xsi + xs, "<a xsi:type='xs:string'/>"), 'H');
    row("not declared", root(xsi + " xsi:type='y:string'"), 'I');
    row("declared by a sibling", root(xsi, "<a xmlns:y='u'/><a xsi:type='y:string'/>"), 'I');
    row("declared by a sibling with an end tag",
        root(xsi, "<a xmlns:y='u'></a><a xsi:type='y:string'/>"), 'I');
    row("declared and used by a sibling",
        root(xsi, "<a xmlns:y='u' xsi:type='y:s'/><a xsi:type='y:s'/>"), 'I');
    row("the instance namespace hidden by a sibling",
        root(xsi, "<a xmlns:xsi='v' xsi:type='y:s'/><a xsi:type='y:s'/>"), 'I');
    row("declared by a child", root(xsi, "<a xsi:type='y:string'><a xmlns:y='u'/></a>"), 'I');
    row("hidden and declared again", root(xsi + xs, "<a xmlns:xs='v'/><a xsi:type='xs:string'/>"),
        'H');
    row("another prefix for the instance namespace",
        root(" xmlns:i='http://www.w3.org/2001/XMLSchema-instance'", "<a i:type='y:s'/>"), 'I');
    row("the prefix of the instance namespace hidden",
        root(xsi, "<a xmlns:xsi='u' xsi:type='y:string'/>"), 'H');
    row("after the prefix was hidden", root(xsi, "<a xmlns:xsi='u'/><a xsi:type='y:string'/>"),
        'I');
    row("a type in no namespace", root(xsi + " type='y:string'"), 'H');
    row("in a comment", root(xsi, "<!-- <a xsi:type='y:string'> -->"), 'H');
    row("a reference in the type", root(xsi + " xsi:type='&#121;:string'"), 'U');
    row("a letter beyond ASCII in the type", root(xsi + " xsi:type='\xC2\xA0y:string'"), 'U');
    row("a reference in a namespace", root(" xmlns:x='&#104;ttp'"), 'U');
}

void addDocumentTypeRows()
{
    const auto type = [](const char* name, const QByteArray& documentType, char expected) {
        row(name, root("", "", documentType), expected);
    };
    type("document type", "<!DOCTYPE ViewData>", 'H');
    type("external", "<!DOCTYPE ViewData SYSTEM 'x%>['>", 'H');
    type("public", "<!DOCTYPE ViewData PUBLIC \"a\" '>'>", 'H');
    type("empty subset", "<!DOCTYPE ViewData []>", 'H');
    type("blank after the subset", "<!DOCTYPE ViewData [ ] >", 'H');
    type("entity of text", "<!DOCTYPE ViewData [<!ENTITY a \"b>&c;\">]>", 'H');
    type("entity of a tag", "<!DOCTYPE ViewData [<!ENTITY a '<b/>'>]>", 'U');
    type("entity of a character reference", "<!DOCTYPE ViewData [<!ENTITY a '&#60;b/>'>]>", 'U');
    type("external entity", "<!DOCTYPE ViewData [<!ENTITY a SYSTEM 'x'>]>", 'H');
    type("parameter entity", "<!DOCTYPE ViewData [<!ENTITY % a 'b'>]>", 'U');
    type("reference to one", "<!DOCTYPE ViewData [%a;]>", 'U');
    type("reference within an entity", "<!DOCTYPE ViewData [<!ENTITY a '%b;'>]>", 'U');
    type("default attribute", "<!DOCTYPE ViewData [<!ATTLIST a b CDATA 'c'>]>", 'H');
    type("default attribute in a namespace", "<!DOCTYPE ViewData [<!ATTLIST a b:c CDATA ''>]>",
         'U');
    type("default namespace", "<!DOCTYPE ViewData [<!ATTLIST a xmlns CDATA 'c'>]>", 'U');
    type("comment", "<!DOCTYPE ViewData [<!-- % ' ]> <!ATTLIST a:b> -->]>", 'H');
    type("instruction", "<!DOCTYPE ViewData [<?a % ' ]> ?>]>", 'H');
    type("element and notation",
         "<!DOCTYPE ViewData [<!ELEMENT a:b ANY> <!NOTATION c SYSTEM '>'>]>", 'H');
    row("a fault after declarations", root("", nested(6), "<!DOCTYPE a [<!ENTITY b 'c'> ] >"), 'I');
}

} // namespace

void MarkupScanTest::result_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<char>("expected");
    addRootRows();
    addLevelRows();
    addAttributeRows();
    addTypeRows();
    addDocumentTypeRows();
}

void MarkupScanTest::result()
{
    QFETCH(QByteArray, document);
    QFETCH(char, expected);
    QCOMPARE(letterOf(MarkupScan(document).result()), expected);
    // With nothing after it, where AddressSanitizer notices a look.
    const auto bytes = std::make_unique<char[]>(static_cast<std::size_t>(document.size()));
    std::copy(document.cbegin(), document.cend(), bytes.get());
    const QByteArray raw = QByteArray::fromRawData(bytes.get(), document.size());
    QCOMPARE(letterOf(MarkupScan(raw).result()), expected);
}

void MarkupScanTest::hints_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("expected");
    const auto hint = [](const char* name, const QByteArray& attributes,
                         const QByteArray& expected) {
        QTest::newRow(name) << root(xsi + attributes)
                            << (expected.isNull() ? expected : root(xsi + expected));
    };
    hint("none", " a='b'", " a='b'");
    hint("no namespace", " xsi:noNamespaceSchemaLocation='a'", QByteArray(34, ' '));
    hint("namespaces", " xsi:schemaLocation=\"a\nb\"", QByteArray(25, ' '));
    hint("between others", " a='' xsi:schemaLocation='' b=''", " a=''                       b=''");
    hint("blanks around the sign", " xsi:schemaLocation = ''", QByteArray(24, ' '));
    hint("in no namespace", " schemaLocation='a'", " schemaLocation='a'");
    // What blanks might hide is left to Qt's reader.
    hint("both", " xsi:schemaLocation='' xsi:noNamespaceSchemaLocation=''", {});
    hint("twice", " xsi:schemaLocation='' xsi:schemaLocation=''", {});
    hint("a reference", " xsi:schemaLocation='&a;'", {});
    hint("a bracket", " xsi:schemaLocation='<'", {});
    hint("a letter beyond ASCII", " xsi:schemaLocation='\xC3\xA9'", {});
    hint("a control character", " xsi:schemaLocation='\x01'", {});
    hint("no blank before it", "xsi:schemaLocation=''", {});
    hint("no blank after it", " xsi:schemaLocation=''a=''", {});
    QTest::newRow("in several elements")
        << root(xsi, "<a xsi:schemaLocation=''/><b xsi:schemaLocation='x'></b>")
        << root(xsi, "<a                      /><b                       ></b>");
}

void MarkupScanTest::hints()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, expected);
    const MarkupScan scan(document);
    if (expected.isNull()) {
        QCOMPARE(letterOf(scan.result()), 'U');
        return;
    }
    QCOMPARE(letterOf(scan.result()), 'H');
    QCOMPARE(scan.hasSchemaHints(), document != expected);
    QCOMPARE(scan.withoutSchemaHints(), expected);
}

void MarkupScanTest::isLinear_data()
{
    QTest::addColumn<QByteArray>("document");
    const int size = 4'000'000;
    QTest::newRow("signs after a long name")
        << "<a " + QByteArray(size, 'x') + QByteArray(size, '=');
    QTest::newRow("signs and blanks") << "<a " + QByteArray("= ").repeated(size / 2);
    QTest::newRow("attributes") << "<ViewData" + QByteArray(" a=''").repeated(size / 5) + '>';
    QTest::newRow("namespaces") << "<ViewData" + QByteArray(" xmlns:a='b'").repeated(size / 12) +
                                       '>';
    QTest::newRow("comments that do not end") << QByteArray("<!--").repeated(size / 4);
    QTest::newRow("dashes") << "<!--" + QByteArray(size, '-');
    QTest::newRow("brackets") << QByteArray(size, '<');
    QTest::newRow("declarations") << "<!DOCTYPE a [" + QByteArray("<!a 'b'>").repeated(size / 8);
    QTest::newRow("literals in a declaration") << "<!DOCTYPE a [<!b " + QByteArray(size, '\'');
}

// What takes a blink when it is linear does not end within the time limit of the tests otherwise.
void MarkupScanTest::isLinear()
{
    QFETCH(QByteArray, document);
    const MarkupScan scan(document);
    QVERIFY(!scan.hasSchemaHints());
}

QTEST_APPLESS_MAIN(MarkupScanTest)
#include "MarkupScanTest.moc"
