// SPDX-License-Identifier: MIT
#include "CheckedDocument.h"

#include <QTest>

using Panorel::Detail::CheckedDocument;

/** What is left of a document whose markup only Qt's reader can see. */
class CheckedDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isWrittenAgain_data();
    void isWrittenAgain();
    void comesInPieces();
    void isReadOnly();
};

namespace {

const QByteArray xsi = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";

void row(const char* name, const QByteArray& document, const QByteArray& expected)
{
    QTest::newRow(name) << document << expected;
}

} // namespace

void CheckedDocumentTest::isWrittenAgain_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("expected");
    row("empty element", "<ViewData/>", "<ViewData></ViewData>");
    row("declaration and document type",
        "<?xml version='1.0' encoding='ISO-8859-1'?><!DOCTYPE a><ViewData>\xE9</ViewData>",
        "<ViewData>\xC3\xA9</ViewData>");
    row("attributes", "<ViewData a='1' b=\"'\" c='\"'/>",
        "<ViewData a=\"1\" b=\"'\" c=\"&quot;\"></ViewData>");
    row("characters with a meaning",
        "<ViewData a='&amp;&lt;&gt;&#10;&#9;&#13;'>&amp;&lt;&gt;&#13;\n"
        "</ViewData>",
        "<ViewData a=\"&amp;&lt;&gt;&#10;&#9;&#13;\">&amp;&lt;&gt;&#13;\n</ViewData>");
    row("namespaces", "<ViewData xmlns='' xmlns:p='u'><p:a p:b='' xmlns='v'/></ViewData>",
        "<ViewData xmlns=\"\" xmlns:p=\"u\"><p:a xmlns=\"v\" p:b=\"\"></p:a></ViewData>");
    row("comments and instructions", "<ViewData>a<!-- b -->c<?d?></ViewData>",
        "<ViewData>a<!---->c<!----></ViewData>");
    row("CDATA", "<ViewData><![CDATA[<a>]]></ViewData>", "<ViewData>&lt;a&gt;</ViewData>");
    row("entities", "<!DOCTYPE a [<!ENTITY b '<c/>'>]><ViewData>&b;</ViewData>",
        "<ViewData><c></c></ViewData>");
    row("hints",
        "<ViewData" + xsi +
            " xsi:schemaLocation='a' xsi:noNamespaceSchemaLocation='b' xsi:nil=''/>",
        "<ViewData" + xsi + " xsi:nil=\"\"></ViewData>");
    row("hints in no namespace", "<ViewData schemaLocation='a'/>",
        "<ViewData schemaLocation=\"a\"></ViewData>");
    row("default attributes", "<!DOCTYPE a [<!ATTLIST ViewData b CDATA 'c'>]><ViewData/>",
        "<ViewData b=\"c\"></ViewData>");

    row("nothing", "", "<");
    row("no end", "<ViewData>", "<ViewData><");
    row("text after the root", "<ViewData/>a", "<ViewData></ViewData><");
    row("another root", "<a/>", "<a></a>");
    row("the seventh level", "<ViewData><a><a><a><a><a><a/></a></a></a></a></a></ViewData>",
        "<ViewData><a><a><a><a><a><");
    row("the seventh attribute", "<ViewData a='' b='' c='' d='' e='' f='' g=''/>", "<");
    row("a type that is not declared", "<ViewData" + xsi + "><a xsi:type='y:b'/></ViewData>",
        "<ViewData" + xsi + "><");
    row("a default type that is not declared",
        "<!DOCTYPE a [<!ATTLIST b xsi:type CDATA 'y:c'>]><ViewData" + xsi + "><b/></ViewData>",
        "<ViewData" + xsi + "><");
}

void CheckedDocumentTest::isWrittenAgain()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, expected);
    CheckedDocument checked(document);
    QVERIFY(checked.isSequential());
    QCOMPARE(checked.readAll(), expected);
}

void CheckedDocumentTest::comesInPieces()
{
    CheckedDocument checked("<ViewData><a>text</a></ViewData>");
    QByteArray text;
    for (QByteArray piece = checked.read(3); !piece.isEmpty(); piece = checked.read(3)) {
        QVERIFY(piece.size() <= 3);
        text += piece;
    }
    QCOMPARE(text, QByteArray("<ViewData><a>text</a></ViewData>"));
}

void CheckedDocumentTest::isReadOnly()
{
    CheckedDocument checked("<ViewData/>");
    QVERIFY(checked.isReadable());
    QVERIFY(!checked.isWritable());
}

QTEST_APPLESS_MAIN(CheckedDocumentTest)
#include "CheckedDocumentTest.moc"
