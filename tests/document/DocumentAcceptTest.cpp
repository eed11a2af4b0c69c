// SPDX-License-Identifier: MIT
#include "DocumentJudge.h"

using namespace Panorel::Tests;

namespace {

void row(const char* name, const QByteArray& data)
{
    QTest::newRow(name) << data;
}

QByteArray inView(const QByteArray& content)
{
    return document(group("A", view("v", content)));
}

} // namespace

/** Documents that look odd and yet satisfy the schema. */
class DocumentAcceptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void structure_data();
    void structure() { accept(); }
    void markup_data();
    void markup() { accept(); }
    void stateText_data();
    void stateText();

private:
    void accept()
    {
        QFETCH(QByteArray, data);
        DocumentJudge().expectAccepted(data);
    }
};

void DocumentAcceptTest::structure_data()
{
    QTest::addColumn<QByteArray>("data");
    row("no groups", "<ViewData Version=\"1.1.0\"><Groups/></ViewData>");
    row("empty version", document({}, {}, ""));
    row("any text as version", document({}, {}, "not a version"));
    row("unknown groups", document(group("Y", {}) + group("Z", {})));
    row("the same group twice", document(group("A", {}) + group("A", {})));
    row("the same view twice", document(group("A", view("v") + view("v"))));
    row("the same id twice", inView(state("w", "aa") + state("w", "bb")));
    row("tool bars of the same id twice",
        document({}, toolBarState("w", "aa") + toolBarState("w", "")));
    row("empty names", document(group("", view(""))).replace("__current__", ""));
    row("a name of 1,000 letters", document(group("A", view(QByteArray(1000, 'n')))));
    row("empty id", inView(state("", "aa")));
    row("several active views", document(group("A", view("v", {}, "1") + view("w", {}, "true"))));
    row("an active current view",
        document(group("A", {})).replace("<CurrentView", "<CurrentView Active=\"true\""));
    row("another name of the current view", document(group("A", {})).replace("__current__", "x"));
    for (const char* active : {"true", "false", "1", "0", " true "})
        row(QByteArray("active is \"").append(active).append('"').constData(),
            document(group("A", view("v", {}, active))));
    row("active within other white space", document(group("A", view("v", {}, "\n0\t"))));
    row("view without user data", inView(state("w", "aa")));
    row("empty-element tags throughout",
        document("<Group Name=\"A\"><Views><View Name=\"v\"><State DescriptorId=\"w\"/><UserData/>"
                 "</View></Views><CurrentView Name=\"\"/></Group>"));
}

void DocumentAcceptTest::markup_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray xsi = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" ";
    const auto onRoot = [](const QByteArray& attribute) {
        return document({}).replace("<ViewData", "<ViewData " + attribute);
    };
    row("apostrophes", document(group("A", view("v"))).replace('"', '\''));
    row("attributes in another order", document(group("A", "<View Name=\"v\" Active=\"0\"/>")));
    row("white space between all elements",
        document(group("A", view("v", state("w", "aa")))).replace("><", ">\r\n\t <"));
    row("comments between the elements",
        document(group("A", view("v"))).replace("><", "><!-- <View/> --><"));
    row("processing instructions between the elements",
        document(group("A", view("v"))).replace("><", "><?tool <View/>?><"));
    row("comments around the root", "<!-- a -->" + document({}) + "<!-- b -->");
    row("white space around the root", "\n\n" + document({}) + "\n\n");
    row("declarations of unused prefixes", onRoot("xmlns:a=\"urn:a\" xmlns:b=\"urn:b\""));
    row("declaration of no default namespace", onRoot("xmlns=\"\""));
    row("hint at a schema without namespace", onRoot(xsi + "xsi:noNamespaceSchemaLocation=\"a\""));
    row("hint at a schema with namespace", onRoot(xsi + "xsi:schemaLocation=\"urn:a a\""));
    row("CDATA in user data", inView(userData("<![CDATA[<b>&]]>")));
    row("references in a name", document(group("A", view("&lt;&amp;&quot;&apos;&#x263A;&#10;"))));
    row("references in user data", inView(userData("&lt;&gt;&amp;&#x1F600;")));
    row("a comment in user data", inView(userData("a<!-- b -->c")));
    row("letters beyond the basic plane in a name", document(group("A", view("\xF0\x9F\x98\x80"))));
    // XML counts four white-space characters only; Qt's validator takes all of Unicode's.
    row("a no-break space between elements, against the rules", document({}, "\xC2\xA0"));
}

// The text of a state's element and the state that the view holds then, as hexadecimal digits.
void DocumentAcceptTest::stateText_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("digits");
    QTest::newRow("two digits") << QByteArray("0f") << QByteArray("0f");
    QTest::newRow("upper case") << QByteArray("ABCDEF") << QByteArray("abcdef");
    QTest::newRow("both cases") << QByteArray("aAbB") << QByteArray("aabb");
    QTest::newRow("every digit") << QByteArray("0123456789abcdefABCDEF")
                                 << QByteArray("0123456789abcdefabcdef");
    QTest::newRow("zeros only") << QByteArray("0000") << QByteArray("0000");
    QTest::newRow("white space around") << QByteArray(" \t\r\naabb\n ") << QByteArray("aabb");
    QTest::newRow("white space only") << QByteArray("  ") << QByteArray();
    QTest::newRow("nothing") << QByteArray() << QByteArray();
    QTest::newRow("CDATA") << QByteArray("<![CDATA[aabb]]>") << QByteArray("aabb");
    QTest::newRow("CDATA in the middle") << QByteArray("a<![CDATA[ab]]>b") << QByteArray("aabb");
    QTest::newRow("a reference") << QByteArray("a&#97;bb") << QByteArray("aabb");
    QTest::newRow("a reference to white space") << QByteArray("&#10;aa") << QByteArray("aa");
    QTest::newRow("a comment") << QByteArray("aa<!-- cc -->bb") << QByteArray("aabb");
    QTest::newRow("a comment splitting a byte") << QByteArray("a<!-- -->a") << QByteArray("aa");
    QTest::newRow("a comment after three digits")
        << QByteArray("aab<!-- -->b") << QByteArray("aabb");
    QTest::newRow("comments only") << QByteArray("<!-- aa --><!-- bb -->") << QByteArray();
    QTest::newRow("a comment at the end") << QByteArray("aabb<!-- cc -->") << QByteArray("aabb");
    QTest::newRow("several pieces")
        << QByteArray("Aa<!-- -->b<?x?>b<![CDATA[c]]>c") << QByteArray("aabbcc");
    QTest::newRow("white space after a comment")
        << QByteArray("aabb<!-- --> ") << QByteArray("aabb");
    QTest::newRow("an instruction") << QByteArray("aa<?cc dd?>bb") << QByteArray("aabb");
    QTest::newRow("a no-break space at the end, against the rules")
        << QByteArray("aabb\xC2\xA0") << QByteArray("aabb");
    QTest::newRow("a million digits") << QByteArray(1000000, '5') << QByteArray(1000000, '5');
}

void DocumentAcceptTest::stateText()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, digits);
    Panorel::Manager manager(names("A"), /*mergeOnApply=*/false);
    QVERIFY(manager.fromXml(inView(state("w", content)), /*merge=*/false));
    const QByteArray written = manager.toXml(/*markActive=*/false);
    const QByteArray element = state("w", digits);
    QCOMPARE(written.count("<State"), digits.isEmpty() ? 0 : 1);
    QCOMPARE(written.contains(element), !digits.isEmpty());
}

QTEST_MAIN(DocumentAcceptTest)
#include "DocumentAcceptTest.moc"
