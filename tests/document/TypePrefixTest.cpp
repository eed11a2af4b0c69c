// SPDX-License-Identifier: MIT
#include "DocumentJudge.h"

using namespace Panorel::Tests;

namespace {

const char instanceNamespace[] = "http://www.w3.org/2001/XMLSchema-instance";
const char schemaNamespace[] = "http://www.w3.org/2001/XMLSchema";

QByteArray declared(const QByteArray& prefix, const QByteArray& uri)
{
    return " xmlns:" + prefix + "=\"" + uri + '"';
}

// A document with a State and a UserData that have @p onState and @p onUserData, and further
// attributes on the view and the root.
QByteArray typed(const QByteArray& onState, const QByteArray& onUserData = {},
                 const QByteArray& onView = {},
                 const QByteArray& onRoot = declared("xsi", instanceNamespace))
{
    return document(group("A", view("v", state("w", "aa") + userData("u"))))
        .replace("<State", "<State " + onState)
        .replace("<UserData", "<UserData " + onUserData)
        .replace("<View ", "<View " + onView + ' ')
        .replace("<ViewData", "<ViewData" + onRoot);
}

void row(const char* name, const QByteArray& data)
{
    QTest::newRow(name) << data;
}

} // namespace

/** Types given in the document itself: those with an undeclared prefix crash Qt's validator. */
class TypePrefixTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declaredPrefixIsAccepted_data();
    void declaredPrefixIsAccepted();
    void undeclaredPrefixIsRefused_data();
    void undeclaredPrefixIsRefused();
};

void TypePrefixTest::declaredPrefixIsAccepted_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray xsi = declared("xsi", instanceNamespace);
    const QByteArray xs = declared("xs", schemaNamespace);
    row("no prefix", typed("xsi:type=\"state\""));
    row("no prefix, blanks around", typed("xsi:type=\" state\n\""));
    row("on the root", typed({}, "xsi:type=\"xs:string\"", {}, xsi + xs));
    row("on the parent", typed({}, "xsi:type=\"xs:string\"", xs));
    row("on the element itself", typed({}, "xsi:type=\"xs:token\"" + xs));
    row("after the type, with blanks around it", typed({}, "xsi:type=\" xs:string \"" + xs));
    row("declared again further in and ended",
        typed("xsi:type=\"state\"" + xs, "xsi:type=\"xs:string\"", {}, xsi + xs));
    row("declared again beside a schema hint",
        "<ViewData" + declared("q", instanceNamespace) + declared("p", instanceNamespace) +
            " p:noNamespaceSchemaLocation=\"a\" Version=\"1.1.0\"><Groups><Group Name=\"A\">"
            "<Views><View Name=\"v\"><UserData" +
            declared("p", schemaNamespace) +
            " q:type=\"p:string\"/></View></Views><CurrentView Name=\"c\"/></Group></Groups>"
            "</ViewData>");
    row("declared on the root and again on the element",
        typed({}, "xsi:type=\"xs:string\"" + xs, {}, xsi + xs));
    row("as many attributes as a tag can have",
        typed("xsi:type=\"state\" xsi:schemaLocation=\"\" xsi:noNamespaceSchemaLocation=\"\""));
    row("another prefix for the instance namespace",
        typed({}, declared("i", instanceNamespace) + xs + " i:type=\"xs:string\""));
    row("a colon in the value of other attributes",
        typed("xsi:schemaLocation=\"y:state y:state\"").replace("\"v\"", "\"y:v\""));
}

void TypePrefixTest::declaredPrefixIsAccepted()
{
    QFETCH(QByteArray, data);
    DocumentJudge().expectAccepted(data);
}

void TypePrefixTest::undeclaredPrefixIsRefused_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray type = "xsi:type=\"y:state\"";
    const QByteArray y = declared("y", "urn:y");
    row("nowhere declared", typed(type));
    // Qt's reader goes by the last encoding, in which this spells "xmlns".
    QByteArray twice = typed(type);
    twice = twice.mid(twice.indexOf("<ViewData")).replace("xmlns:xsi", "+AHg-mlns:xsi");
    row("nowhere declared, in the second of two encodings",
        "<?xml version=\"1.0\" encoding=\"UTF-8\" encoding=\"UTF-7\"?>" + twice);
    row("on the root", typed({}, {}, {}, declared("xsi", instanceNamespace) + ' ' + type));
    row("blanks before", typed("xsi:type=\"  y:state\""));
    row("no-break space before", typed("xsi:type=\"\xC2\xA0y:state\""));
    row("the prefix of declarations", typed("xsi:type=\"xmlns:state\""));
    row("the prefix that needs no declaration", typed("xsi:type=\"xml:state\""));
    row("nothing before the colon", typed("xsi:type=\":state\""));
    row("declared by an earlier sibling", typed(y, type));
    row("declared by a child", typed({}, y, type));
    row("declared in other case", typed(type + declared("Y", "urn:y")));
    row("instance namespace written with a character reference",
        typed(type, {}, {}, declared("xsi", "http://www.w3.org/2001/XMLSchema&#45;instance")));
    row("a default of the document type",
        "<!DOCTYPE ViewData [<!ATTLIST State xsi:type CDATA \"y:state\">]>" + typed({}));
    row(
        "UTF-16", QByteArray("\xFE\xFF") + [&] {
            QByteArray wide;
            for (const char c : typed(type))
                wide.append('\0').append(c);
            return wide;
        }());
}

void TypePrefixTest::undeclaredPrefixIsRefused()
{
    QFETCH(QByteArray, data);
    DocumentJudge().expectRefused(data);
}

QTEST_MAIN(TypePrefixTest)
#include "TypePrefixTest.moc"
