// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "Console.h"

#include <QCoreApplication>

namespace Panorel::Tool {

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::CommandLine)
};

// The parser's errors are sentences of their own.
QString withoutFullStop(QString text)
{
    if (text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x3002)))
        text.chop(1);
    return text;
}

} // namespace

QString typed(const QString& option)
{
    return QLatin1String(option.size() == 1 ? "-" : "--") + option;
}

CommandLine::CommandLine(const QString& command, const QString& files, const QString& summary)
    : m_command(command)
    , m_files(files)
{
    m_parser.setApplicationDescription(summary);
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, Text::tr("Shows this help.")});
    m_parser.addOption(
        {{QStringLiteral("v"), QStringLiteral("version")}, Text::tr("Shows the version.")});
}

void CommandLine::addSwitch(const QString& name, const QString& description)
{
    m_parser.addOption({name, description});
}

void CommandLine::addValue(const QStringList& names, const QString& description,
                           const QString& valueName)
{
    m_parser.addOption({names, description, valueName});
    m_single.append(names.constFirst());
}

void CommandLine::takeCommand()
{
    m_takesCommand = true;
    m_parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
}

std::optional<int> CommandLine::parse(const QStringList& arguments, int fewestFiles, int mostFiles)
{
    // The parser passes over the first argument, which is a program's name.
    if (!m_parser.parse(QStringList{m_command} + arguments))
        return reportMisuse(withoutFullStop(m_parser.errorText()));
    if (m_parser.isSet(QStringLiteral("help"))) {
        printHelp(help());
        return Fine;
    }
    if (m_parser.isSet(QStringLiteral("version"))) {
        printVersion();
        return Fine;
    }
    const QString wrong = misuse(fewestFiles, mostFiles);
    return wrong.isNull() ? std::nullopt : std::optional<int>(reportMisuse(wrong));
}

QString CommandLine::misuse(int fewestFiles, int mostFiles) const
{
    if (m_takesCommand)
        return QString();
    if (files().size() < fewestFiles)
        return Text::tr("a file is missing");
    if (files().size() > mostFiles)
        return Text::tr("too many files");
    for (const QString& name : m_single) {
        if (m_parser.values(name).size() > 1)
            return Text::tr("%1 is given more than once").arg(typed(name));
    }
    // Standard input can be read only once.
    if (files().count(QStringLiteral("-")) > 1)
        return Text::tr("%1 is given more than once").arg(QLatin1Char('-'));
    return QString();
}

bool CommandLine::requireValues(const QStringList& names) const
{
    for (const QString& name : names) {
        if (!m_parser.isSet(name)) {
            reportMisuse(Text::tr("the option %1 is missing").arg(typed(name)));
            return false;
        }
    }
    return true;
}

QString CommandLine::help() const
{
    // The parser begins with "Usage: PROGRAM [options]", in the user's language.
    QString text = m_parser.helpText().trimmed();
    text.insert(text.indexOf(QLatin1Char('\n')), QLatin1Char(' ') + m_files);
    const QString program = QCoreApplication::arguments().constFirst();
    return text.replace(text.indexOf(program), program.size(),
                        QLatin1String("panorel ") + m_command);
}

QString CommandLine::value(const QString& name) const
{
    if (!m_parser.isSet(name))
        return QString();
    const QString value = m_parser.value(name);
    return value.isNull() ? QStringLiteral("") : value;
}

int CommandLine::reportMisuse(const QString& message) const
{
    return reportFailure(QString(),
                         Text::tr("%1; see \"panorel help %2\"").arg(message, m_command));
}

} // namespace Panorel::Tool
