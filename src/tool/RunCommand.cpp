// SPDX-License-Identifier: MIT
#include "Arguments.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "PluginFolder.h"

#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/LayoutFile.h>

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>

#include <unistd.h>
#else
#include <QProcess>
#endif

namespace Panorel::Tool {

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::RunCommand)
};

QStringList viewNames(const QString& fileName)
{
    QStringList names;
    const Kit::LayoutDocument document(Kit::LayoutFile::read(fileName).bytes());
    const QStringList groups = document.groupNames();
    for (const QString& group : groups)
        names += document.viewNames(group);
    return names;
}

// One line for each program whose user has saved layouts: its name, and theirs.
int listPrograms()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      QStringLiteral("/panorel/programs"));
    const QFileInfoList files =
        folder.entryInfoList({QStringLiteral("*.views")}, QDir::Files | QDir::Hidden, QDir::Name);
    for (const QFileInfo& file : files) {
        const QStringList names = viewNames(file.filePath());
        if (!names.isEmpty())
            printLine(file.completeBaseName() + QStringLiteral(": ") +
                      names.join(QStringLiteral(", ")));
    }
    return Fine;
}

// The program's own plugins, where the user has set any, stay.
void setEnvironment(const PluginFolder& plugins, bool merges)
{
    constexpr auto variable = "QT_QPA_GENERIC_PLUGINS";
    const QByteArray others = qgetenv(variable);
    qputenv(variable, (merges ? "panorel:merge" : "panorel") +
                          (others.isEmpty() ? QByteArray() : ',' + others));
    plugins.addToEnvironment();
}

#ifdef Q_OS_UNIX

// Becomes the program, so that signals, exit status and terminal are its own. Its command is all
// that follows our options.
QString start(const QStringList& command)
{
    const std::vector<char*> arguments = Arguments::last(command.size());
    (void)execvp(arguments.front(), arguments.data());
    return QString::fromLocal8Bit(std::strerror(errno));
}

#else

QString start(const QStringList& command)
{
    const int status = QProcess::execute(command.constFirst(), command.mid(1));
    if (status >= 0)
        std::exit(status);
    return Text::tr("it cannot be started");
}

#endif

} // namespace

int runRun(const Command& command, const QStringList& arguments)
{
    CommandLine line(QLatin1String(command.name), QStringLiteral("PROGRAM [ARGUMENT...]"),
                     command.translatedSummary());
    line.takeCommand();
    line.addSwitch(QStringLiteral("merge"),
                   Text::tr("Leaves tool bars as they are when a layout is switched."));
    line.addSwitch(QStringLiteral("list"),
                   Text::tr("Shows which programs have layouts, and starts none."));
    if (const auto status = line.parse(arguments, 0, 0))
        return *status;
    const QStringList program = line.files();
    if (line.isSet(QStringLiteral("list")))
        return program.isEmpty() ? listPrograms()
                                 : line.reportMisuse(Text::tr("--list takes no program"));
    if (program.isEmpty())
        return line.reportMisuse(Text::tr("a program is missing"));
    const PluginFolder plugins;
    if (!plugins.isFound())
        return reportFailure(QString(),
                             Text::tr("the plugin is not installed (Debian: panorel-plugin)"));
    setEnvironment(plugins, line.isSet(QStringLiteral("merge")));
    return reportFailure(program.constFirst(), start(program));
}

} // namespace Panorel::Tool
