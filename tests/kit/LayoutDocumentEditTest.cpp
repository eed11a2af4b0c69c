// SPDX-License-Identifier: MIT
#include "DocumentEdits.h"
#include "document/DocumentFixture.h"
#include "support/MessageWatch.h"

#include <QTest>
#include <QTextCodec>

using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** Editing, byte by byte. */
class LayoutDocumentEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void bytes_data();
    void bytes();
    void encodings_data();
    void encodings();
    void writtenAgain();

private:
    MessageWatch m_watch;
};

void LayoutDocumentEditTest::bytes_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const Edit& edit, const QByteArray& expected) {
        QTest::newRow(name) << written << edit << expected;
    };
    const auto other = [](const char* name, const QByteArray& document, const Edit& edit,
                          const QByteArray& expected) {
        QTest::newRow(name) << document << edit << expected;
    };
    const QByteArray a = element('a');
    const QByteArray b = element('b');
    const QByteArray c = element('c');

    row("rename", rename("Edit", "a", "New"_s), with("Name=\"a\"", "Name=\"New\""));
    row("rename, what must be escaped", rename("Edit", "b", "<a> & \"b\" 'c'\t\n\r"_s),
        with("Name=\"b\"", "Name=\"&lt;a&gt; &amp; &quot;b&quot; 'c'&#9;&#10;&#13;\""));
    row("rename, beyond Latin-1", rename("Edit", "a", "\u20AC\U0001F600"_s),
        with("Name=\"a\"", "Name=\"\u20AC\U0001F600\""));
    row("rename to the same", rename("Edit", "a", "a"_s), written);
    other(
        "rename in other quotes",
        "<ViewData Version='1.1.0'><Groups><Group Name = 'G' ><Views><View Name\n= 'a' Active='0'/>"
        "</Views><CurrentView Name='' /></Group></Groups></ViewData >",
        rename("G", "a", "it's \"b\""_s),
        "<ViewData Version='1.1.0'><Groups><Group Name = 'G' ><Views><View Name\n= "
        "'it&apos;s &quot;b&quot;' Active='0'/>"
        "</Views><CurrentView Name='' /></Group></Groups></ViewData >");
    other("what looks like tags and attributes",
          "<?xml version=\"1.0\"?><?a <View Name=\"a\">?><!-- <View Name='a'> - -->"
          "<ViewData Version=\"1.1.0\"><Groups><Group Name=\"> Name='a'\"><Views><!--a--><View\r\n"
          " Active=\"0\" Name=\"a\"><UserData><![CDATA[<View Name=\"a\">]]>&#65;</UserData>\r\n"
          "</View></Views><CurrentView Name=\"a\"/></Group></Groups></ViewData><!--a-->\r\n",
          rename("> Name='a'", "a", "b"_s),
          "<?xml version=\"1.0\"?><?a <View Name=\"a\">?><!-- <View Name='a'> - -->"
          "<ViewData Version=\"1.1.0\"><Groups><Group Name=\"> Name='a'\"><Views><!--a--><View\r\n"
          " Active=\"0\" Name=\"b\"><UserData><![CDATA[<View Name=\"a\">]]>&#65;</UserData>\r\n"
          "</View></Views><CurrentView Name=\"a\"/></Group></Groups></ViewData><!--a-->\r\n");
    other("rename all of a name", document(group("G", view("a") + view("b") + view("a"))),
          rename("G", "a", "c"_s), document(group("G", view("c") + view("b") + view("c"))));

    row("move to the front", move("c", "a"_s), with(a + b + c, c + a + b));
    row("move before the next but one", move("a", "c"_s), with(a + b + c, b + a + c));
    row("move to the end", move("a", {}), with(a + b + c, b + c + a));
    row("move where it is", move("a", "b"_s), written);
    row("move the last to the end", move("c", {}), written);
    row("move before itself", move("b", "b"_s), written);
    other("move without white space", document(group("Edit", view("a") + "<!--x-->" + view("b"))),
          move("b", "a"_s), document(group("Edit", view("b") + view("a") + "<!--x-->")));
    other("move drops marks that do not count",
          document(group("Edit", view("a", "", "1") + view("b", "", "true"))), move("a", {}),
          document(group("Edit", view("b", "", "true") + view("a"))));

    row(
        "move to another group",
        [](LayoutDocument& document) { return document.moveToGroup("Edit"_s, "b"_s, "Watch"_s); },
        QByteArray(with(b, ""))
            .replace("<Views/>", "<Views>" + QByteArray(b).replace(" Active=\"true\"", "") +
                                     "\n            </Views>"));
    row(
        "move to its own group",
        [](LayoutDocument& document) { return document.moveToGroup("Edit"_s, "a"_s, "Edit"_s); },
        with(a + b + c, b + c + a));

    row(
        "remove", [](LayoutDocument& document) { return document.removeView("Edit"_s, "b"_s); },
        with(b, ""));
    other(
        "remove the active one of several marked",
        document(group("Edit", view("a", "", "1") + view("b", "", "1"))),
        [](LayoutDocument& document) { return document.removeView("Edit"_s, "b"_s); },
        document(group("Edit", view("a"))));

    row(
        "duplicate",
        [](LayoutDocument& document) { return document.duplicateView("Edit"_s, "b"_s, "d"_s); },
        with(b, b + QByteArray(b).replace(" Active=\"true\" Name=\"b\"", " Name=\"d\"")));

    row("add",
        add("Edit", {"d"_s, false, {{"w"_s, "0aFF"_hex}, {"v"_s, "00"_hex}, {"e"_s, {}}}, "x<"_s}),
        with(c, c + newView("Name=\"d\"", "\n                    <State DescriptorId=\"v\">00"
                                          "</State>\n                    <State DescriptorId=\"w\">"
                                          "0aff</State>\n                    <UserData>x&lt;"
                                          "</UserData>")));
    row("add to none", add("Watch", {"d"_s, false, {}, ""_s}),
        with("<Views/>", "<Views>" +
                             newView("Name=\"d\"", "\n                    <UserData></UserData>") +
                             "\n            </Views>"));
    row("add without content", add("Edit", {"d"_s, false, {}, {}}),
        with(c, c + "\n                <View Name=\"d\"/>"));
    row("add the active one", add("Edit", {"d"_s, true, {}, {}}),
        QByteArray(with(c, c + "\n                <View Active=\"true\" Name=\"d\"/>"))
            .replace(" Active=\"true\" Name=\"b\"", " Name=\"b\""));
    row("add, replacing",
        add("Edit", {"b"_s, false, {{"w"_s, "00"_hex}}, {}}, LayoutDocument::OnConflict::Replace),
        with(b, newView("Active=\"true\" Name=\"b\"",
                        "\n                    <State DescriptorId=\"w\">00</State>")));
    row("add, keeping both",
        add("Edit", {"b"_s, false, {}, {}}, LayoutDocument::OnConflict::KeepBoth),
        with(c, c + "\n                <View Name=\"b (2)\"/>"));
    other(
        "add among tabs and CR LF",
        "<ViewData Version=\"1.1.0\">\r\n\t<Groups>\r\n\t\t<Group Name=\"G\">\r\n\t\t\t<Views>\r\n"
        "\t\t\t</Views>\r\n\t\t\t<CurrentView Name=\"\"/></Group></Groups></ViewData>",
        add("G", {"d"_s, false, {}, ""_s}),
        "<ViewData Version=\"1.1.0\">\r\n\t<Groups>\r\n\t\t<Group Name=\"G\">\r\n\t\t\t<Views>\r\n"
        "\t\t\t\t<View Name=\"d\">\r\n\t\t\t\t\t<UserData></UserData>\r\n\t\t\t\t</View>\r\n"
        "\t\t\t</Views>\r\n\t\t\t<CurrentView Name=\"\"/></Group></Groups></ViewData>");
    other("add to one line", document(group("G", view("a"))),
          add("G", {"d"_s, false, {{"w"_s, "00"_hex}}, ""_s}),
          document(group("G", view("a") + view("d", state("w", "00") + userData("")))));

    row("user data", data("a", "new \"<&>\"\n\r"_s),
        with(a,
             QByteArray(a).replace("<UserData></UserData>",
                                   "<UserData>new &quot;&lt;&amp;&gt;&quot;\n&#13;</UserData>")));
    row("no user data", data("b", {}), with("\n                    <UserData>text</UserData>", ""));
    row("the same user data", data("b", "text"_s), written);
    other("user data where there was none", document(group("Edit", view("a"))), data("a", "x"_s),
          document(group("Edit", view("a", userData("x")))));
    other("user data after states", document(group("Edit", view("a", state("w", "00")))),
          data("a", ""_s), document(group("Edit", view("a", state("w", "00") + userData("")))));
    other("user data without an end tag", document(group("Edit", view("a", "<UserData/>"))),
          data("a", "x"_s), document(group("Edit", view("a", "<UserData>x</UserData>"))));
    other("user data into an element without an end tag",
          document(group("Edit", "\n <View Name='a' />")), data("a", "x"_s),
          document(group("Edit", "\n <View Name='a' >\n <UserData>x</UserData>\n </View>")));

    row("activate", activate("c"_s),
        QByteArray(with(" Active=\"true\" Name=\"b\"", " Name=\"b\""))
            .replace("<View Name=\"c\"", "<View Active=\"true\" Name=\"c\""));
    row("activate the active one", activate("b"_s), written);
    row("activate none", activate({}), with(" Active=\"true\"", ""));
    other("activate what is marked inactive",
          document(group("Edit", view("a", "", "false") + view("b", "", "0"))), activate("a"_s),
          document(group("Edit", view("a", "", "true") + view("b", "", "0"))));

    row(
        "remove a state",
        [](LayoutDocument& document) { return document.removeState("Edit"_s, "a"_s, "main"_s); },
        with("\n                    <State DescriptorId=\"main\">02</State>", ""));
    row("rename a window", renameWindow("main", "a\"b"_s),
        QByteArray(written).replace("=\"main\"", "=\"a&quot;b\""));
}

void LayoutDocumentEditTest::bytes()
{
    QFETCH(QByteArray, document);
    QFETCH(Edit, edit);
    QFETCH(QByteArray, expected);
    LayoutDocument edited(document);
    const LayoutDocument::Error error = edit(edited);
    QVERIFY2(!error, qPrintable(error.text));
    QVERIFY(error.text.isNull());
    QVERIFY(!expected.isEmpty());
    QCOMPARE(QString::fromUtf8(edited.bytes()), QString::fromUtf8(expected));
}

void LayoutDocumentEditTest::encodings_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("mark");
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("name");
    const QString all = "\u00E4\u20AC\U0001F600"_s;
    const auto row = [](const char* name, const char* codec, const char* mark,
                        const char* declaration, const QString& written) {
        QTest::newRow(name) << QByteArray(codec) << QByteArray(mark)
                            << QString::fromLatin1(declaration) << written;
    };
    row("UTF-8", "UTF-8", "", "", all);
    row("UTF-8 with a mark", "UTF-8", "\xEF\xBB\xBF", "<?xml version='1.0' encoding='UTF-8'?>",
        all);
    row("UTF-16", "UTF-16LE", "\xFF\xFE", "<?xml version='1.0' encoding='UTF-16'?>", all);
    row("UTF-16, big end", "UTF-16BE", "\xFE\xFF", "<?xml version='1.0'?>", all);
    row("UTF-16 without a mark", "UTF-16LE", "", "<?xml version='1.0'?>", all);
    row("UTF-16, big end, without a mark", "UTF-16BE", "", "", all);
    row("Latin-1", "ISO-8859-1", "", "<?xml version='1.0' encoding='ISO-8859-1'?>",
        "\u00E4&#8364;&#128512;"_s);
    row("Windows", "windows-1252", "", "<?xml version=\"1.0\" encoding=\"windows-1252\" ?>",
        "\u00E4\u20AC&#128512;"_s);
    row("Shift-JIS", "Shift_JIS", "", "<?xml version='1.0' encoding='Shift_JIS'?>",
        "&#228;&#8364;&#128512;"_s);
}

void LayoutDocumentEditTest::encodings()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, mark);
    QFETCH(QString, declaration);
    QFETCH(QString, name);
    const QString text =
        declaration + QString::fromUtf8(document(group("G", view("a") + view("b", userData("A")))));
    const auto encoded = [&](const QString& characters) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        return QByteArray(mark + QTextCodec::codecForName(codec)->fromUnicode(
                                     characters.constData(), characters.size(), &state));
    };
    LayoutDocument edited(encoded(text));
    const LayoutDocument::Error error = edited.renameView("G"_s, "a"_s, "\u00E4\u20AC\U0001F600"_s);
    QVERIFY2(!error, qPrintable(error.text));
    QCOMPARE(edited.bytes(), encoded(QString(text).replace("\"a\""_s, u'"' + name + u'"')));
    QCOMPARE(edited.viewNames("G"_s), (QStringList{"\u00E4\u20AC\U0001F600"_s, "b"_s}));
}

// In a document type entities and defaults of attributes may be declared, so the places of the text
// are not those of the elements.
void LayoutDocumentEditTest::writtenAgain()
{
    const QByteArray bytes =
        "<!DOCTYPE ViewData [<!ENTITY e 'x &#38;amp; y'><!ATTLIST View Active CDATA '1'>]>\n"
        "<!--c--><ViewData Version='1.1.0'><ToolBarState DescriptorId='w'>00</ToolBarState><Groups>"
        "<Group Name='&e;'><Views><View Name='a'/><View Name='&e;'><State DescriptorId='w'>A0"
        "</State><UserData>&e;</UserData></View></Views><CurrentView Name='n'/></Group></Groups>"
        "</ViewData>";
    LayoutDocument edited(bytes);
    QVERIFY(edited.isWrittenWhole());
    const LayoutDocument::Error error = edited.renameView("x & y"_s, "a"_s, "b"_s);
    QVERIFY2(!error, qPrintable(error.text));
    QCOMPARE(QString::fromUtf8(edited.bytes()),
             QString::fromUtf8(R"(<?xml version="1.0" encoding="UTF-8"?>
<ViewData Version="1.1.0">
    <ToolBarState DescriptorId="w">00</ToolBarState>
    <Groups>
        <Group Name="x &amp; y">
            <Views>
                <View Active="true" Name="b"/>
                <View Active="true" Name="x &amp; y">
                    <State DescriptorId="w">a0</State>
                    <UserData>x &amp; y</UserData>
                </View>
            </Views>
            <CurrentView Name="n"/>
        </Group>
    </Groups>
</ViewData>
)"));
    QVERIFY(!edited.isWrittenWhole());
    QVERIFY(!LayoutDocument("prose").isWrittenWhole());
}

QTEST_GUILESS_MAIN(LayoutDocumentEditTest)
#include "LayoutDocumentEditTest.moc"
