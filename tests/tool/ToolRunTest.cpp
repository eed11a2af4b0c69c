// SPDX-License-Identifier: MIT
#include "ToolTest.h"

#include <QDir>

using namespace Panorel::Tests;

/** "panorel run", with the shell as the program. What the plugin does in a program is not tested
    here. */
class ToolRunTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void pluginIsLoaded_data();
    void pluginIsLoaded();
    void programGetsItsArguments();
    void argumentsAreNotChanged();
    void statusIsThePrograms();
    void inputIsThePrograms();
    void programThatIsMissing();
    void withoutPlugin();
    void listOfPrograms();
    void listOfNone();
    void wrongCalls_data();
    void wrongCalls();

private:
    CommandResult run(const QStringList& arguments, const QStringList& environment = {},
                      const QByteArray& input = QByteArray())
    {
        const QStringList variables{QStringLiteral("QT_PLUGIN_PATH=" PLUGINS),
                                    QStringLiteral("XDG_DATA_HOME=") + folder()};
        return runPanorel(QStringList{QStringLiteral("run")} + arguments, folder(), input,
                          variables + environment);
    }
};

void ToolRunTest::pluginIsLoaded_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QByteArray>("plugins");
    QTest::newRow("alone") << QString() << QString() << QByteArray("panorel\n");
    QTest::newRow("merging") << QStringLiteral("--merge") << QString()
                             << QByteArray("panorel:merge\n");
    QTest::newRow("beside others")
        << QString() << QStringLiteral("a:b,c") << QByteArray("panorel,a:b,c\n");
}

void ToolRunTest::pluginIsLoaded()
{
    QFETCH(QString, arguments);
    QFETCH(QString, before);
    const QStringList options = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const CommandResult result =
        run(options + QStringList{QStringLiteral("sh"), QStringLiteral("-c"),
                                  QStringLiteral("echo \"$QT_QPA_GENERIC_PLUGINS\"")},
            {QStringLiteral("QT_QPA_GENERIC_PLUGINS=") + before});
    QTEST(result.output, "plugins");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.messages, QByteArray());
}

void ToolRunTest::programGetsItsArguments()
{
    const CommandResult result =
        run({QStringLiteral("printf"), QStringLiteral("<%s>"), QStringLiteral("--help"),
             QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("--"), QStringLiteral("a b"),
             QString()});
    QCOMPARE(result.output, QByteArray("<--help><-><-><--><a b><>"));
}

// A byte that is not valid in UTF-8, and an option that Qt would keep for itself.
void ToolRunTest::argumentsAreNotChanged()
{
    const CommandResult result = run(
        {QStringLiteral("sh"), QStringLiteral("-c"),
         QStringLiteral("\"$0\" run printf '<%s>' \"$(printf 'a\\377b')\" -qmljsdebugger=port:1"),
         QStringLiteral(PANOREL_COMMAND)});
    QCOMPARE(result.messages, QByteArray());
    QCOMPARE(result.output, QByteArray("<a\377b><-qmljsdebugger=port:1>"));
}

void ToolRunTest::statusIsThePrograms()
{
    const CommandResult result =
        run({QStringLiteral("sh"), QStringLiteral("-c"), QStringLiteral("exit 7")});
    QCOMPARE(result.status, 7);
}

void ToolRunTest::inputIsThePrograms()
{
    QCOMPARE(run({QStringLiteral("cat")}, {}, "input").output, QByteArray("input"));
}

void ToolRunTest::programThatIsMissing()
{
    const CommandResult result = run({QStringLiteral("./missing"), QStringLiteral("a")});
    QCOMPARE(result.status, 2);
    QCOMPARE(result.messages, QByteArray("panorel: ./missing: No such file or directory\n"));
}

void ToolRunTest::withoutPlugin()
{
    const CommandResult result =
        run({QStringLiteral("echo")}, {QStringLiteral("QT_PLUGIN_PATH=") + folder()});
    QCOMPARE(result.status, 2);
    QCOMPARE(result.messages,
             QByteArray("panorel: the plugin is not installed (Debian: panorel-plugin)\n"));
    QCOMPARE(result.output, QByteArray());
}

void ToolRunTest::listOfPrograms()
{
    QVERIFY(QDir(folder()).mkpath(QStringLiteral("panorel/programs")));
    write("panorel/programs/editor.views", smallDocument());
    write("panorel/programs/editor.views.1", smallDocument());
    write("panorel/programs/editor.button", QByteArray());
    write("panorel/programs/cad-2.0.views", smallDocument().replace("Narrow", "Flat"));
    write("panorel/programs/damaged.views", "<ViewData");
    const CommandResult result = run({QStringLiteral("--list")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray("cad-2.0: Wide, Flat\neditor: Wide, Narrow\n"));
    QCOMPARE(result.messages, QByteArray());
}

void ToolRunTest::listOfNone()
{
    const CommandResult result = run({QStringLiteral("--list")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QByteArray());
}

void ToolRunTest::wrongCalls_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no program") << QStringList();
    QTest::newRow("only an option") << QStringList{QStringLiteral("--merge")};
    QTest::newRow("unknown option")
        << QStringList{QStringLiteral("--frobnicate"), QStringLiteral("true")};
    QTest::newRow("list with a program")
        << QStringList{QStringLiteral("--list"), QStringLiteral("true")};
}

void ToolRunTest::wrongCalls()
{
    QFETCH(QStringList, arguments);
    const CommandResult result = run(arguments);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.messages.endsWith("; see \"panorel help run\"\n"), result.messages.constData());
}

QTEST_GUILESS_MAIN(ToolRunTest)
#include "ToolRunTest.moc"
