// SPDX-License-Identifier: MIT
#include "ToolTest.h"

using namespace Panorel::Tests;

class ToolDiffTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void sameStates();
    void movedDockWidget();
    void repeatsAreNoDifference();
    void documents();
    void layoutsOnlyInOne();
    void layoutsOfOneDocument();
    void stateAndLayout();
    void severalLayoutsNeedAChoice();
    void damagedState();
    void damagedStatesOfDocuments();
    void choiceThatIsInNeither_data();
    void choiceThatIsInNeither();
    void choiceThatIsInOne();
    void layoutsAreNamedWithinOneDocument();
    void toolBarStates();

private:
    static QJsonObject moved(const QJsonValue& group, const QJsonValue& view,
                             const QJsonValue& window)
    {
        return {{QStringLiteral("group"), group},
                {QStringLiteral("view"), view},
                {QStringLiteral("window"), window},
                {QStringLiteral("part"), QStringLiteral("dock")},
                {QStringLiteral("name"), QStringLiteral("AB")},
                {QStringLiteral("what"), QStringLiteral("area")},
                {QStringLiteral("from"), QStringLiteral("right")},
                {QStringLiteral("to"), QStringLiteral("left")}};
    }

    static QJsonObject result(bool same, const QJsonArray& changed)
    {
        return {{QStringLiteral("same"), same},
                {QStringLiteral("onlyInA"), QJsonArray()},
                {QStringLiteral("onlyInB"), QJsonArray()},
                {QStringLiteral("changed"), changed}};
    }
};

void ToolDiffTest::sameStates()
{
    write("a", smallState());
    write("b", smallState().toBase64());
    const CommandResult json = panorel("diff --json a b");
    QCOMPARE(json.status, 0);
    QCOMPARE(json.object(), result(true, {}));
    QCOMPARE(panorel("diff a b").output, QByteArray("No difference\n"));
}

void ToolDiffTest::movedDockWidget()
{
    write("a", smallState());
    write("b", leftState());
    const CommandResult json = panorel("diff --json a b");
    QCOMPARE(json.status, 1);
    QCOMPARE(json.object(), result(false, {moved(QJsonValue(), QJsonValue(), QJsonValue())}));
    const CommandResult text = panorel("diff a b");
    QCOMPARE(text.status, 1);
    QCOMPARE(text.output.count('\n'), 1);
    QVERIFY2(text.output.contains("AB"), text.output.constData());
}

void ToolDiffTest::repeatsAreNoDifference()
{
    write("a", repeatingState());
    write("b", tidyState());
    QCOMPARE(panorel("diff a b").status, 0);
}

void ToolDiffTest::documents()
{
    write("a", smallDocument());
    QByteArray document = smallDocument();
    const int at = document.indexOf(smallState().toHex());
    document.replace(at, smallState().size() * 2, leftState().toHex());
    write("b", document);
    QCOMPARE(panorel("diff --json a a").status, 0);
    const CommandResult json = panorel("diff --json a b");
    QCOMPARE(json.status, 1);
    QCOMPARE(json.object(), result(false, {moved(QStringLiteral("Editing"), QStringLiteral("Wide"),
                                                 QStringLiteral("main"))}));
    const CommandResult text = panorel("diff a b");
    QVERIFY2(text.output.startsWith("Editing / Wide / main:\n  "), text.output.constData());
    QCOMPARE(panorel("diff a b --view Narrow").status, 0);
}

void ToolDiffTest::layoutsOnlyInOne()
{
    write("a", smallDocument());
    write("b", smallDocument().replace("Name=\"Wide\"", "Name=\"Broad\""));
    const CommandResult json = panorel("diff --json a b");
    QCOMPARE(json.status, 1);
    QCOMPARE(json.object().value(QStringLiteral("onlyInA")),
             QJsonValue(QJsonArray{QJsonObject{{QStringLiteral("group"), QStringLiteral("Editing")},
                                               {QStringLiteral("view"), QStringLiteral("Wide")}}}));
    QCOMPARE(
        json.object().value(QStringLiteral("onlyInB")),
        QJsonValue(QJsonArray{QJsonObject{{QStringLiteral("group"), QStringLiteral("Editing")},
                                          {QStringLiteral("view"), QStringLiteral("Broad")}}}));
    QCOMPARE(panorel("diff a b").output,
             QByteArray("Only in a: Editing / Wide\nOnly in b: Editing / Broad\n"));
}

void ToolDiffTest::layoutsOfOneDocument()
{
    write("a", smallDocument());
    const CommandResult json = panorel("diff --json a --group Editing --view Wide --with Narrow");
    QCOMPARE(json.status, 1);
    QCOMPARE(json.object(), result(false, {moved(QJsonValue(), QJsonValue(), QJsonValue())}));
    QCOMPARE(panorel("diff a --view Wide --with Wide").status, 0);
    QCOMPARE(panorel("diff a --view Wide --with Other").status, 2);
}

void ToolDiffTest::stateAndLayout()
{
    write("a", leftState());
    write("b", smallDocument());
    QCOMPARE(panorel("diff a b --view Narrow").status, 0);
    QCOMPARE(panorel("diff a b --view Wide").status, 1);
    QCOMPARE(panorel("diff b a --view Narrow").status, 0);
}

void ToolDiffTest::severalLayoutsNeedAChoice()
{
    write("a", leftState());
    write("b", smallDocument());
    const CommandResult result = panorel("diff a b");
    QCOMPARE(result.status, 2);
    QVERIFY(result.messages.startsWith("panorel: b: "));
}

void ToolDiffTest::damagedState()
{
    write("a", smallState());
    write("b", smallState().chopped(1));
    QCOMPARE(panorel("diff a b").status, 2);
}

void ToolDiffTest::damagedStatesOfDocuments()
{
    write("a", smallDocument());
    write("b", smallDocument().replace(leftState().toHex(), leftState().chopped(1).toHex()));
    for (const char* arguments : {"diff a b", "diff b a", "diff b b --view Narrow"}) {
        const CommandResult result = panorel(arguments);
        QCOMPARE(result.status, 2);
        QCOMPARE(result.messages, QByteArray("panorel: b: Editing / Narrow / main is damaged\n"));
        QCOMPARE(result.output, QByteArray());
    }
    QCOMPARE(panorel("diff a b --view Wide").status, 0);
}

void ToolDiffTest::choiceThatIsInNeither_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("group") << QStringLiteral("--group Other")
                           << QByteArray("panorel: a, b: there is no group \"Other\"; there are: "
                                         "\"Editing\", \"Debugging\", \"Drawing\"\n");
    QTest::newRow("layout") << QStringLiteral("--view Other")
                            << QByteArray("panorel: a, b: there is no layout \"Other\"; there are: "
                                          "\"Wide\", \"Narrow\"\n");
    QTest::newRow("window") << QStringLiteral("--window other")
                            << QByteArray("panorel: a, b: there is no window \"other\"; there are: "
                                          "\"main\"\n");
    QTest::newRow("layout and working layout")
        << QStringLiteral("--view Wide --current")
        << QByteArray("panorel: --view and --current exclude each other\n");
}

void ToolDiffTest::choiceThatIsInNeither()
{
    QFETCH(QString, choice);
    write("a", smallDocument());
    write("b", smallDocument().replace("\"Editing\"", "\"Drawing\""));
    const CommandResult result = panorel(QStringLiteral("diff a b ") + choice);
    QCOMPARE(result.status, 2);
    QTEST(result.messages, "message");
}

void ToolDiffTest::choiceThatIsInOne()
{
    write("a", smallDocument());
    write("b", smallDocument().replace("Name=\"Wide\"", "Name=\"Broad\""));
    QCOMPARE(panorel("diff a b --view Wide").output, QByteArray("Only in a: Editing / Wide\n"));
    QCOMPARE(panorel("diff a b --view Broad").output, QByteArray("Only in b: Editing / Broad\n"));
}

void ToolDiffTest::layoutsAreNamedWithinOneDocument()
{
    const QByteArray state = "<State DescriptorId=\"main\">" + leftState().toHex() + "</State>";
    write("a", smallDocument().replace(state, state + "<State DescriptorId=\"other\">" +
                                                  leftState().toHex() + "</State>"));
    QVERIFY(panorel("diff a --view Narrow --with Wide").output.contains("Only in Narrow: other\n"));
    QVERIFY(panorel("diff a --view Wide --with Narrow").output.contains("Only in Narrow: other\n"));
    QVERIFY(panorel("diff a --group Editing --current --with Narrow")
                .output.contains("Only in Narrow: other\n"));
}

void ToolDiffTest::toolBarStates()
{
    const auto document = [](const QByteArray& state) {
        return smallDocument().replace("    <Groups>", "    <ToolBarState DescriptorId=\"main\">" +
                                                           state.toHex() +
                                                           "</ToolBarState>\n    <Groups>");
    };
    write("a", document(smallState()));
    write("b", document(leftState()));
    QJsonObject change = moved(QJsonValue(), QJsonValue(), QStringLiteral("main"));
    change.insert(QStringLiteral("toolBarState"), true);
    QCOMPARE(panorel("diff --json a b").object(), result(false, {change}));
    const CommandResult text = panorel("diff a b");
    QVERIFY2(text.output.startsWith("(tool bars) / main:\n"), text.output.constData());
    QCOMPARE(panorel("diff a b --group Editing").status, 0);
}

QTEST_GUILESS_MAIN(ToolDiffTest)
#include "ToolDiffTest.moc"
