// SPDX-License-Identifier: MIT
#include "ToolTest.h"

using namespace Panorel::Tests;

class ToolCheckTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void soundFile_data();
    void soundFile();
    void harmfulState();
    void harmfulStateInADocument();
    void currentViewIsMarked();
    void toolBarStateIsMarked();
    void notesAreNoFinding();
    void refusedDocuments_data();
    void refusedDocuments();
    void quietPrintsNothing();
    void severalFiles();
    void unreadableFileAmongOthers();
    void choiceNarrows();
    void settingsNameTheirKeys();
    void wordsAreTranslatedButNotJson();
    void unrecognisedFileAsJson();

private:
    QJsonObject onlyFile(const CommandResult& result)
    {
        return result.array().size() == 1 ? result.array().at(0).toObject() : QJsonObject();
    }
};

void ToolCheckTest::soundFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("kind");
    QTest::newRow("bytes") << smallState() << QStringLiteral("state");
    QTest::newRow("hexadecimal") << smallState().toHex(' ').toUpper() << QStringLiteral("state");
    QTest::newRow("base64") << smallState().toBase64().insert(40, "\n  ")
                            << QStringLiteral("state");
    QTest::newRow("document") << smallDocument() << QStringLiteral("document");
    QTest::newRow("settings") << "[MainWindow]\nState=" + smallState().toBase64() + "\n"
                              << QStringLiteral("settings");
}

void ToolCheckTest::soundFile()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, kind);
    write("file", content);
    const CommandResult text = panorel("check file");
    QCOMPARE(text.output, QByteArray("file: sound\n"));
    QCOMPARE(text.status, 0);

    const CommandResult json = panorel("check --json file");
    QCOMPARE(json.status, 0);
    QCOMPARE(onlyFile(json), (QJsonObject{{QStringLiteral("file"), QStringLiteral("file")},
                                          {QStringLiteral("kind"), kind},
                                          {QStringLiteral("sound"), true},
                                          {QStringLiteral("problems"), QJsonArray()}}));
}

void ToolCheckTest::harmfulState()
{
    write("file", Panorel::Tests::harmfulState());
    const CommandResult text = panorel("check file");
    QCOMPARE(text.status, 1);
    QVERIFY2(text.output.startsWith("file: byte 13: "), text.output.constData());
    QCOMPARE(text.output.count('\n'), 1);

    const CommandResult json = panorel("check --json file");
    QCOMPARE(json.status, 1);
    const QJsonObject file = onlyFile(json);
    QCOMPARE(file.value(QStringLiteral("sound")), QJsonValue(false));
    const QJsonArray problems = file.value(QStringLiteral("problems")).toArray();
    QCOMPARE(problems.size(), 1);
    QJsonObject problem = problems.at(0).toObject();
    QVERIFY(!problem.take(QStringLiteral("text")).toString().isEmpty());
    QCOMPARE(problem, (QJsonObject{{QStringLiteral("group"), QJsonValue()},
                                   {QStringLiteral("view"), QJsonValue()},
                                   {QStringLiteral("window"), QJsonValue()},
                                   {QStringLiteral("severity"), QStringLiteral("harmful")},
                                   {QStringLiteral("code"), QStringLiteral("dock-area")},
                                   {QStringLiteral("offset"), 13}}));
}

void ToolCheckTest::harmfulStateInADocument()
{
    write("file",
          smallDocument().replace(leftState().toHex(), Panorel::Tests::harmfulState().toHex()));
    const CommandResult text = panorel("check file");
    QCOMPARE(text.status, 1);
    QVERIFY2(text.output.startsWith("file: Editing / Narrow / main, byte 13: "),
             text.output.constData());

    QJsonObject problem = onlyFile(panorel("check --json file"))
                              .value(QStringLiteral("problems"))
                              .toArray()
                              .at(0)
                              .toObject();
    problem.remove(QStringLiteral("text"));
    QCOMPARE(problem, (QJsonObject{{QStringLiteral("group"), QStringLiteral("Editing")},
                                   {QStringLiteral("view"), QStringLiteral("Narrow")},
                                   {QStringLiteral("window"), QStringLiteral("main")},
                                   {QStringLiteral("severity"), QStringLiteral("harmful")},
                                   {QStringLiteral("code"), QStringLiteral("dock-area")},
                                   {QStringLiteral("offset"), 13}}));
}

void ToolCheckTest::currentViewIsMarked()
{
    QByteArray document = smallDocument();
    const int current = document.indexOf("<CurrentView");
    document.replace(document.indexOf(smallState().toHex(), current), smallState().size() * 2,
                     Panorel::Tests::harmfulState().toHex());
    write("file", document);
    const QJsonObject problem = onlyFile(panorel("check --json file"))
                                    .value(QStringLiteral("problems"))
                                    .toArray()
                                    .at(0)
                                    .toObject();
    QCOMPARE(problem.value(QStringLiteral("current")), QJsonValue(true));
    QCOMPARE(problem.value(QStringLiteral("view")), QJsonValue(QJsonValue::Null));
    QCOMPARE(problem.value(QStringLiteral("group")), QJsonValue(QStringLiteral("Editing")));
}

void ToolCheckTest::toolBarStateIsMarked()
{
    write("file",
          smallDocument().replace("    <Groups>", "    <ToolBarState DescriptorId=\"main\">" +
                                                      Panorel::Tests::harmfulState().toHex() +
                                                      "</ToolBarState>\n    <Groups>"));
    const QJsonObject problem = onlyFile(panorel("check --json file"))
                                    .value(QStringLiteral("problems"))
                                    .toArray()
                                    .at(0)
                                    .toObject();
    QCOMPARE(problem.value(QStringLiteral("toolBarState")), QJsonValue(true));
    QCOMPARE(problem.value(QStringLiteral("group")), QJsonValue(QJsonValue::Null));
    QCOMPARE(problem.value(QStringLiteral("window")), QJsonValue(QStringLiteral("main")));
}

void ToolCheckTest::notesAreNoFinding()
{
    write("file", repeatingState());
    const CommandResult json = panorel("check --json file");
    QCOMPARE(json.status, 0);
    QCOMPARE(onlyFile(json).value(QStringLiteral("sound")), QJsonValue(true));
    const QJsonArray problems = onlyFile(json).value(QStringLiteral("problems")).toArray();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.at(0).toObject().value(QStringLiteral("code")),
             QJsonValue(QStringLiteral("repeats")));
    QCOMPARE(panorel("check file").status, 0);
}

void ToolCheckTest::refusedDocuments_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("code");
    QTest::newRow("end missing") << smallDocument().chopped(20)
                                 << QStringLiteral("not-well-formed");
    QTest::newRow("unknown element")
        << smallDocument().replace("<Views/>", "<Views/><Other/>") << QStringLiteral("not-valid");
    QTest::newRow("other version")
        << smallDocument().replace("1.1.0", "1.2.0") << QStringLiteral("version");
}

void ToolCheckTest::refusedDocuments()
{
    QFETCH(QByteArray, content);
    write("file", content);
    const CommandResult json = panorel("check --json file");
    QCOMPARE(json.status, 1);
    const QJsonObject problem =
        onlyFile(json).value(QStringLiteral("problems")).toArray().at(0).toObject();
    QTEST(problem.value(QStringLiteral("code")).toString(), "code");
    QCOMPARE(problem.value(QStringLiteral("severity")), QJsonValue(QStringLiteral("refused")));
}

void ToolCheckTest::quietPrintsNothing()
{
    write("sound", smallState());
    write("harmful", Panorel::Tests::harmfulState());
    for (const char* options : {"--quiet", "--quiet --json"}) {
        const CommandResult sound =
            panorel(QStringLiteral("check %1 sound").arg(QLatin1String(options)));
        QCOMPARE(sound.status, 0);
        QCOMPARE(sound.output, QByteArray());
        const CommandResult harmful =
            panorel(QStringLiteral("check %1 harmful").arg(QLatin1String(options)));
        QCOMPARE(harmful.status, 1);
        QCOMPARE(harmful.output, QByteArray());
    }
}

void ToolCheckTest::severalFiles()
{
    write("a", smallState());
    write("b", Panorel::Tests::harmfulState());
    const CommandResult text = panorel("check a b a");
    QCOMPARE(text.status, 1);
    const QList<QByteArray> lines = text.output.split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], QByteArray("a: sound"));
    QVERIFY(lines[1].startsWith("b: byte 13: "));
    QCOMPARE(lines[2], QByteArray("a: sound"));
    QCOMPARE(panorel("check --json a b").array().size(), 2);
}

void ToolCheckTest::unreadableFileAmongOthers()
{
    write("a", Panorel::Tests::harmfulState());
    const CommandResult result = panorel("check missing a");
    QCOMPARE(result.status, 2);
    QVERIFY(result.output.startsWith("a: byte 13: "));
    QVERIFY(result.messages.startsWith("panorel: missing: "));
}

void ToolCheckTest::choiceNarrows()
{
    write("file",
          smallDocument().replace(leftState().toHex(), Panorel::Tests::harmfulState().toHex()));
    QCOMPARE(panorel("check file --view Wide").output, QByteArray("file: sound\n"));
    QCOMPARE(panorel("check file --current").status, 0);
    QCOMPARE(panorel("check file --group Editing --view Narrow --window main").status, 1);
    const CommandResult unknown = panorel("check file --view Other");
    QCOMPARE(unknown.status, 2);
    QVERIFY2(unknown.messages.contains("\"Wide\", \"Narrow\""), unknown.messages.constData());
    const CommandResult window = panorel("check file --window other");
    QCOMPARE(window.status, 2);
    QVERIFY2(window.messages.contains("\"main\""), window.messages.constData());
    const CommandResult group = panorel("check file --group Other");
    QCOMPARE(group.status, 2);
    QVERIFY2(group.messages.contains("\"Editing\", \"Debugging\""), group.messages.constData());
}

void ToolCheckTest::settingsNameTheirKeys()
{
    write("file", "[MainWindow]\nGood=" + smallState().toBase64() +
                      "\nBad=" + Panorel::Tests::harmfulState().toBase64() + "\n");
    const CommandResult json = panorel("check --json file");
    QCOMPARE(json.status, 1);
    const QJsonObject problem =
        onlyFile(json).value(QStringLiteral("problems")).toArray().at(0).toObject();
    QCOMPARE(problem.value(QStringLiteral("window")), QJsonValue(QStringLiteral("MainWindow/Bad")));
    QCOMPARE(panorel("check file --window MainWindow/Good").status, 0);
}

void ToolCheckTest::wordsAreTranslatedButNotJson()
{
    write("file", Panorel::Tests::harmfulState());
    const QStringList german{QStringLiteral("LANGUAGE=de"), QStringLiteral("LC_ALL=C.UTF-8")};
    const CommandResult text =
        runPanorel({QStringLiteral("check"), QStringLiteral("file")}, folder(), {}, german);
    QVERIFY2(text.output.contains("Seite"), text.output.constData());
    const CommandResult json =
        runPanorel({QStringLiteral("check"), QStringLiteral("--json"), QStringLiteral("file")},
                   folder(), {}, german);
    QCOMPARE(json.output, panorel("check --json file").output);
}

void ToolCheckTest::unrecognisedFileAsJson()
{
    write("a", smallState());
    write("b", "prose");
    const CommandResult result = panorel("check --json a b missing");
    QCOMPARE(result.status, 2);
    QCOMPARE(result.array().size(), 3);
    for (const int index : {1, 2}) {
        const QString file = QLatin1String(index == 1 ? "b" : "missing");
        QCOMPARE(result.array().at(index).toObject(),
                 (QJsonObject{{QStringLiteral("file"), file},
                              {QStringLiteral("kind"), QJsonValue()},
                              {QStringLiteral("sound"), false},
                              {QStringLiteral("problems"), QJsonArray()}}));
        QVERIFY(result.messages.contains("panorel: " + file.toLatin1() + ": "));
    }
}

QTEST_GUILESS_MAIN(ToolCheckTest)
#include "ToolCheckTest.moc"
