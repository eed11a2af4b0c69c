// SPDX-License-Identifier: MIT
#include "Console.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>

namespace Panorel::Tool {

namespace {

class Console
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::Console)
};

bool isOutputWritten = true;

bool writeTo(FILE* stream, const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

// Remembers a failure; what was written before has a gap then, so no more is written.
void writeOutput(const QByteArray& bytes)
{
    isOutputWritten = isOutputWritten && writeTo(stdout, bytes);
}

// What would move a terminal's cursor, or turn the direction of the text that follows.
bool isControl(QChar character)
{
    const ushort code = character.unicode();
    return character.category() == QChar::Other_Control || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

QString escaped(const QString& text)
{
    if (std::none_of(text.cbegin(), text.cend(), isControl))
        return text;
    QString result;
    for (const QChar character : text) {
        if (isControl(character))
            result += QLatin1String("\\u") +
                      QString::number(0x10000 + character.unicode(), 16).mid(1).toUpper();
        else
            result += character;
    }
    return result;
}

void writeMessage(const QString& about, const QString& message)
{
    QString line = QStringLiteral("panorel: ");
    if (!about.isEmpty())
        line += about + QLatin1String(": ");
    writeTo(stderr, QString(escaped(line + message) + QLatin1Char('\n')).toUtf8());
}

int reportUnwrittenOutput()
{
    writeMessage(QString(), Console::tr("cannot write to standard output"));
    return Failed;
}

// A pipe or a device cannot be replaced; what is written goes through it.
bool isReplaceable(const QString& fileName)
{
    const QFileInfo info(fileName);
    return !info.exists() || info.isFile();
}

template<typename File>
bool writeFile(File& file, const QByteArray& bytes)
{
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

} // namespace

void printLine(const QString& line)
{
    writeOutput(QString(escaped(line) + QLatin1Char('\n')).toUtf8());
}

void printHelp(const QString& lines)
{
    writeOutput(QString(lines + QLatin1Char('\n')).toUtf8());
}

void printVersion()
{
    printLine(QStringLiteral("panorel " PANOREL_VERSION));
}

void printJson(const QJsonDocument& document)
{
    writeOutput(document.toJson(QJsonDocument::Indented));
}

int outcome(int status)
{
    return isOutputWritten ? status : reportUnwrittenOutput();
}

int reportFailure(const QString& about, const QString& message)
{
    writeMessage(about, message);
    return Failed;
}

void reportRemark(const QString& about, const QString& message)
{
    writeMessage(about, message);
}

int reportUsage(const QString& lines)
{
    writeTo(stderr, QString(lines + QLatin1Char('\n')).toUtf8());
    return Failed;
}

int writeResult(const QString& fileName, const QByteArray& bytes)
{
    if (fileName == QLatin1String("-")) {
        if (writeTo(stdout, bytes))
            return Fine;
        return reportUnwrittenOutput();
    }
    if (!isReplaceable(fileName)) {
        QFile file(fileName);
        return writeFile(file, bytes) ? Fine : reportFailure(fileName, file.errorString());
    }
    QSaveFile file(fileName);
    if (writeFile(file, bytes) && file.commit())
        return Fine;
    return reportFailure(fileName, file.errorString());
}

} // namespace Panorel::Tool
