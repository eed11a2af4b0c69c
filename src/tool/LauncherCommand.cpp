// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Launcher.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
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

// "kde/editor.desktop" in a folder of launchers is "kde-editor.desktop" to a desktop.
QString idOfRelative(QString path)
{
    return path.replace(QLatin1Char('/'), QLatin1Char('-'));
}

// By this a desktop finds a launcher. A name with a slash is the path of a file.
QString idOf(const QString& name)
{
    const QFileInfo file(name);
    // The file itself may be a link to another place.
    const QString path = file.dir().canonicalPath() + QLatin1Char('/') + file.fileName();
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    for (const QString& folder : folders) {
        const QString root = QDir(folder).canonicalPath() + QLatin1Char('/');
        const bool isBelow = root.size() > 1 && path.startsWith(root);
        if (name.contains(QLatin1Char('/')) && isBelow)
            return idOfRelative(path.mid(root.size()));
    }
    return file.fileName();
}

// The first launcher of an id in a folder or below it that is not ours; null if there is none.
QString findBelow(const QString& folder, const QString& id)
{
    QDirIterator files(folder, {QStringLiteral("*.desktop")}, QDir::Files,
                       QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (files.hasNext()) {
        QString file = files.next();
        const bool hasId = idOfRelative(QDir(folder).relativeFilePath(file)) == id;
        if (hasId && !Launcher(contentOf(file)).isOurs())
            return file;
    }
    return QString();
}

// Whether the user has made this file, or a link to one that may be missing at present.
bool isOfUser(const QString& fileName)
{
    const QFileInfo file(fileName);
    return (file.exists() || file.isSymLink()) && !Launcher(contentOf(fileName)).isOurs();
}

// The launcher of an id that the user has made; null if there is none.
QString findOfUser(const QString& id)
{
    const QString target = ownFileName(id);
    return isOfUser(target) ? target : findBelow(ownFolder(), id);
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
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    for (const QString& folder : folders) {
        QString file = findBelow(folder, idOf(name));
        if (!file.isNull())
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
    const QString ofUser = findOfUser(idOf(name));
    if (!ofUser.isNull())
        return reportFailure(ofUser, Text::tr("is a launcher of your own and stays as it is"));
    const QString target = ownFileName(idOf(name));
    (void)QDir().mkpath(QFileInfo(target).path()); // If it fails, so does writing.
    const int status = writeResult(target, launcher.starting(starter(merges)));
    if (status == Fine)
        printLine(target);
    return status;
}

int remove(const QString& name)
{
    const QString target = ownFileName(idOf(name));
    if (isOfUser(target))
        return reportFailure(target, Text::tr("is a launcher of your own and stays as it is"));
    if (!QFileInfo::exists(target))
        return reportFailure(target, Text::tr("there is no such launcher"));
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
