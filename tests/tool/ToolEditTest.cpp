// SPDX-License-Identifier: MIT
#include "ToolTest.h"

using namespace Panorel::Tests;

namespace {

// The lines of one view of smallDocument().
QByteArray lines(const QByteArray& document, const QByteArray& view)
{
    const int name = document.indexOf("Name=\"" + view + "\"");
    const int start = document.lastIndexOf("                <View ", name);
    const int end = document.indexOf("</View>\n", name) + 8;
    return document.mid(start, end - start);
}

} // namespace

class ToolEditTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void renameLayout();
    void renameWindow();
    void renameToATakenName();
    void moveBefore();
    void moveLast();
    void remove();
    void copyAll();
    void copyOne();
    void copyWithTakenNames();
    void copyNeedsTheGroup();
    void unknownNamesAreListed();
    void notADocument();
    void toStandardOutput();
    void groupMustBeNamed();
    void documentTypeIsNotKept();
};

void ToolEditTest::renameLayout()
{
    write("a", smallDocument());
    QCOMPARE(panorel("rename a --group Editing --view Narrow --to A&B -o b").status, 0);
    QCOMPARE(read("b"), smallDocument().replace("Name=\"Narrow\"", "Name=\"A&amp;B\""));
    QCOMPARE(read("a"), smallDocument());
}

void ToolEditTest::renameWindow()
{
    write("a", smallDocument());
    QCOMPARE(panorel("rename a --window main --to editor -o b").status, 0);
    QCOMPARE(read("b"),
             smallDocument().replace("DescriptorId=\"main\"", "DescriptorId=\"editor\""));
}

void ToolEditTest::renameToATakenName()
{
    write("a", smallDocument());
    QCOMPARE(panorel("rename a --group Editing --view Narrow --to Wide -o b").status, 2);
    QVERIFY(!exists("b"));
}

void ToolEditTest::moveBefore()
{
    write("a", smallDocument());
    QCOMPARE(panorel("move a --group Editing --view Narrow --before Wide -o b").status, 0);
    const QByteArray narrow = lines(smallDocument(), "Narrow");
    QByteArray expected = smallDocument().replace(narrow, "");
    expected.insert(expected.indexOf("                <View "), narrow);
    QCOMPARE(read("b"), expected);
}

void ToolEditTest::moveLast()
{
    write("a", smallDocument());
    QCOMPARE(panorel("move a --group Editing --view Wide --last -o b").status, 0);
    const QByteArray wide = lines(smallDocument(), "Wide");
    QByteArray expected = smallDocument().replace(wide, "");
    expected.insert(expected.indexOf("            </Views>"), wide);
    QCOMPARE(read("b"), expected);
}

void ToolEditTest::remove()
{
    write("a", smallDocument());
    QCOMPARE(panorel("remove a --group Editing --view Wide -o b").status, 0);
    QCOMPARE(read("b"), smallDocument().replace(lines(smallDocument(), "Wide"), ""));
    QCOMPARE(panorel("remove a --group Editing --view Wide --view Narrow -o b").status, 0);
    QVERIFY(!read("b").contains("<View "));
}

void ToolEditTest::copyAll()
{
    write("from", smallDocument());
    QCOMPARE(panorel("remove from --group Editing --view Wide --view Narrow -o into").status, 0);
    QCOMPARE(panorel("copy from into -o out").status, 0);
    const QJsonObject out = panorel("show --json out").object();
    const QJsonArray views = out.value(QStringLiteral("groups"))
                                 .toArray()
                                 .at(0)
                                 .toObject()
                                 .value(QStringLiteral("views"))
                                 .toArray();
    QCOMPARE(views.size(), 2);
    QCOMPARE(views.at(0).toObject().value(QStringLiteral("name")),
             QJsonValue(QStringLiteral("Wide")));
    QCOMPARE(panorel("diff from out").status, 0);
}

void ToolEditTest::copyOne()
{
    write("from", smallDocument());
    QCOMPARE(panorel("remove from --group Editing --view Narrow -o into").status, 0);
    QCOMPARE(panorel("copy from into --group Editing --view Narrow -o out").status, 0);
    QCOMPARE(panorel("diff from out").status, 0);
    QCOMPARE(panorel("copy from into --group Editing --view Other -o out2").status, 2);
    QVERIFY(!exists("out2"));
}

void ToolEditTest::copyWithTakenNames()
{
    write("from", smallDocument().replace(leftState().toHex(), tidyState().toHex()));
    write("into", smallDocument());
    QCOMPARE(panorel("copy from into --view Narrow -o out").status, 2);
    QVERIFY(!exists("out"));
    QCOMPARE(panorel("copy from into --view Narrow --replace -o replaced").status, 0);
    QCOMPARE(panorel("diff from replaced").status, 0);
    QCOMPARE(panorel("copy from into --view Narrow --keep-both -o both").status, 0);
    const QJsonObject both = panorel("diff --json into both").object();
    QCOMPARE(both.value(QStringLiteral("onlyInB")).toArray().size(), 1);
    QCOMPARE(both.value(QStringLiteral("changed")).toArray().size(), 0);
}

void ToolEditTest::copyNeedsTheGroup()
{
    write("from", smallDocument());
    write("into", smallDocument().replace("Name=\"Editing\"", "Name=\"Drawing\""));
    QCOMPARE(panorel("copy from into -o out").status, 2);
    QVERIFY(!exists("out"));
}

void ToolEditTest::unknownNamesAreListed()
{
    write("a", smallDocument());
    const CommandResult view = panorel("remove a --group Editing --view Other -o b");
    QCOMPARE(view.status, 2);
    QVERIFY2(view.messages.contains("Wide") && view.messages.contains("Narrow"),
             view.messages.constData());
    const CommandResult group = panorel("remove a --group Other --view Wide -o b");
    QCOMPARE(group.status, 2);
    QVERIFY2(group.messages.contains("Editing") && group.messages.contains("Debugging"),
             group.messages.constData());
    const CommandResult window = panorel("rename a --window other --to new -o b");
    QCOMPARE(window.status, 2);
    QVERIFY2(window.messages.contains("main"), window.messages.constData());
    QVERIFY(!exists("b"));
}

void ToolEditTest::notADocument()
{
    write("a", smallState());
    QCOMPARE(panorel("remove a --group Editing --view Wide -o b").status, 2);
}

void ToolEditTest::toStandardOutput()
{
    const CommandResult result =
        panorel("rename - --group Editing --view Wide --to Broad -o -", smallDocument());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, smallDocument().replace("Name=\"Wide\"", "Name=\"Broad\""));
}

void ToolEditTest::groupMustBeNamed()
{
    write("a", smallDocument());
    for (const char* arguments : {"rename a --view Wide --to Broad -o b",
                                  "move a --view Wide --last -o b", "remove a --view Wide -o b"}) {
        const CommandResult result = panorel(arguments);
        QCOMPARE(result.status, 2);
        QCOMPARE(result.messages, QByteArray("panorel: a: the option --group is missing; there "
                                             "are: \"Editing\", \"Debugging\"\n"));
        QVERIFY(!exists("b"));
    }
}

void ToolEditTest::documentTypeIsNotKept()
{
    write("a", smallDocument().replace("<ViewData", "<!DOCTYPE ViewData>\n<ViewData"));
    const QByteArray remark = "panorel: a: is written again as a whole, because of its document "
                              "type or encoding\n";
    const CommandResult result = panorel("remove a --group Editing --view Wide -o b");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.messages, remark);
    QVERIFY(!read("b").contains("DOCTYPE"));
    QCOMPARE(panorel("remove b --group Editing --view Narrow -o c").messages, QByteArray());
    // Without a change the bytes are those of before.
    const CommandResult tidied = panorel("tidy a");
    QCOMPARE(tidied.messages, QByteArray());
    QCOMPARE(tidied.output, read("a"));
}

QTEST_GUILESS_MAIN(ToolEditTest)
#include "ToolEditTest.moc"
