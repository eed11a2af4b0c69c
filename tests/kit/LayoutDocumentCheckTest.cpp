// SPDX-License-Identifier: MIT
#include "document/DocumentFixture.h"
#include "support/BlobBuilder.h"
#include "support/MessageWatch.h"

#include <panorel/kit/LayoutDocument.h>

#include <QTest>

using namespace Panorel::Kit;
using namespace Panorel::Tests;

/** What is wrong in a document, and where. */
class LayoutDocumentCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_watch.start(); }
    void cleanup() { QCOMPARE(m_watch.finish(), QStringList()); }

    void notWellFormed_data();
    void notWellFormed();
    void notValid_data();
    void notValid();
    void notWellFormedComesFirst();
    void ofTheDocument_data();
    void ofTheDocument();
    void placesOfStates();
    void everyStateCounts();
    void soundness();
    void hostileDocuments_data();
    void hostileDocuments();

private:
    MessageWatch m_watch;
};

namespace {

// Its dock record is on side 4, which does not exist; the side is at byte 13.
QByteArray harmful()
{
    return exampleBlob().replace(16, 1, "\x04");
}

// "code at offset: detail", one for each problem.
QStringList described(const QVector<Problem>& problems)
{
    QStringList lines;
    for (const Problem& problem : problems)
        lines.append(identifierOf(problem.code) + " at "_s + QString::number(problem.offset) +
                     ": "_s + problem.detail);
    return lines;
}

QByteArray repeated(const QByteArray& text, int count)
{
    return text.repeated(count);
}

} // namespace

void LayoutDocumentCheckTest::notWellFormed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("line");
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("to");
    const auto row = [](const char* name, const QByteArray& bytes, int line, qint64 from,
                        qint64 to) { QTest::newRow(name) << bytes << line << from << to; };
    row("nothing", "", 1, 0, 0);
    row("text", "text", 1, 0, 4);
    row("cut", "<ViewData>\n <Groups>\n", 3, 20, 21);
    row("wrong end tag", "<ViewData>\n<Groups>\n</ViewData>\n<x/>", 3, 20, 31);
    row("entity", "<ViewData>\r\n&e;</ViewData>", 2, 12, 15);
    row("UTF-16", QByteArray::fromHex("fffe3c0061003e000a003c002f0062003e00"), 2, 10, 18);
    row("second root", "<ViewData/>\n\n<ViewData/>", 3, 13, 24);
}

void LayoutDocumentCheckTest::notWellFormed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, line);
    QFETCH(qint64, from);
    QFETCH(qint64, to);
    const QVector<Problem> problems = LayoutDocument(bytes).check();
    QCOMPARE(problems.size(), 1);
    const Problem& problem = problems.first();
    QCOMPARE(identifierOf(problem.code), "not-well-formed"_s);
    QVERIFY2(problem.offset >= from && problem.offset <= to,
             qPrintable(QString::number(problem.offset)));
    QVERIFY2(problem.detail.startsWith("line "_s + QString::number(line) + ": "_s),
             qPrintable(problem.detail));
    QVERIFY(problem.group.isNull() && problem.view.isNull() && problem.window.isNull());
}

void LayoutDocumentCheckTest::notValid_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("detail");
    // The offset is that of the first @, which is left out.
    const auto row = [](const char* name, const QByteArray& bytes, const char* detail) {
        QTest::newRow(name) << bytes << QString::fromLatin1(detail);
    };
    const QByteArray current = "<CurrentView Name=\"\"/>";
    row("other root", "@<html/>", "line 1: \"html\" is not the root \"ViewData\"");
    row("root of a namespace", "@<ViewData xmlns='a' Version=''><Groups/></ViewData>",
        "line 1: \"ViewData\" is not the root \"ViewData\"");
    row("root within", "@<Groups/>", "line 1: \"Groups\" is not the root \"ViewData\"");
    row("no version", "\n@<ViewData><Groups/></ViewData>",
        "line 2: \"ViewData\" lacks the attribute \"Version\"");
    row("no groups", "<ViewData Version=''>\n@</ViewData>",
        "line 2: \"Groups\" is missing in \"ViewData\"");
    row("no groups in an empty element", "@<ViewData Version=''/>",
        "line 1: \"Groups\" is missing in \"ViewData\"");
    row("groups twice", "<ViewData Version=''><Groups/>\n@<Groups/></ViewData>",
        "line 2: \"Groups\" cannot be here in \"ViewData\"");
    row("tool-bar state after groups",
        "<ViewData Version=''><Groups/>@<ToolBarState DescriptorId=''/></ViewData>",
        "line 1: \"ToolBarState\" cannot be here in \"ViewData\"");
    row("unknown element", document("@<Gruppe/>"),
        "line 1: \"Gruppe\" cannot be here in \"Groups\"");
    row("group without a name", document("@<Group><Views/>" + current + "</Group>"),
        "line 1: \"Group\" lacks the attribute \"Name\"");
    row("no views", document("<Group Name=''>@" + current + "</Group>"),
        "line 1: \"Views\" is missing in \"Group\"");
    row("no current view", document("<Group Name=''><Views/>@</Group>"),
        "line 1: \"CurrentView\" is missing in \"Group\"");
    row("no id", document(group("", view("", "@<State>00</State>"))),
        "line 1: \"State\" lacks the attribute \"DescriptorId\"");
    row("odd digits", document(group("", view("", "<State DescriptorId=''>000@</State>"))),
        "line 1: The state in \"State\" is not an even number of digits");
    row("no digits", document("", "<ToolBarState DescriptorId=''>0x@</ToolBarState>"),
        "line 1: The state in \"ToolBarState\" is not an even number of digits");
    row("user data twice", document(group("", view("", userData("") + "@" + userData("")))),
        "line 1: \"UserData\" cannot be here in \"View\"");
    row("state after user data", document(group("", view("", userData("") + "@" + state("", "")))),
        "line 1: \"State\" cannot be here in \"View\"");
    row("element in user data", document(group("", view("", userData("@<b/>")))),
        "line 1: \"b\" cannot be here in \"UserData\"");
    row("unknown attribute", document(group("", "@<View Name='' Aktiv='1'/>")),
        "line 1: \"View\" has the unknown attribute \"Aktiv\"");
    row("active maybe", document(group("", "@<View Name='' Active='yes'/>")),
        "line 1: \"Active\" cannot be \"yes\"");
    row("text", document("<Group Name=''>text@<Views/>" + current + "</Group>"),
        "line 1: There cannot be text in \"Group\"");
    row("too many attributes", "@<ViewData a='' b='' c='' d='' e='' f='' g=''/>",
        "line 1: A tag has too many attributes");
    row("after an umlaut", document(group("\u00E4", view("", "@<State>00</State>"))),
        "line 1: \"State\" lacks the attribute \"DescriptorId\"");
    row("after entities and CDATA",
        document(group("&#228;", view("a", userData("&lt;<![CDATA[<b>]]>&amp;")) + "@<b/>")),
        "line 1: \"b\" cannot be here in \"Views\"");
    row("after CR LF", "<ViewData Version=''>\r\n<!--\r\n-->\r\n<Groups>@<b/></Groups></ViewData>",
        "line 4: \"b\" cannot be here in \"Groups\"");
}

void LayoutDocumentCheckTest::notValid()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, detail);
    const int offset = bytes.indexOf('@');
    const QVector<Problem> problems = LayoutDocument(bytes.remove(offset, 1)).check();
    QCOMPARE(described(problems),
             QStringList("not-valid at "_s + QString::number(offset) + ": "_s + detail));
}

void LayoutDocumentCheckTest::notWellFormedComesFirst()
{
    const QVector<Problem> problems = LayoutDocument("<html>\n<b>").check();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(identifierOf(problems.first().code), "not-well-formed"_s);
}

void LayoutDocumentCheckTest::ofTheDocument_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("sound") << document(group("G", view("a") + view("b")) + group("H", view("a")))
                           << QStringList();
    QTest::newRow("version") << QByteArray("\n" + document("", {}, " 1.1.0"))
                             << lines({"version at 1:  1.1.0"});
    // <ViewData Version="1.1.0"><Groups><Group Name="G"><Views> is 57 bytes long, and <View
    // Name=""></View> 21.
    QTest::newRow("nameless") << document(group("G", view("") + view("a") + view("")))
                              << lines({"nameless-view at 57: ", "nameless-view at 100: "});
    QTest::newRow("repeated") << document(group("G", view("a") + view("a") + view("a")))
                              << lines({"repeated-view at 79: a", "repeated-view at 101: a"});
    QTest::newRow("repeated in the same group again")
        << document(group("G", view("a")) + group("G", view("a")))
        << lines({"repeated-view at 164: a"});
    QTest::newRow("with a mark") << "\xEF\xBB\xBF" + document(group("G", view("")))
                                 << lines({"nameless-view at 60: "});
    QTest::newRow("after an umlaut")
        << document(group("\u00E4", view(""))) << lines({"nameless-view at 58: "});
    QTest::newRow("unknown place") << "<!DOCTYPE ViewData []>" + document(group("G", view("")))
                                   << lines({"nameless-view at -1: "});
    QTest::newRow("empty states") << document(group("G", view("a", state("w", ""))))
                                  << QStringList();
}

void LayoutDocumentCheckTest::ofTheDocument()
{
    QFETCH(QByteArray, bytes);
    const LayoutDocument document(bytes);
    QVERIFY(document.isReadable());
    QTEST(described(document.check()), "expected");
    for (const Problem& problem : document.check()) {
        const bool isOfView = problem.code != ProblemCode::Version;
        QCOMPARE(problem.group.isNull(), !isOfView);
        QCOMPARE(problem.view.isNull(), !isOfView);
        QVERIFY(problem.window.isNull());
    }
}

void LayoutDocumentCheckTest::placesOfStates()
{
    const QByteArray digits = harmful().toHex();
    const QVector<Problem> problems =
        LayoutDocument(document(group("G", view("a", state("v", digits)), state("w", digits)),
                                toolBarState("t", digits)))
            .check();
    QStringList places;
    for (const Problem& problem : problems) {
        QCOMPARE(identifierOf(problem.code), "dock-area"_s);
        QCOMPARE(problem.offset, 13);
        places.append(quoted(problem.group) + quoted(problem.view) + quoted(problem.window) +
                      (problem.isInCurrentView ? " current"_s : ""_s) +
                      (problem.isInToolBarState ? " tool bars"_s : ""_s));
    }
    QCOMPARE(places, lines({"nullnull't' tool bars", "'G''a''v'", "'G'null'w' current"}));
}

// Also one that a later state of its id replaces: somebody may take the other one out.
void LayoutDocumentCheckTest::everyStateCounts()
{
    const QByteArray good = exampleBlob().toHex();
    const QByteArray bad = harmful().toHex();
    QVERIFY(LayoutDocument(document(group("G", view("a", state("w", good))))).check().isEmpty());
    QCOMPARE(LayoutDocument(document(group("G", view("a", state("w", bad) + state("w", good)))))
                 .check()
                 .size(),
             1);
}

void LayoutDocumentCheckTest::soundness()
{
    QVERIFY(LayoutDocument(document(group("G", view("") + view("")))).isSound());
    QVERIFY(!LayoutDocument(document("", {}, "1")).isSound());
    QVERIFY(LayoutDocument(document("")).isSound());
    QVERIFY(!LayoutDocument().isSound());
    QVERIFY(!LayoutDocument(document(group("G", "", state("w", harmful().toHex())))).isSound());
}

// Each would take minutes, or more stack or memory than there is, if it were not cut short.
void LayoutDocumentCheckTest::hostileDocuments_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("attributes") << "<ViewData" + repeated(" a='1'", 300000) + ">";
    QTest::newRow("attributes in UTF-16") << [] {
        QByteArray wide("\xFF\xFE", 2);
        for (const char character : QByteArray("<ViewData" + repeated(" a='1'", 3000) + "/>"))
            wide.append(character).append('\0');
        return wide;
    }();
    QTest::newRow("deep") << repeated("<ViewData>", 100000);
    QTest::newRow("deep and closed") << repeated("<a>", 50000) + repeated("</a>", 50000);
    QTest::newRow("entities") << "<!DOCTYPE ViewData [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '" +
                                     repeated("&a;", 1000) + "'><!ENTITY c '" +
                                     repeated("&b;", 1000) + "'><!ENTITY d '" +
                                     repeated("&c;", 1000) + "'>]>" +
                                     document(group("G", view("&d;")));
    QTest::newRow("brackets") << repeated("<", 1000000);
    QTest::newRow("comments") << repeated("<!--", 500000);
    QTest::newRow("quotes") << "<ViewData " + repeated("a='", 300000);
    QTest::newRow("zeros") << QByteArray(1000000, '\0');
}

void LayoutDocumentCheckTest::hostileDocuments()
{
    QFETCH(QByteArray, bytes);
    LayoutDocument document(bytes);
    QVERIFY(!document.isReadable());
    const QVector<Problem> problems = document.check();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().severity(), Severity::Refused);
}

QTEST_GUILESS_MAIN(LayoutDocumentCheckTest)
#include "LayoutDocumentCheckTest.moc"
