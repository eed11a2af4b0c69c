// SPDX-License-Identifier: MIT
#include "Commands.h"

#include <QCoreApplication>

namespace Panorel::Tool {

namespace {

const Command commands[] = {
    {"check",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands",
                       "Tells whether windows can be given the layouts of files without harm."),
     &runCheck},
    {"show", QT_TRANSLATE_NOOP("Panorel::Tool::Commands", "Tells what the layouts of a file say."),
     &runShow},
    {"diff", QT_TRANSLATE_NOOP("Panorel::Tool::Commands", "Tells in what layouts differ."),
     &runDiff},
    {"render",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands", "Draws a layout as a picture, PNG or SVG."),
     &runRender, /*isDrawing=*/true},
    {"tidy",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands",
                       "Leaves out what merging has repeated, and layouts without a name."),
     &runTidy},
    {"copy",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands", "Copies layouts of one document into another."),
     &runCopy},
    {"rename",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands", "Renames a layout, or a window in all layouts."),
     &runRename},
    {"move",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands", "Moves a layout to another place in its group."),
     &runMove},
    {"remove", QT_TRANSLATE_NOOP("Panorel::Tool::Commands", "Removes layouts from a document."),
     &runRemove},
    {"run",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands",
                       "Starts a Qt 5 program with a menu for the layouts of its windows."),
     &runRun},
    {"install-launcher",
     QT_TRANSLATE_NOOP("Panorel::Tool::Commands",
                       "Lets the desktop start a program by \"panorel run\"."),
     &runInstallLauncher},
};

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::Commands)
};

} // namespace

QString Command::translatedSummary() const
{
    return QCoreApplication::translate("Panorel::Tool::Commands", summary);
}

const Command* findCommand(const QString& name)
{
    for (const Command& command : commands) {
        if (name == QLatin1String(command.name))
            return &command;
    }
    return nullptr;
}

QString generalHelp()
{
    QString help = Text::tr("Usage: panorel COMMAND ...") + QLatin1String("\n\n");
    for (const Command& command : commands) {
        help += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -16)
                    .arg(command.translatedSummary());
    }
    help += QLatin1Char('\n');
    help +=
        Text::tr("\"panorel help COMMAND\" tells how a command is used. A FILE is a document of "
                 "layouts, the state of one window, or a settings file that holds such states; "
                 "\"-\" is standard input.");
    return help;
}

} // namespace Panorel::Tool
