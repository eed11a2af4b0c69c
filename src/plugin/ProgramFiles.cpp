// SPDX-License-Identifier: MIT
#include "ProgramFiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QStandardPaths>

namespace Panorel::Plugin {

namespace {

QString withSuffix(const char* suffix)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/panorel/programs/") + ProgramFiles::programName() +
           QLatin1String(suffix);
}

// Empty where the system does not tell it in a file.
QStringList systemCommandLine()
{
    QFile file(QStringLiteral("/proc/self/cmdline"));
    QStringList arguments;
    if (!file.open(QIODevice::ReadOnly))
        return arguments;
    const QList<QByteArray> entries = file.readAll().split('\0');
    for (const QByteArray& entry : entries)
        arguments.append(QString::fromLocal8Bit(entry));
    return arguments;
}

// The script or the module that Python runs; empty if there is none.
QString scriptOf(const QStringList& commandLine, const QString& executable)
{
    if (!QFileInfo(executable).fileName().startsWith(QLatin1String("python")))
        return QString();
    const QStringList withValue{QStringLiteral("-W"), QStringLiteral("-X")};
    for (int i = 1; i < commandLine.size(); ++i) {
        const QString& argument = commandLine.at(i);
        if (argument == QLatin1String("-c"))
            return QString();
        if (argument == QLatin1String("-m"))
            return commandLine.value(i + 1);
        if (withValue.contains(argument))
            ++i;
        else if (!argument.startsWith(QLatin1Char('-')))
            return argument;
    }
    return QString();
}

// Many programs have files of these names, so their folder's name is added.
QString nameOfFile(const QString& path)
{
    const QFileInfo file(path);
    const QStringList usual{QStringLiteral("__main__.py"), QStringLiteral("main.py")};
    const QString folder = QFileInfo(file.absolutePath()).fileName();
    const bool isUsual = usual.contains(file.fileName()) && !folder.isEmpty();
    return isUsual ? folder + QLatin1Char('-') + file.fileName() : file.fileName();
}

} // namespace

QString ProgramFiles::programName()
{
    // The program may change its folder, which a relative path is seen from.
    static const QString name = nameOfProgram(QCoreApplication::arguments(), systemCommandLine(),
                                              QCoreApplication::applicationFilePath());
    return name;
}

QString ProgramFiles::nameOfProgram(const QStringList& arguments, const QStringList& commandLine,
                                    const QString& executable)
{
    // The first argument of a script is its path.
    const QString program = arguments.value(0);
    const QString name =
        nameOfFile(program.isEmpty() ? scriptOf(commandLine, executable) : program);
    return name.isEmpty() ? QFileInfo(executable).fileName() : name;
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
