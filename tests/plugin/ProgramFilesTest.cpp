// SPDX-License-Identifier: MIT
#include "plugin/ProgramFiles.h"

#include <QTest>

/** What the layouts of a program are named after. */
class ProgramFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameOfProgram_data();
    void nameOfProgram();
};

void ProgramFilesTest::nameOfProgram_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QString>("name");
    const QString python = QStringLiteral("/usr/bin/python3.11");
    const auto add = [&](const char* row, const char* arguments, const char* commandLine,
                         const char* name) {
        QTest::newRow(row) << QString::fromLatin1(arguments) << QString::fromLatin1(commandLine)
                           << python << QString::fromLatin1(name);
    };
    QTest::newRow("program") << QStringLiteral("/opt/bin/edit file")
                             << QStringLiteral("/opt/bin/edit file")
                             << QStringLiteral("/opt/bin/edit-1.0") << QStringLiteral("edit");
    QTest::newRow("program without arguments")
        << QString() << QStringLiteral("/opt/bin/edit -m file")
        << QStringLiteral("/opt/bin/edit-1.0") << QStringLiteral("edit-1.0");
    add("script", "/opt/plot.py file", "python3 /opt/plot.py file", "plot.py");
    add("script without arguments", "", "python3 /opt/plot.py file", "plot.py");
    add("options of Python", "", "python3 -u -W error -X dev /opt/plot.py -m file", "plot.py");
    add("module", "/opt/plot/__main__.py", "python3 -m plot", "plot-__main__.py");
    add("module without arguments", "", "python3 -m plot", "plot");
    add("usual name", "/opt/plot/main.py", "python3 /opt/plot/main.py", "plot-main.py");
    add("usual name without arguments", "", "python3 /opt/plot/main.py", "plot-main.py");
    add("usual name in no folder", "/main.py", "python3 /main.py", "main.py");
    add("code", "", "python3 -c code", "python3.11");
    add("no command line", "", "", "python3.11");
}

void ProgramFilesTest::nameOfProgram()
{
    QFETCH(QString, arguments);
    QFETCH(QString, commandLine);
    QFETCH(QString, executable);
    QTEST(Panorel::Plugin::ProgramFiles::nameOfProgram(
              arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts),
              commandLine.split(QLatin1Char(' '), Qt::SkipEmptyParts), executable),
          "name");
}

QTEST_GUILESS_MAIN(ProgramFilesTest)
#include "ProgramFilesTest.moc"
