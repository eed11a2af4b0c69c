// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Panorel::Tests {

/** What a call of the command gave. */
struct CommandResult
{
    int status = -1;
    QByteArray output;
    QByteArray messages;

    QJsonObject object() const { return QJsonDocument::fromJson(output).object(); }
    QJsonArray array() const { return QJsonDocument::fromJson(output).array(); }
};

/**
 * Runs the command with @p arguments in @p folder.
 * @param input what it reads from standard input.
 * @param environment further variables, as NAME=VALUE.
 */
CommandResult runPanorel(const QStringList& arguments, const QString& folder,
                         const QByteArray& input = QByteArray(),
                         const QStringList& environment = {});

} // namespace Panorel::Tests
