// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/LayoutFile.h>
#include <panorel/kit/SettingsStates.h>

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace Panorel::Tool {

class CommandLine;

/** One window's state and where in a file it is. */
struct Place
{
    /** Null where they do not apply; the window of a settings file is "SECTION/KEY". */
    QString group;
    QString view;
    QString window;
    bool isInCurrentView = false;
    bool isInToolBarState = false;
    QByteArray state;

    /** For titles and messages, such as: Editing / Wide / main. Empty for a state on its own. */
    QString title() const;
};

/** A file that a command works on. */
struct Input
{
    /** As it was given, for messages. */
    QString name;
    Kit::LayoutFile file;
    /** One of these is read, by the file's kind; a state is in the file itself. */
    Kit::LayoutDocument document;
    Kit::SettingsStates settings;

    Kit::LayoutFile::Kind kind() const { return file.kind(); }
    bool isDocument() const { return kind() == Kit::LayoutFile::Kind::Document; }
    /** All states in the order of the file, those of tool bars first. */
    QVector<Place> places() const;
};

/** Adds the option that lifts the limit on the size of files. */
void addInputOptions(CommandLine& line);

/** Reads a file. Nothing, after a message, if there is nothing to work on. */
std::optional<Input> readInput(const CommandLine& line, const QString& name);

/** The same for a document that a Manager takes. */
std::optional<Input> readDocument(const CommandLine& line, const QString& name);

/** Writes a document that was edited, see writeResult(); says so if it was written as a whole. */
int writeDocument(const Input& input, const QString& output);

/** Whether all states can be read; else reports the first that cannot. */
bool areReadable(const Input& input, const QVector<Place>& places);

/** Reports why a document cannot be worked on. @return Failed. */
int reportUnreadable(const Input& input);

} // namespace Panorel::Tool
