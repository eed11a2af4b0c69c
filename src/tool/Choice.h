// SPDX-License-Identifier: MIT
#pragma once

#include "Input.h"

#include <QString>
#include <QVector>

#include <optional>

namespace Panorel::Tool {

class CommandLine;

/** What of a file a command looks at; names are null where all are meant. */
struct Choice
{
    QString group;
    QString view;
    QString window;
    /** Only groups' current views. */
    bool isCurrent = false;

    bool isEverything() const;
    /** Whether the group itself is chosen. */
    bool hasGroup(const QString& name) const;
    bool hasView(const QString& name) const;
    bool hasWindow(const QString& id) const;
    bool hasCurrentViews() const { return view.isNull(); }
    /** The states that are live when a document is written belong to no view. */
    bool hasToolBarStates() const { return group.isNull() && view.isNull() && !isCurrent; }
    bool has(const Place& place) const;
};

/** Adds the options that choose. */
void addChoosingOptions(CommandLine& line);

/** What the options say. */
Choice readChoice(const CommandLine& line);

/** Whether what is chosen is there; else reports what is. */
bool exists(const Choice& choice, const Input& input);

/** Whether what is chosen is in one of two documents; else reports what is in them. */
bool existsInEither(const Choice& choice, const Input& a, const Input& b);

/** The names in quotes, each once, as messages list what there is. */
QString listed(QStringList names);

/** The chosen states. */
QVector<Place> chosen(const Choice& choice, const Input& input);

/** The same. Nothing, after a message, if what is chosen is not there. */
std::optional<QVector<Place>> choosePlaces(const Choice& choice, const Input& input);

} // namespace Panorel::Tool
