// SPDX-License-Identifier: MIT
#include "ProgramFiles.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace Panorel::Plugin {

namespace {

QString withSuffix(const char* suffix)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/panorel/programs/") + ProgramFiles::programName() +
           QLatin1String(suffix);
}

} // namespace

QString ProgramFiles::programName()
{
    // The executable of a script is its interpreter, but the script is the first argument.
    const QString name = QFileInfo(QCoreApplication::arguments().value(0)).fileName();
    return name.isEmpty() ? QFileInfo(QCoreApplication::applicationFilePath()).fileName() : name;
}

QString ProgramFiles::layouts()
{
    return withSuffix(".views");
}

QString ProgramFiles::button()
{
    return withSuffix(".button");
}

} // namespace Panorel::Plugin
