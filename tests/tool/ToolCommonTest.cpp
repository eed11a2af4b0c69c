// SPDX-License-Identifier: MIT
#include "ToolTest.h"

#include <QProcess>
#include <QRegularExpression>

#include <sys/stat.h>

using namespace Panorel::Tests;

static const char* const commandNames[] = {
    "check", "show",   "diff", "render",          "tidy", "copy", "rename",
    "move",  "remove", "run",  "install-launcher"};

/** What all commands have in common: help, wrong calls, and files that cannot be worked on. */
class ToolCommonTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void versionIsShown();
    void helpListsEachCommand();
    void helpOfACommand_data();
    void helpOfACommand();
    void wrongCalls_data();
    void wrongCalls();
    void unusableFiles_data();
    void unusableFiles();
    void pipeIsRefusedAtOnce();
    void largeFileNamesTheLimit();
    void limitCanBeLifted();
    void outputThatCannotBeWritten();
    void existingFileIsReplaced();
    void namesAreUtf8InThePlainLocale();
    void standardInputIsRead();
    void fullStandardOutput_data();
    void fullStandardOutput();
    void controlCharactersAreEscaped();
    void helpNamesWhatIsNeeded();
    void messagesNameOptionsAsTyped();
    void completionOffersWhatACommandTakes_data();
    void completionOffersWhatACommandTakes();
};

void ToolCommonTest::versionIsShown()
{
    const CommandResult result = panorel("--version");
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.startsWith("panorel 1."), result.output.constData());
    QCOMPARE(panorel("check --version").output, result.output);
}

void ToolCommonTest::helpListsEachCommand()
{
    for (const char* arguments : {"--help", "help", "help help", "help --help"}) {
        const CommandResult result = panorel(arguments);
        QCOMPARE(result.status, 0);
        for (const char* command : commandNames)
            QVERIFY2(result.output.contains("\n  " + QByteArray(command) + " "), command);
    }
}

void ToolCommonTest::helpOfACommand_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char* command : commandNames) {
        QTest::newRow(command) << QStringLiteral("help ") + QLatin1String(command);
        QTest::addRow("%s --help", command) << QLatin1String(command) + QStringLiteral(" --help");
    }
}

void ToolCommonTest::helpOfACommand()
{
    QFETCH(QString, arguments);
    const CommandResult result = panorel(arguments);
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains("--help"));
    QVERIFY(result.messages.isEmpty());
}

void ToolCommonTest::wrongCalls_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("unknown command") << QStringLiteral("frobnicate");
    QTest::newRow("help of an unknown command") << QStringLiteral("help frobnicate");
    QTest::newRow("unknown option") << QStringLiteral("check --frobnicate a");
    QTest::newRow("no file") << QStringLiteral("check");
    QTest::newRow("one file too many") << QStringLiteral("show a b");
    QTest::newRow("nothing to compare with") << QStringLiteral("diff a");
    QTest::newRow("no output") << QStringLiteral("render a");
    QTest::newRow("no new name") << QStringLiteral("rename a --group G --view V -o b");
    QTest::newRow("neither before nor last") << QStringLiteral("move a --group G --view V -o b");
    QTest::newRow("both before and last")
        << QStringLiteral("move a --group G --view V --last --before W -o b");
    QTest::newRow("both replace and keep-both")
        << QStringLiteral("copy a a -o b --replace --keep-both");
    QTest::newRow("size without a height") << QStringLiteral("render a -o b --size 100");
    QTest::newRow("size of nothing") << QStringLiteral("render a -o b --size 0x100");
    QTest::newRow("a value twice") << QStringLiteral("show a --group Editing --group Debugging");
    QTest::newRow("output twice") << QStringLiteral(
        "remove a --group Editing --view Wide -o b -o c");
    QTest::newRow("several layouts to rename")
        << QStringLiteral("rename a --group Editing --view Wide --view Narrow --to X -o b");
    QTest::newRow("limit that is no number") << QStringLiteral("show a --max-size many");
}

void ToolCommonTest::wrongCalls()
{
    QFETCH(QString, arguments);
    write("a", smallDocument());
    const CommandResult result = panorel(arguments);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.messages.startsWith("panorel: "), result.messages.constData());
    QCOMPARE(result.output, QByteArray());
    QVERIFY(!exists("b"));
}

void ToolCommonTest::unusableFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("prose") << QByteArray("Dear all, this is no layout.\n");
    QTest::newRow("other XML") << QByteArray("<?xml version=\"1.0\"?><svg/>");
    QTest::newRow("settings without a state") << QByteArray("[General]\nname=value\n");
    QTest::newRow("noise") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
}

void ToolCommonTest::unusableFiles()
{
    QFETCH(QByteArray, content);
    if (!content.isNull())
        write("file", content);
    for (const char* arguments :
         {"check file", "show file", "diff file file", "render file -o out.png",
          "tidy file -o out.png", "remove file --group G --view V -o out.png"}) {
        const CommandResult result = panorel(arguments);
        QCOMPARE(result.status, 2);
        QVERIFY2(result.messages.startsWith("panorel: file: "), result.messages.constData());
        QCOMPARE(result.output, QByteArray());
        QVERIFY(!exists("out.png"));
    }
}

void ToolCommonTest::pipeIsRefusedAtOnce()
{
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    const CommandResult result = panorel("show pipe");
    QCOMPARE(result.status, 2);
    QVERIFY2(result.messages.startsWith("panorel: pipe: "), result.messages.constData());
}

void ToolCommonTest::largeFileNamesTheLimit()
{
    write("large", smallDocument() + QByteArray(1024 * 1024, ' '));
    const CommandResult result = panorel("show large --max-size 1");
    QCOMPARE(result.status, 2);
    QVERIFY2(result.messages.contains("1.00 MiB"), result.messages.constData());
}

void ToolCommonTest::limitCanBeLifted()
{
    write("large", smallDocument() + QByteArray(1024 * 1024, ' '));
    QCOMPARE(panorel("show large --max-size 2").status, 0);
    QCOMPARE(panorel("show large --max-size 0").status, 0);
}

void ToolCommonTest::outputThatCannotBeWritten()
{
    write("a", smallDocument());
    const CommandResult result =
        panorel("remove a --group Editing --view Wide -o missing/folder/b");
    QCOMPARE(result.status, 2);
    QVERIFY2(result.messages.startsWith("panorel: missing/folder/b: "),
             result.messages.constData());
    QCOMPARE(read("a"), smallDocument());
}

void ToolCommonTest::existingFileIsReplaced()
{
    write("a", smallDocument());
    QCOMPARE(panorel("rename a --group Editing --view Wide --to Broad -o a").status, 0);
    QCOMPARE(read("a"), smallDocument().replace("Name=\"Wide\"", "Name=\"Broad\""));
}

void ToolCommonTest::namesAreUtf8InThePlainLocale()
{
    write("a", smallDocument());
    const QStringList arguments{QStringLiteral("rename"),  QStringLiteral("a"),
                                QStringLiteral("--view"),  QStringLiteral("Wide"),
                                QStringLiteral("--group"), QStringLiteral("Editing"),
                                QStringLiteral("--to"),    QString::fromUtf8("Größe 幅"),
                                QStringLiteral("-o"),      QStringLiteral("-")};
    // The process that runs this test passes UTF-8 on.
    const CommandResult result =
        runPanorel(arguments, folder(), QByteArray(), {QStringLiteral("LC_ALL=C")});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains(u8"Name=\"Größe 幅\""));
}

void ToolCommonTest::standardInputIsRead()
{
    QCOMPARE(panorel("check -", smallState()).output, QByteArray("-: sound\n"));
    const CommandResult twice = panorel("check - -", smallState());
    QCOMPARE(twice.status, 2);
    QCOMPARE(twice.messages,
             QByteArray("panorel: - is given more than once; see \"panorel help check\"\n"));
    QCOMPARE(twice.output, QByteArray());
}

void ToolCommonTest::fullStandardOutput_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char* arguments :
         {"show a", "show --json a", "check a", "diff a a", "--help", "help show", "--version",
          "remove a --group Editing --view Wide -o -"})
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
}

void ToolCommonTest::fullStandardOutput()
{
    QFETCH(QString, arguments);
    write("a", smallDocument());
    QProcess shell;
    shell.setWorkingDirectory(folder());
    shell.start(QStringLiteral("sh"),
                {QStringLiteral("-c"), QStringLiteral("\"$0\" %1 >/dev/full").arg(arguments),
                 QStringLiteral(PANOREL_COMMAND)});
    QVERIFY(shell.waitForFinished(60000));
    QCOMPARE(shell.exitCode(), 2);
    QCOMPARE(shell.readAllStandardError(),
             QByteArray("panorel: cannot write to standard output\n"));
}

void ToolCommonTest::controlCharactersAreEscaped()
{
    write("a", smallDocument().replace("Name=\"Wide\"", "Name=\"W&#10;&#x7F;\u009B\u202E\u2066\""));
    const CommandResult text = panorel("show a");
    QVERIFY2(text.output.contains("Layout \"W\\u000A\\u007F\\u009B\\u202E\\u2066\" (active)\n"),
             text.output.constData());
    const CommandResult message = panorel("show a --view \x1B[2J");
    QVERIFY2(message.messages.contains("\"\\u001B[2J\"") && message.messages.contains("\"W\\u000A"),
             message.messages.constData());
    const QJsonObject json = panorel("show --json a").object();
    QCOMPARE(json[QStringLiteral("groups")][0][QStringLiteral("views")][0][QStringLiteral("name")],
             QJsonValue(QString::fromUtf8("W\n\x7F\u009B\u202E\u2066")));
}

void ToolCommonTest::helpNamesWhatIsNeeded()
{
    QVERIFY(panorel("help show").output.startsWith("Usage: panorel show [options] FILE\n"));
    QVERIFY(panorel("render --help")
                .output.startsWith("Usage: panorel render [options] FILE -o OUT\n"));
}

void ToolCommonTest::messagesNameOptionsAsTyped()
{
    write("a", smallDocument());
    QCOMPARE(panorel("render a").messages,
             QByteArray("panorel: the option -o is missing; see \"panorel help render\"\n"));
    const CommandResult unknown = panorel("check --frobnicate a");
    QVERIFY2(unknown.messages.endsWith("'frobnicate'; see \"panorel help check\"\n"),
             unknown.messages.constData());
}

void ToolCommonTest::completionOffersWhatACommandTakes_data()
{
    QTest::addColumn<QString>("command");
    for (const char* command : commandNames)
        QTest::newRow(command) << QString::fromLatin1(command);
}

void ToolCommonTest::completionOffersWhatACommandTakes()
{
    QFETCH(QString, command);
    QProcess shell;
    shell.start(QStringLiteral("bash"),
                {QStringLiteral("-c"),
                 QStringLiteral("source \"$0\"; COMP_WORDS=(panorel \"$1\" -); COMP_CWORD=2; "
                                "_panorel; printf '%s\\n' \"${COMPREPLY[@]}\""),
                 QStringLiteral(PANOREL_COMPLETION), command});
    QVERIFY(shell.waitForFinished(60000));
    QStringList offered = QString::fromUtf8(shell.readAllStandardOutput())
                              .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    // In help each option begins a line, after its short form if it has both.
    QStringList taken;
    static const QRegularExpression option(QStringLiteral("^  (?:-\\w, )?(--[a-z-]+|-o)"),
                                           QRegularExpression::MultilineOption);
    auto matches =
        option.globalMatch(QString::fromUtf8(panorel(command + QStringLiteral(" --help")).output));
    while (matches.hasNext())
        taken.append(matches.next().captured(1));
    offered.sort();
    taken.sort();
    QCOMPARE(offered, taken);
}

QTEST_GUILESS_MAIN(ToolCommonTest)
#include "ToolCommonTest.moc"
