// SPDX-License-Identifier: MIT
#include "ToolTest.h"

#include "tool/Launcher.h"

#include <QDir>
#include <QFileInfo>

using namespace Panorel::Tests;

/** "panorel install-launcher", with folders of its own for the user and the system. */
class ToolLauncherTest : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachCommandIsStarted();
    void commandByItsPath_data();
    void commandByItsPath();
    void commandByItsName_data();
    void commandByItsName();
    void mergingLauncher();
    void fileByItsPath();
    void launcherInASubfolder_data();
    void launcherInASubfolder();
    void ownLauncherInASubfolderStays();
    void linkToNothingStays();
    void installingAgain_data();
    void installingAgain();
    void ourLauncherWithoutTheSystems();
    void removing();
    void ownLauncherStays();
    void unusableLaunchers_data();
    void unusableLaunchers();

private:
    void prepare()
    {
        QVERIFY(QDir(folder()).mkpath(QStringLiteral("system/applications")));
        QVERIFY(QDir(folder()).mkpath(QStringLiteral("user/applications")));
    }

    CommandResult launcher(const QStringList& arguments, const QStringList& environment = {})
    {
        const QStringList variables{QStringLiteral("XDG_DATA_HOME=") + path("user"),
                                    QStringLiteral("XDG_DATA_DIRS=") + path("system"),
                                    QStringLiteral("PATH=") + programs() +
                                        QStringLiteral(":/usr/bin:/bin")};
        return runPanorel(QStringList{QStringLiteral("install-launcher")} + arguments, folder(),
                          QByteArray(), variables + environment);
    }

    static QString programs() { return QFileInfo(QStringLiteral(PANOREL_COMMAND)).path(); }
};

static const QByteArray editor = "[Desktop Entry]\n"
                                 "Type=Application\n"
                                 "Name=Editor\n"
                                 "Exec=editor %F\n"
                                 "TryExec=editor\n"
                                 "DBusActivatable=true\n"
                                 "Actions=New;\n"
                                 "\n"
                                 "[Desktop Action New]\n"
                                 "Name=New\n"
                                 "Exec = editor --new \"a b\"\n";

// The command as this test has it: in no folder that is in the PATH of each session.
static QByteArray command()
{
    return '"' + QFileInfo(QStringLiteral(PANOREL_COMMAND)).canonicalFilePath().toUtf8() + '"';
}

static const QByteArray editorWithLayouts = "[Desktop Entry]\n"
                                            "X-Panorel-Launcher=true\n"
                                            "Type=Application\n"
                                            "Name=Editor\n"
                                            "Exec=" +
                                            command() +
                                            " run editor %F\n"
                                            "TryExec=editor\n"
                                            "DBusActivatable=false\n"
                                            "Actions=New;\n"
                                            "\n"
                                            "[Desktop Action New]\n"
                                            "Name=New\n"
                                            "Exec=" +
                                            command() + " run editor --new \"a b\"\n";

void ToolLauncherTest::eachCommandIsStarted()
{
    prepare();
    write("system/applications/editor.desktop", editor);
    const CommandResult result = launcher({QStringLiteral("editor.desktop")});
    QCOMPARE(result.messages, QByteArray());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, path("user/applications/editor.desktop").toUtf8() + '\n');
    QCOMPARE(read("user/applications/editor.desktop"), editorWithLayouts);
    QCOMPARE(read("system/applications/editor.desktop"), editor);
}

void ToolLauncherTest::commandByItsPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("not in the PATH") << QStringLiteral("PATH=/usr/bin:/bin");
    QTest::newRow("in that of the shell") << QStringLiteral("PATH=/usr/bin:/bin:") + programs();
}

// The desktop's session may not have the PATH of the shell.
void ToolLauncherTest::commandByItsPath()
{
    QFETCH(QString, path);
    prepare();
    write("system/applications/editor.desktop", editor);
    QCOMPARE(launcher({QStringLiteral("editor")}, {path}).status, 0);
    const QByteArray line = "Exec=" + command() + " run editor %F\n";
    QVERIFY2(read("user/applications/editor.desktop").contains(line), line.constData());
}

void ToolLauncherTest::commandByItsName_data()
{
    QTest::addColumn<QString>("found");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("in a folder of each session")
        << QStringLiteral("/usr/bin/env") << QByteArray("env");
    QTest::newRow("another program")
        << QStringLiteral("/usr/bin/printf") << QByteArray("\"/usr/bin/env\"");
    QTest::newRow("not found") << QString() << QByteArray("\"/usr/bin/env\"");
}

void ToolLauncherTest::commandByItsName()
{
    QFETCH(QString, found);
    QTEST(Panorel::Tool::Launcher::command(QStringLiteral("/usr/bin/env"), found), "command");
}

void ToolLauncherTest::mergingLauncher()
{
    prepare();
    write("system/applications/editor.desktop", editor);
    QCOMPARE(launcher({QStringLiteral("--merge"), QStringLiteral("editor.desktop")}).status, 0);
    QVERIFY(read("user/applications/editor.desktop")
                .contains("Exec=" + command() + " run --merge editor %F"));
}

void ToolLauncherTest::fileByItsPath()
{
    prepare();
    write("other.desktop", editor);
    QCOMPARE(launcher({QStringLiteral("./other.desktop")}).status, 0);
    QCOMPARE(read("user/applications/other.desktop"), editorWithLayouts);
}

void ToolLauncherTest::launcherInASubfolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("by its id") << QStringLiteral("suite-office-editor.desktop");
    QTest::newRow("by its path") << QStringLiteral(
        "./system/applications/suite/office/../office/editor.desktop");
}

// Under its file's name, a desktop would show it beside that of the system.
void ToolLauncherTest::launcherInASubfolder()
{
    QFETCH(QString, name);
    prepare();
    QVERIFY(QDir(folder()).mkpath(QStringLiteral("system/applications/suite/office")));
    write("system/applications/suite/office/editor.desktop", editor);
    const CommandResult result = launcher({name});
    QCOMPARE(result.messages, QByteArray());
    QCOMPARE(result.output, path("user/applications/suite-office-editor.desktop").toUtf8() + '\n');
    QCOMPARE(read("user/applications/suite-office-editor.desktop"), editorWithLayouts);
    QCOMPARE(launcher({QStringLiteral("--remove"), name}).status, 0);
    QVERIFY(!exists("user/applications/suite-office-editor.desktop"));
}

void ToolLauncherTest::ownLauncherInASubfolderStays()
{
    prepare();
    QVERIFY(QDir(folder()).mkpath(QStringLiteral("user/applications/suite")));
    write("user/applications/suite/editor.desktop", editor);
    write("system/applications/suite-editor.desktop", editor);
    QCOMPARE(launcher({QStringLiteral("suite-editor.desktop")}).status, 2);
    QVERIFY(!exists("user/applications/suite-editor.desktop"));
}

void ToolLauncherTest::linkToNothingStays()
{
    prepare();
    write("system/applications/editor.desktop", editor);
    const QString link = path("user/applications/editor.desktop");
    QVERIFY(QFile::link(path("missing.desktop"), link));
    const QByteArray message =
        "panorel: " + link.toUtf8() + ": is a launcher of your own and stays as it is\n";
    QCOMPARE(launcher({QStringLiteral("editor.desktop")}).messages, message);
    QCOMPARE(launcher({QStringLiteral("--remove"), QStringLiteral("editor.desktop")}).messages,
             message);
    QCOMPARE(QFileInfo(link).symLinkTarget(), path("missing.desktop"));
    QVERIFY(!exists("missing.desktop"));
}

void ToolLauncherTest::installingAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("by its name") << QStringLiteral("editor.desktop");
    QTest::newRow("by the path of ours") << QStringLiteral("user/applications/editor.desktop");
}

void ToolLauncherTest::installingAgain()
{
    QFETCH(QString, name);
    prepare();
    write("system/applications/editor.desktop", editor);
    QCOMPARE(launcher({QStringLiteral("--merge"), QStringLiteral("editor.desktop")}).status, 0);
    QCOMPARE(launcher({name}).status, 0);
    QCOMPARE(read("user/applications/editor.desktop"), editorWithLayouts);
}

void ToolLauncherTest::ourLauncherWithoutTheSystems()
{
    prepare();
    write("user/applications/editor.desktop", editorWithLayouts);
    const CommandResult result = launcher({QStringLiteral("user/applications/editor.desktop")});
    QCOMPARE(result.status, 2);
    QCOMPARE(result.messages, QByteArray("panorel: editor.desktop: there is no such launcher\n"));
    QCOMPARE(read("user/applications/editor.desktop"), editorWithLayouts);
}

void ToolLauncherTest::removing()
{
    prepare();
    write("system/applications/editor.desktop", editor);
    const QStringList arguments{QStringLiteral("--remove"), QStringLiteral("editor.desktop")};
    QCOMPARE(launcher(arguments).status, 2);
    QCOMPARE(launcher({QStringLiteral("editor.desktop")}).status, 0);
    QCOMPARE(launcher(arguments).status, 0);
    QVERIFY(!exists("user/applications/editor.desktop"));
    QVERIFY(exists("system/applications/editor.desktop"));
}

void ToolLauncherTest::ownLauncherStays()
{
    prepare();
    write("user/applications/editor.desktop", editor);
    QCOMPARE(launcher({QStringLiteral("editor.desktop")}).status, 2);
    QCOMPARE(launcher({QStringLiteral("--remove"), QStringLiteral("editor.desktop")}).status, 2);
    QCOMPARE(read("user/applications/editor.desktop"), editor);
}

void ToolLauncherTest::unusableLaunchers_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("link") << QByteArray("[Desktop Entry]\nType=Link\nURL=file:///\n");
    QTest::newRow("Flatpak") << QByteArray(
        "[Desktop Entry]\nExec=/usr/bin/flatpak run --branch=stable org.example.Editor\n");
    QTest::newRow("snap") << QByteArray("[Desktop Entry]\nExec=env A=b /snap/bin/editor %U\n");
    QTest::newRow("AppImage") << QByteArray("[Desktop Entry]\nExec=/opt/Editor.AppImage %U\n");
}

void ToolLauncherTest::unusableLaunchers()
{
    QFETCH(QByteArray, content);
    prepare();
    if (!content.isNull())
        write("system/applications/editor.desktop", content);
    const CommandResult result = launcher({QStringLiteral("editor.desktop")});
    QCOMPARE(result.status, 2);
    QVERIFY2(result.messages.startsWith("panorel: "), result.messages.constData());
    QVERIFY(!exists("user/applications/editor.desktop"));
}

QTEST_GUILESS_MAIN(ToolLauncherTest)
#include "ToolLauncherTest.moc"
