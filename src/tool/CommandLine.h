// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

namespace Panorel::Tool {

/**
 * The arguments of one command. What all commands have in common is here: --help, the number of
 * files, and how a wrong call is reported.
 */
class CommandLine
{
public:
    /**
     * @param command name of the command.
     * @param files what it works on and the options that it needs, as help shows them, such as
     * "FILE -o OUT".
     * @param summary one sentence for help.
     */
    CommandLine(const QString& command, const QString& files, const QString& summary);

    /** An option without a value. */
    void addSwitch(const QString& name, const QString& description);
    /** An option with a value, shown as @p valueName. */
    void addValue(const QStringList& names, const QString& description, const QString& valueName);

    /**
     * Reads the arguments after the command's name.
     * @return nothing if the command can go on, else the exit status: help was shown, or the call
     * was wrong, which is reported.
     */
    std::optional<int> parse(const QStringList& arguments, int fewestFiles, int mostFiles);
    /** What follows the options is a command with its own arguments, not files. */
    void takeCommand();
    /** Lets the option @p name be given more than once. */
    void allowRepeated(const QString& name) { m_single.removeAll(name); }
    /** Whether each of the options @p names has a value; reports the first that has none. */
    bool requireValues(const QStringList& names) const;

    QString help() const;
    QStringList files() const { return m_parser.positionalArguments(); }
    bool isSet(const QString& name) const { return m_parser.isSet(name); }
    /** Null if the option is not there, so that an empty name differs from none. */
    QString value(const QString& name) const;
    QStringList values(const QString& name) const { return m_parser.values(name); }

    /** Reports a wrong call. @return Failed. */
    int reportMisuse(const QString& message) const;

private:
    /** What is wrong with the arguments that were read; null if nothing is. */
    QString misuse(int fewestFiles, int mostFiles) const;

    QString m_command;
    QString m_files;
    /** The options that can be given only once. */
    QStringList m_single;
    QCommandLineParser m_parser;
    bool m_takesCommand = false;
};

/** The option as a user types it: "-o", "--view". */
QString typed(const QString& option);

} // namespace Panorel::Tool
