// SPDX-License-Identifier: MIT
#include "Command.h"

#include <QProcess>
#include <QProcessEnvironment>

namespace Panorel::Tests {

CommandResult runPanorel(const QStringList& arguments, const QString& folder,
                         const QByteArray& input, const QStringList& environment)
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    // No display: the command must not need one.
    variables.remove(QStringLiteral("DISPLAY"));
    variables.remove(QStringLiteral("QT_QPA_PLATFORM"));
    for (const QString& variable : environment) {
        const int equals = variable.indexOf(QLatin1Char('='));
        variables.insert(variable.left(equals), variable.mid(equals + 1));
    }
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral(PANOREL_COMMAND), arguments);
    process.write(input);
    process.closeWriteChannel();
    CommandResult result;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.status = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.messages = process.readAllStandardError();
    return result;
}

} // namespace Panorel::Tests
