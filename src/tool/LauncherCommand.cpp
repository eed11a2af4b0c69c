// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Launcher.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Panorel::Tool {

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::LauncherCommand)
};

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString withSuffix(const QString& name)
{
    const QLatin1String suffix(".desktop");
    return name.endsWith(suffix) ? name : name + suffix;
}

QString ownFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
}

// The user's own launcher of an id. A desktop takes it before one of the system.
QString ownFileName(const QString& id)
{
    return ownFolder() + QLatin1Char('/') + id;
}

// By this a desktop finds a launcher. A path is one of a file.
QString idOf(const QString& name)
{
    return QFileInfo(name).fileName();
}

// Null if there is none. What we have written is not what we read.
QString findLauncher(const QString& name)
{
    if (name.contains(QLatin1Char('/'))) {
        if (!QFileInfo(name).isFile())
            return QString();
        if (!Launcher(contentOf(name)).isOurs())
            return name;
    }
    const QStringList files =
        QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, idOf(name));
    for (const QString& file : files) {
        if (!Launcher(contentOf(file)).isOurs())
            return file;
    }
    return QString();
}

QByteArray starter(bool merges)
{
    const QByteArray command =
        Launcher::command(QCoreApplication::applicationFilePath(),
                          QStandardPaths::findExecutable(QStringLiteral("panorel")));
    return command + (merges ? " run --merge" : " run");
}

int install(const QString& name, bool merges)
{
    const QString source = findLauncher(name);
    if (source.isNull())
        return reportFailure(QFileInfo(name).isFile() ? idOf(name) : name,
                             Text::tr("there is no such launcher"));
    const Launcher launcher(contentOf(source));
    if (!launcher.isUsable())
        return reportFailure(source, Text::tr("starts no program"));
    if (launcher.isContainer())
        return reportFailure(
            source, Text::tr("starts a program that has its own Qt, which does not load plugins"));
    const QString target = ownFileName(idOf(name));
    if (QFileInfo::exists(target) && !Launcher(contentOf(target)).isOurs())
        return reportFailure(target, Text::tr("is a launcher of your own and stays as it is"));
    (void)QDir().mkpath(QFileInfo(target).path()); // If it fails, so does writing.
    const int status = writeResult(target, launcher.starting(starter(merges)));
    if (status == Fine)
        printLine(target);
    return status;
}

int remove(const QString& name)
{
    const QString target = ownFileName(idOf(name));
    if (!QFileInfo::exists(target))
        return reportFailure(target, Text::tr("there is no such launcher"));
    if (!Launcher(contentOf(target)).isOurs())
        return reportFailure(target, Text::tr("is a launcher of your own and stays as it is"));
    QFile file(target);
    return file.remove() ? Fine : reportFailure(target, file.errorString());
}

} // namespace

int runInstallLauncher(const Command& command, const QStringList& arguments)
{
    CommandLine line(QLatin1String(command.name), QStringLiteral("PROGRAM.desktop"),
                     command.translatedSummary());
    line.addSwitch(QStringLiteral("merge"),
                   Text::tr("Leaves tool bars as they are when a layout is switched."));
    line.addSwitch(QStringLiteral("remove"), Text::tr("Takes the launcher away again."));
    if (const auto status = line.parse(arguments, 1, 1))
        return *status;
    const QString name = withSuffix(line.files().constFirst());
    return line.isSet(QStringLiteral("remove"))
               ? remove(name)
               : install(name, line.isSet(QStringLiteral("merge")));
}

} // namespace Panorel::Tool
