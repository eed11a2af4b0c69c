// SPDX-License-Identifier: MIT
#include "support/Text.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Panorel::Tests;

namespace {

/** What a run of a program leaves. */
struct Run
{
    int status = -1;
    bool hasCrashed = false;
    QByteArray output;
    QByteArray messages;
};

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What the program itself says. Addresses differ, and what the platform says of a window depends on
// how often it gets a size.
QByteArray programMessages(const QByteArray& messages)
{
    static const QRegularExpression address("0x[0-9a-f]+"_s);
    QStringList lines = QString::fromLocal8Bit(messages).split(QLatin1Char('\n'));
    lines.replaceInStrings(address, "ADDRESS"_s);
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QString& line) {
                                   return line.startsWith("This plugin does not support"_s) ||
                                          line.startsWith("QStandardPaths: XDG_RUNTIME_DIR"_s);
                               }),
                lines.end());
    return lines.join(QLatin1Char('\n')).toUtf8();
}

// The settings file as it was before may be in the folder.
Run run(const QString& folder, QStringList arguments, const QByteArray& plugin)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME"_s, folder);
    environment.insert("QT_PLUGIN_PATH"_s, QStringLiteral(PLUGINS));
    if (!plugin.isEmpty()) {
        environment.insert("QT_QPA_GENERIC_PLUGINS"_s, QString::fromLatin1(plugin));
        arguments.append("--wait"_s);
    }
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(PLAIN_PROGRAM), arguments);
    Run result;
    if (!process.waitForFinished(120000))
        return result;
    result.status = process.exitCode();
    result.hasCrashed = process.exitStatus() == QProcess::CrashExit;
    result.output = process.readAllStandardOutput();
    result.messages = programMessages(process.readAllStandardError());
    return result;
}

} // namespace

/** A program that keeps settings of its own, with and without the plugin. */
class PluginProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameAsWithout_data();
    void sameAsWithout();
    void layoutComesAfterTheProgramsOwn();
    void unreadableLayouts();

private:
    static void compareRuns(const QString& way, bool* isSame);
};

void PluginProgramTest::sameAsWithout_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"close", "quit", "exit", "exitLate", "abort", "terminate"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

// Whether both keep the same geometry and state. With a window manager that depends on when it
// answers as well, so several tries are made there.
void PluginProgramTest::sameAsWithout()
{
    QFETCH(QString, way);
    const int tries = qgetenv("QT_QPA_PLATFORM") == "offscreen" ? 1 : 10;
    bool isSame = false;
    for (int i = 0; i < tries && !isSame && !QTest::currentTestFailed(); ++i)
        compareRuns(way, &isSame);
    QVERIFY(isSame);
}

void PluginProgramTest::compareRuns(const QString& way, bool* isSame)
{
    const QTemporaryDir with;
    const QTemporaryDir without;
    *isSame = true;
    // The second run restores what the first has saved.
    for (int i = 0; i < 2 && *isSame; ++i) {
        const Run expected =
            run(without.path(), {without.filePath("settings"_s), way}, QByteArray());
        const Run actual = run(with.path(), {with.filePath("settings"_s), way}, "panorel");
        QCOMPARE(actual.status, expected.status);
        QCOMPARE(actual.hasCrashed, expected.hasCrashed);
        QCOMPARE(actual.output, expected.output);
        QCOMPARE(actual.messages, expected.messages);
        *isSame =
            contentOf(with.filePath("settings"_s)) == contentOf(without.filePath("settings"_s));
    }
}

void PluginProgramTest::layoutComesAfterTheProgramsOwn()
{
    const QTemporaryDir folder;
    // It is on the left in the program's own state, and was on the right in the last run.
    const QString settings = folder.filePath("settings"_s);
    QCOMPARE(run(folder.path(), {settings, "look"_s}, QByteArray()).output, QByteArray("1\n"));
    QFile::copy(settings, folder.filePath("left"_s));
    QCOMPARE(run(folder.path(), {settings, "close"_s}, "panorel").output, QByteArray("2\n"));
    QCOMPARE(run(folder.path(), {folder.filePath("left"_s), "look"_s}, "panorel").output,
             QByteArray("2\n"));
}

void PluginProgramTest::unreadableLayouts()
{
    const QTemporaryDir folder;
    const QString settings = folder.filePath("settings"_s);
    QCOMPARE(run(folder.path(), {settings, "close"_s}, "panorel").status, 0);
    const QString layouts = folder.filePath("panorel/programs/PlainProgram.views"_s);
    QFile file(layouts);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("<ViewData Version=") > 0);
    file.close();
    const Run second = run(folder.path(), {settings, "close"_s}, "panorel:merge");
    QCOMPARE(second.status, 0);
    QVERIFY2(!second.messages.contains("ayout"), second.messages.constData());
    QCOMPARE(second.output, QByteArray("2\n"));
}

QTEST_GUILESS_MAIN(PluginProgramTest)
#include "PluginProgramTest.moc"
