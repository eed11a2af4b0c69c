// SPDX-License-Identifier: MIT
#include "Launcher.h"

#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QStringList>

namespace Panorel::Tool {

namespace {

constexpr auto mainSection = "[Desktop Entry]";
constexpr auto mark = "X-Panorel-Launcher=true";

// The value of a line "KEY=VALUE"; null if it is of another key.
QByteArray valueOf(const QByteArray& line, const QByteArray& key)
{
    const int equals = line.indexOf('=');
    if (equals < 0 || line.left(equals).trimmed() != key)
        return QByteArray();
    return line.mid(equals + 1).trimmed();
}

bool isContainerCommand(const QByteArray& command)
{
    return command.contains("flatpak run") || command.contains("/snap/bin/") ||
           command.startsWith("snap run") || command.contains(".AppImage");
}

} // namespace

Launcher::Launcher(const QByteArray& content)
    : m_content(content)
{
    bool isEntry = false;
    const QList<QByteArray> lines = content.split('\n');
    for (const QByteArray& line : lines) {
        isEntry = isEntry || line.trimmed() == mainSection;
        const QByteArray command = valueOf(line, "Exec");
        m_hasCommand = m_hasCommand || (isEntry && !command.isEmpty());
        m_isContainer = m_isContainer || isContainerCommand(command);
        m_isOurs = m_isOurs || line.trimmed() == mark;
    }
}

QByteArray Launcher::starting(const QByteArray& starter) const
{
    QList<QByteArray> lines = m_content.split('\n');
    for (QByteArray& line : lines) {
        const QByteArray command = valueOf(line, "Exec");
        if (!command.isEmpty())
            line = "Exec=" + starter + ' ' + command;
        else if (valueOf(line, "DBusActivatable") == "true")
            line = "DBusActivatable=false"; // The desktop would not use the command at all.
        else if (line.trimmed() == mainSection)
            line += QByteArray("\n") + mark;
    }
    return lines.join('\n');
}

// Folders that a user adds to the PATH of a shell are often not in that of the session.
QByteArray Launcher::command(const QString& program, const QString& found)
{
    const QStringList folders{QStringLiteral("/usr/local/bin"), QStringLiteral("/usr/bin"),
                              QStringLiteral("/bin")};
    const QFileInfo file(found);
    const bool isSame = file.canonicalFilePath() == QFileInfo(program).canonicalFilePath();
    if (isSame && folders.contains(file.absolutePath()))
        return QFile::encodeName(file.fileName());
    return quoted(QFile::encodeName(program));
}

QByteArray Launcher::quoted(const QByteArray& path)
{
    QByteArray result = "\"";
    for (const char character : path) {
        // The entry's own escapes come before those of the command.
        if (character == '\\')
            result += "\\\\\\\\";
        else if (character == '"' || character == '`' || character == '$')
            result += QByteArray("\\\\") + character;
        else if (character == '%')
            result += "%%";
        else
            result += character;
    }
    return result + '"';
}

} // namespace Panorel::Tool
