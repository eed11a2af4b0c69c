// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/** Where in the user's data folder the plugin keeps what belongs to this program. */
namespace Panorel::Plugin::ProgramFiles {

/** What the files are named after. It is also the name of the layouts' group, so that one program
    does not import the layouts of another. */
QString programName();

QString layouts();
/** An empty file that exists if the tool bar with the button is on. */
QString button();

} // namespace Panorel::Plugin::ProgramFiles
