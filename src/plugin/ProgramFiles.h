// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/** Where in the user's data folder the plugin keeps what belongs to this program. */
namespace Panorel::Plugin::ProgramFiles {

/** What the files are named after. It is also the name of the layouts' group, so that one program
    does not import the layouts of another. */
QString programName();

/** The same for any program.
    @param arguments those of its application object; none if the program gave it none.
    @param commandLine what the system started it with.
    @param executable path of the file that runs, which for a script is its interpreter. */
QString nameOfProgram(const QStringList& arguments, const QStringList& commandLine,
                      const QString& executable);

QString layouts();
/** An empty file that exists if the tool bar with the button is on. */
QString button();

} // namespace Panorel::Plugin::ProgramFiles
