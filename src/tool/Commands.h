// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Panorel::Tool {

/** One of the commands. */
struct Command
{
    /** What it is called by. */
    const char* name;
    /** What it is for, in English; translated in the context "Panorel::Tool::Commands". */
    const char* summary;
    /** Runs it with the arguments after its name and returns the exit status. */
    int (*run)(const Command& command, const QStringList& arguments);
    /** Whether it draws, and so needs a QGuiApplication. */
    bool isDrawing = false;

    /** The summary in the user's language. */
    QString translatedSummary() const;
};

/** The command of this name, or null. */
const Command* findCommand(const QString& name);

/** What "panorel --help" shows. */
QString generalHelp();

int runCheck(const Command& command, const QStringList& arguments);
int runShow(const Command& command, const QStringList& arguments);
int runDiff(const Command& command, const QStringList& arguments);
int runRender(const Command& command, const QStringList& arguments);
int runTidy(const Command& command, const QStringList& arguments);
int runCopy(const Command& command, const QStringList& arguments);
int runRename(const Command& command, const QStringList& arguments);
int runMove(const Command& command, const QStringList& arguments);
int runRemove(const Command& command, const QStringList& arguments);
int runRun(const Command& command, const QStringList& arguments);
int runInstallLauncher(const Command& command, const QStringList& arguments);

} // namespace Panorel::Tool
