// SPDX-License-Identifier: MIT
#include "DocumentJudge.h"

#include <QTextCodec>

using namespace Panorel::Tests;

namespace {

enum Expected { Refused, Accepted };

void row(const char* name, Expected expected, const QByteArray& data)
{
    QTest::newRow(name) << data << (expected == Accepted);
}

QByteArray named(const QByteArray& viewName)
{
    return document(group("A", view(viewName)));
}

QByteArray noted(const QByteArray& text)
{
    return document(group("A", view("v", userData(text))));
}

QByteArray declaration(const QByteArray& encoding)
{
    return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>";
}

QByteArray encoded(const char* codec, const QByteArray& utf8, const QByteArray& byteOrderMark = {})
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString unicode = QString::fromUtf8(utf8);
    return byteOrderMark + QTextCodec::codecForName(codec)->fromUnicode(unicode.constData(),
                                                                        unicode.size(), &state);
}

QByteArray subset(const QByteArray& declarations, const QByteArray& data)
{
    return "<!DOCTYPE ViewData [" + declarations + "]>" + data;
}

const QByteArray minimal = document({});

} // namespace

/** Documents as XML: what is well-formed, and in which encodings. */
class DocumentXmlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wellFormedness_data();
    void wellFormedness() { judge(); }
    void characters_data();
    void characters() { judge(); }
    void encodings_data();
    void encodings() { judge(); }
    void documentTypes_data();
    void documentTypes() { judge(); }
    void everyBeginningIsRefused();

private:
    void judge()
    {
        QFETCH(QByteArray, data);
        QFETCH(bool, accepted);
        if (accepted)
            DocumentJudge().expectAccepted(data);
        else
            DocumentJudge().expectRefused(data);
    }
};

void DocumentXmlTest::wellFormedness_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("accepted");
    row("white space only", Refused, " \n");
    row("declaration only", Refused, "<?xml version=\"1.0\"?>");
    row("comment only", Refused, "<!-- -->");
    row("declaration first", Accepted, "<?xml version=\"1.0\"?>" + minimal);
    row("declaration after a blank", Refused, " <?xml version=\"1.0\"?>" + minimal);
    row("declaration twice", Refused, "<?xml version=\"1.0\"?><?xml version=\"1.0\"?>" + minimal);
    row("declaration without a version", Refused, "<?xml encoding=\"UTF-8\"?>" + minimal);
    row("XML 1.1", Refused, "<?xml version=\"1.1\"?>" + minimal);
    row("standalone", Accepted, "<?xml version=\"1.0\" standalone=\"yes\"?>" + minimal);
    row("standalone with a wrong value", Refused,
        "<?xml version=\"1.0\" standalone=\"maybe\"?>" + minimal);
    row("two roots", Refused, minimal + minimal);
    row("text before the root", Refused, "x" + minimal);
    row("text after the root", Refused, minimal + "x");
    row("CDATA after the root", Refused, minimal + "<![CDATA[]]>");
    row("end tag missing", Refused, QByteArray(minimal).replace("</ViewData>", ""));
    row("end tag of another element", Refused,
        QByteArray(minimal).replace("</ViewData>", "</Viewdata>"));
    row("overlapping elements", Refused,
        "<ViewData Version=\"1.1.0\"><Groups></ViewData></Groups>");
    row("end tag too many", Refused, minimal + "</ViewData>");
    row("end tag with an attribute", Refused,
        QByteArray(minimal).replace("</ViewData>", "</ViewData Version=\"1.1.0\">"));
    row("attribute without quotes", Refused, QByteArray(minimal).replace("\"1.1.0\"", "1.1.0"));
    row("attribute without a value", Refused, QByteArray(minimal).replace("=\"1.1.0\"", ""));
    row("attribute twice", Refused,
        QByteArray(minimal).replace("Version=", "Version=\"1.1.0\" Version="));
    row("attribute twice by two prefixes", Refused,
        QByteArray(minimal).replace("Version=", "xmlns:a=\"u\" xmlns:b=\"u\" a:x=\"\" b:x=\"\" "
                                                "Version="));
    row("undeclared prefix of an attribute", Refused,
        QByteArray(minimal).replace("Version=", "x:y=\"\" Version="));
    row("undeclared prefix of an element", Refused,
        "<x:ViewData Version=\"1.1.0\"><Groups/></x:ViewData>");
    row("less-than in an attribute", Refused, named("<"));
    row("greater-than in an attribute", Accepted, named(">"));
    row("ampersand alone", Refused, named("&"));
    row("reference without a semicolon", Refused, named("&amp"));
    row("comment with two hyphens", Refused, "<!-- -- -->" + minimal);
    row("comment without an end", Refused, minimal + "<!-- ");
    row("end of CDATA in text", Refused, noted("]]>"));
    row("CDATA without an end", Refused, noted("<![CDATA["));
    row("instruction called xml", Refused, noted("<?xml ?>"));
}

void DocumentXmlTest::characters_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("accepted");
    row("tab in text", Accepted, noted("\t"));
    row("vertical tab in text", Refused, noted("\v"));
    row("U+0001", Refused, noted("\x01"));
    row("U+007F", Accepted, noted("\x7F"));
    row("U+FFFE", Refused, noted("\xEF\xBF\xBE"));
    row("NUL in text", Refused, noted(QByteArray(1, '\0')));
    row("NUL in a name", Refused, named(QByteArray(1, '\0')));
    row("NUL at the start", Refused, QByteArray(1, '\0') + minimal);
    row("NUL at the end", Refused, minimal + QByteArray(1, '\0'));
    row("reference to NUL", Refused, noted("&#0;"));
    row("reference to U+0001", Refused, noted("&#1;"));
    row("reference to a surrogate", Refused, noted("&#xD800;"));
    row("reference to U+FFFF", Refused, noted("&#xFFFF;"));
    row("reference to the last character", Accepted, noted("&#x10FFFD;"));
    row("reference beyond the last character", Refused, noted("&#x110000;"));
    row("reference that wraps around 32 bits", Refused, noted("&#4294967361;"));
}

// Rows against the rules of XML state what Qt's reader, more lenient here, lets through.
void DocumentXmlTest::encodings_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("accepted");
    const QByteArray utf8Mark("\xEF\xBB\xBF");
    const QByteArray accent("\xC3\xA9");
    row("UTF-8 undeclared", Accepted, named(accent));
    row("UTF-8 declared", Accepted, declaration("UTF-8") + named(accent));
    row("UTF-8 in lower case", Accepted, declaration("utf-8") + named(accent));
    row("UTF-8 with a byte order mark", Accepted, utf8Mark + declaration("UTF-8") + named(accent));
    row("two byte order marks", Refused, utf8Mark + utf8Mark + minimal);
    row("Latin-1 undeclared", Refused, named("\xE9"));
    row("Latin-1 declared", Accepted, declaration("ISO-8859-1") + named("\xE9"));
    row("Latin-1 declared as UTF-8", Refused, declaration("UTF-8") + named("\xE9"));
    row("unknown encoding", Refused, declaration("no-such-encoding") + minimal);
    row("encoding without a name", Refused, declaration("") + minimal);
    row("encoding with a blank", Refused, declaration("UTF 8") + minimal);
    row("overlong UTF-8", Refused, named("\xC0\x80"));
    row("UTF-8 of a surrogate", Refused, named("\xED\xA0\x80"));
    row("UTF-8 beyond the last character", Refused, named("\xF4\x90\x80\x80"));
    row("UTF-8 cut short within a tag", Refused, named("\xC3"));
    row("UTF-8 cut short at the end, against the rules", Accepted, minimal + "\xC3");
    row("byte order mark only", Refused, utf8Mark);
    row("UTF-16 LE with a mark", Accepted, encoded("UTF-16LE", named(accent), "\xFF\xFE"));
    row("UTF-16 BE with a mark", Accepted, encoded("UTF-16BE", named(accent), "\xFE\xFF"));
    row("UTF-16 declared", Accepted,
        encoded("UTF-16LE", declaration("UTF-16") + minimal, "\xFF\xFE"));
    row("UTF-16 LE without a mark, against the rules", Accepted, encoded("UTF-16LE", minimal));
    row("UTF-16 BE without a mark, against the rules", Accepted, encoded("UTF-16BE", minimal));
    row("UTF-16 with half a character at the end, against the rules", Accepted,
        encoded("UTF-16LE", minimal, "\xFF\xFE") + "x");
    row("UTF-16 with a lone surrogate, against the rules", Accepted,
        encoded("UTF-16LE", noted("@"), "\xFF\xFE")
            .replace(QByteArray("@\0", 2), QByteArray("\x00\xD8", 2)));
    row("UTF-16 with a lone surrogate and a hint at a schema, against the rules", Accepted,
        encoded("UTF-16LE",
                noted("@").replace("<ViewData",
                                   "<ViewData xmlns:xsi=\"http://www.w3.org/2001/"
                                   "XMLSchema-instance\" xsi:noNamespaceSchemaLocation=\"a\""),
                "\xFF\xFE")
            .replace(QByteArray("@\0", 2), QByteArray("\x00\xD8", 2)));
    row("8-bit text with the mark of UTF-16", Refused, "\xFF\xFE" + minimal);
    row("8-bit text declared as UTF-16", Refused, declaration("UTF-16") + minimal);
}

void DocumentXmlTest::documentTypes_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("accepted");
    row("name only", Accepted, "<!DOCTYPE ViewData>" + minimal);
    row("name of another element", Accepted, "<!DOCTYPE other>" + minimal);
    row("contradicting the schema", Accepted, subset("<!ELEMENT ViewData EMPTY>", minimal));
    row("after the root", Refused, minimal + "<!DOCTYPE ViewData>");
    row("twice", Refused, "<!DOCTYPE ViewData><!DOCTYPE ViewData>" + minimal);
    row("entity in text", Accepted, subset("<!ENTITY e \"x\">", noted("&e;")));
    row("entity in an attribute", Accepted, subset("<!ENTITY e \"x\">", named("&e;")));
    row("entity with elements", Accepted,
        subset("<!ENTITY e \"<UserData>x</UserData>\">", document(group("A", view("v", "&e;")))));
    row("entity with half an element", Refused,
        subset("<!ENTITY e \"<UserData>\">", document(group("A", view("v", "&e;</UserData>")))));
    row("undeclared entity", Refused, noted("&e;"));
    row("entity within itself", Refused, subset("<!ENTITY e \"&e;\">", noted("&e;")));
    row("entities within each other", Refused,
        subset("<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">", noted("&a;")));
    row("attribute by default", Accepted,
        subset("<!ATTLIST ViewData Version CDATA \"1.1.0\">", "<ViewData><Groups/></ViewData>"));
    row("an unknown attribute by default", Refused,
        subset("<!ATTLIST ViewData Other CDATA \"x\">", minimal));
    row("subset without an end", Refused, "<!DOCTYPE ViewData [" + minimal);
}

void DocumentXmlTest::everyBeginningIsRefused()
{
    const QByteArray whole =
        declaration("UTF-8") + document(group("A", view("v", state("w", "aabb") + userData("u"))),
                                        toolBarState("w", "aa"));
    Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
    QVERIFY(manager.setFactoryDefaultView(whole));
    for (int size = 0; size < whole.size(); ++size)
        QVERIFY2(!manager.setFactoryDefaultView(whole.left(size)), whole.left(size).constData());
}

QTEST_MAIN(DocumentXmlTest)
#include "DocumentXmlTest.moc"
