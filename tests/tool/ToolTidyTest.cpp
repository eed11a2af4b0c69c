// SPDX-License-Identifier: MIT
#include "ToolTest.h"

using namespace Panorel::Tests;

class ToolTidyTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void repeatsAreDropped_data();
    void repeatsAreDropped();
    void nothingToDoIsByteForByte_data();
    void nothingToDoIsByteForByte();
    void outputFile();
    void documentKeepsEverythingElse();
    void namelessLayouts();
    void unsoundState();
    void unsoundStateInADocument();
    void settingsNeedOneState();
    void settingsAreNotReplaced();
};

void ToolTidyTest::repeatsAreDropped_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("bytes") << repeatingState() << tidyState();
    QTest::newRow("hexadecimal") << repeatingState().toHex() + "\n" << tidyState().toHex() + "\n";
    QTest::newRow("base64") << repeatingState().toBase64() << tidyState().toBase64() + "\n";
}

void ToolTidyTest::repeatsAreDropped()
{
    QFETCH(QByteArray, before);
    write("file", before);
    const CommandResult result = panorel("tidy file");
    QCOMPARE(result.status, 0);
    QTEST(result.output, "after");
    QCOMPARE(read("file"), before);
}

void ToolTidyTest::nothingToDoIsByteForByte_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("state") << smallState();
    QTest::newRow("hexadecimal with white space") << " " + smallState().toHex(' ') + "\n\n";
    QTest::newRow("document") << smallDocument();
}

void ToolTidyTest::nothingToDoIsByteForByte()
{
    QFETCH(QByteArray, content);
    write("file", content);
    const CommandResult result = panorel("tidy file -o -");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, content);
}

void ToolTidyTest::outputFile()
{
    write("file", repeatingState());
    const CommandResult result = panorel("tidy file -o out");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(read("out"), tidyState());
}

void ToolTidyTest::documentKeepsEverythingElse()
{
    QByteArray document = smallDocument();
    document.replace(leftState().toHex(), repeatingState().toHex());
    document.replace("    <Groups>", "    <!-- mine -->\n    <Groups>");
    write("file", document);
    QCOMPARE(panorel("tidy file").output,
             document.replace(repeatingState().toHex(), tidyState().toHex()));
}

void ToolTidyTest::namelessLayouts()
{
    write("file", smallDocument().replace("Name=\"Narrow\"", "Name=\"\""));
    QCOMPARE(panorel("tidy file --keep-nameless").output, read("file"));
    const QByteArray tidied = panorel("tidy file").output;
    QVERIFY(tidied.contains("Name=\"Wide\""));
    QVERIFY(!tidied.contains("Name=\"\""));
}

void ToolTidyTest::unsoundState()
{
    write("file", harmfulState());
    const CommandResult result = panorel("tidy file -o out");
    QCOMPARE(result.status, 2);
    QVERIFY(!exists("out"));
}

void ToolTidyTest::unsoundStateInADocument()
{
    write("file", smallDocument().replace(leftState().toHex(), harmfulState().toHex()));
    QCOMPARE(panorel("tidy file -o out").status, 2);
    QVERIFY(!exists("out"));
    const CommandResult result = panorel("tidy file --drop-unsound -o out");
    QCOMPARE(result.status, 0);
    QVERIFY2(result.messages.contains("Editing / Narrow / main"), result.messages.constData());
    QVERIFY(!read("out").contains(harmfulState().toHex()));
    QVERIFY(read("out").contains("Name=\"Narrow\""));
}

void ToolTidyTest::settingsNeedOneState()
{
    write("file",
          "[W]\nA=" + repeatingState().toBase64() + "\nB=" + smallState().toBase64() + "\n");
    QCOMPARE(panorel("tidy file").status, 2);
    QCOMPARE(panorel("tidy file --window W/A").output, tidyState());
}

void ToolTidyTest::settingsAreNotReplaced()
{
    const QByteArray settings = "[W]\nA=" + repeatingState().toBase64() + "\n";
    write("file", settings);
    QCOMPARE(panorel("tidy file").messages,
             QByteArray("panorel: the option --window is missing; see \"panorel help tidy\"\n"));
    const CommandResult result = panorel("tidy file --window W/A -o ./file");
    QCOMPARE(result.status, 2);
    QCOMPARE(result.messages,
             QByteArray("panorel: file: a state is not written over its settings file\n"));
    QCOMPARE(read("file"), settings);
    QCOMPARE(panorel("tidy file --window W/A -o out").status, 0);
    QCOMPARE(read("out"), tidyState());
}

QTEST_GUILESS_MAIN(ToolTidyTest)
#include "ToolTidyTest.moc"
