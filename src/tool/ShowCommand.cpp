// SPDX-License-Identifier: MIT
#include "Choice.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Input.h"
#include "StateJson.h"
#include "StateText.h"

#include <panorel/kit/WindowState.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Panorel::Tool {

using Kit::LayoutDocument;
using Kit::LayoutFile;
using Kit::WindowState;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::ShowCommand)
};

const QLatin1String indent("  ");

// As JSON.

QJsonObject toJson(const StateMap& states, const Choice& choice)
{
    QJsonObject object;
    for (auto it = states.cbegin(); it != states.cend(); ++it) {
        if (choice.hasWindow(it.key()))
            object.insert(it.key(), stateToJson(WindowState(it.value())));
    }
    return object;
}

QJsonValue userDataOf(const LayoutDocument::View& view)
{
    return view.userData.isNull() ? QJsonValue() : QJsonValue(view.userData);
}

QJsonObject toJson(const LayoutDocument::Group& group, const Choice& choice)
{
    QJsonArray views;
    for (const LayoutDocument::View& view : group.views) {
        if (choice.hasView(view.name)) {
            views.append(QJsonObject{{QStringLiteral("name"), view.name},
                                     {QStringLiteral("active"), view.isActive},
                                     {QStringLiteral("userData"), userDataOf(view)},
                                     {QStringLiteral("windows"), toJson(view.states, choice)}});
        }
    }
    QJsonValue current;
    if (choice.hasCurrentViews()) {
        current = QJsonObject{{QStringLiteral("windows"), toJson(group.current.states, choice)},
                              {QStringLiteral("userData"), userDataOf(group.current)}};
    }
    return {{QStringLiteral("name"), group.name},
            {QStringLiteral("views"), views},
            {QStringLiteral("current"), current}};
}

QJsonObject toJson(const LayoutDocument& document, const Choice& choice)
{
    QJsonArray array;
    const auto groups = document.groups();
    for (const LayoutDocument::Group& group : groups) {
        if (choice.hasGroup(group.name))
            array.append(toJson(group, choice));
    }
    const StateMap toolBarStates =
        choice.hasToolBarStates() ? document.toolBarStates() : StateMap();
    return {{QStringLiteral("version"), document.version()},
            {QStringLiteral("toolBarStates"), toJson(toolBarStates, choice)},
            {QStringLiteral("groups"), array}};
}

QJsonObject toJson(const Input& input, const Choice& choice)
{
    QJsonObject object;
    if (input.isDocument()) {
        object = toJson(input.document, choice);
    } else if (input.kind() == LayoutFile::Kind::State) {
        object.insert(QStringLiteral("state"), stateToJson(WindowState(input.file.state())));
    } else {
        QJsonObject states;
        for (const auto& entry : input.settings.entries()) {
            if (choice.hasWindow(entry.key))
                states.insert(entry.key, stateToJson(WindowState(entry.state)));
        }
        object.insert(QStringLiteral("states"), states);
    }
    object.insert(QStringLiteral("kind"), identifierOf(input.kind()));
    return object;
}

// As text.

void printState(const QByteArray& state, const QString& margin)
{
    const QStringList lines = toText(WindowState(state));
    for (const QString& line : lines)
        printLine(margin + line);
}

void printStates(const StateMap& states, const Choice& choice, const QString& margin)
{
    for (auto it = states.cbegin(); it != states.cend(); ++it) {
        if (!choice.hasWindow(it.key()))
            continue;
        printLine(margin + Text::tr("Window \"%1\"").arg(it.key()));
        printState(it.value(), margin + indent);
    }
}

void printView(const QString& title, const LayoutDocument::View& view, const Choice& choice)
{
    printLine(indent + title);
    if (!view.userData.isEmpty())
        printLine(indent + indent + Text::tr("User data: %1").arg(view.userData));
    printStates(view.states, choice, indent + indent);
}

void printGroup(const LayoutDocument::Group& group, const Choice& choice)
{
    printLine(Text::tr("Group \"%1\"").arg(group.name));
    for (const LayoutDocument::View& view : group.views) {
        if (!choice.hasView(view.name))
            continue;
        const QString title =
            view.isActive ? Text::tr("Layout \"%1\" (active)") : Text::tr("Layout \"%1\"");
        printView(title.arg(view.name), view, choice);
    }
    if (choice.hasCurrentViews())
        printView(Text::tr("Working layout"), group.current, choice);
}

void print(const LayoutDocument& document, const Choice& choice)
{
    const auto groups = document.groups();
    for (const LayoutDocument::Group& group : groups) {
        if (choice.hasGroup(group.name))
            printGroup(group, choice);
    }
    const StateMap toolBarStates = document.toolBarStates();
    if (!choice.hasToolBarStates() || toolBarStates.isEmpty())
        return;
    printLine(Text::tr("Tool bars when it was written"));
    printStates(toolBarStates, choice, indent);
}

void print(const Input& input, const Choice& choice)
{
    if (input.isDocument()) {
        print(input.document, choice);
        return;
    }
    const auto places = input.places();
    for (const Place& place : places) {
        if (!choice.has(place))
            continue;
        if (!place.window.isNull())
            printLine(place.window);
        printState(place.state, place.window.isNull() ? QString() : QString(indent));
    }
}

} // namespace

int runShow(const Command& command, const QStringList& arguments)
{
    CommandLine line(QLatin1String(command.name), QStringLiteral("FILE"),
                     command.translatedSummary());
    line.addSwitch(QStringLiteral("json"), Text::tr("Prints JSON."));
    addChoosingOptions(line);
    addInputOptions(line);
    if (const auto status = line.parse(arguments, 1, 1))
        return *status;
    const std::optional<Input> input = readInput(line, line.files().constFirst());
    if (!input)
        return Failed;
    if (input->isDocument() && !input->document.isReadable())
        return reportUnreadable(*input);
    const Choice choice = readChoice(line);
    if (!exists(choice, *input))
        return Failed;
    if (line.isSet(QStringLiteral("json")))
        printJson(QJsonDocument(toJson(*input, choice)));
    else
        print(*input, choice);
    return Fine;
}

} // namespace Panorel::Tool
