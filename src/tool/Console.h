// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class QJsonDocument;

namespace Panorel::Tool {

/** What the command tells the shell; scripts rely on the numbers. */
enum ExitStatus {
    /** Done; nothing was found and nothing differs. */
    Fine = 0,
    /** check found something, or diff found a difference. */
    Found = 1,
    /** It could not be done. */
    Failed = 2
};

/** Writes a line of the result to standard output, in UTF-8. Control characters, which names in
    files may have, are written escaped, as in \u001B. */
void printLine(const QString& line);

/** Writes lines of the command's own, such as help, to standard output. */
void printHelp(const QString& lines);

/** Writes the name and version of the command. */
void printVersion();

/** Writes a result for scripts to standard output. */
void printJson(const QJsonDocument& document);

/** The exit status of a command that ended with @p status: Failed, after a message, if the result
    could not be written to standard output. */
int outcome(int status);

/** Writes a message to standard error and returns Failed. @p about is the file it concerns, or
 * empty. Control characters are escaped. */
int reportFailure(const QString& about, const QString& message);

/** The same for a remark after which the work goes on. */
void reportRemark(const QString& about, const QString& message);

/** Writes how the command is called to standard error and returns Failed. */
int reportUsage(const QString& lines);

/**
 * Writes a result to @p fileName, "-" being standard output. An existing file is replaced whole or
 * not at all.
 * @return Fine, or Failed after a message.
 */
int writeResult(const QString& fileName, const QByteArray& bytes);

} // namespace Panorel::Tool
