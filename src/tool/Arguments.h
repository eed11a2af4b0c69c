// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#ifdef Q_OS_UNIX
#include <vector>
#endif

/** What the command was called with. QCoreApplication takes arguments that it knows out of it, and
   a QString changes names that are not in the locale's encoding. */
namespace Panorel::Tool::Arguments {

/** Keeps them. To be called before there is a QCoreApplication, which changes @p argv. */
void keep(int argc, char** argv);

/** All of them after the command's own name. */
QStringList all();

#ifdef Q_OS_UNIX
/** The last @p count of them as they were given, and a null pointer, as exec() needs it. */
std::vector<char*> last(int count);
#endif

} // namespace Panorel::Tool::Arguments
