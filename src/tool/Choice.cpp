// SPDX-License-Identifier: MIT
#include "Choice.h"

#include "CommandLine.h"
#include "Console.h"

#include <QCoreApplication>

#include <algorithm>

namespace Panorel::Tool {

using Kit::LayoutDocument;
using Kit::LayoutFile;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::Choice)
};

bool matches(const QString& chosen, const QString& name)
{
    return chosen.isNull() || chosen == name;
}

using Inputs = QVector<const Input*>;

bool refuse(const Inputs& inputs, const QString& message)
{
    QStringList names;
    for (const Input* input : inputs)
        names.append(input->name);
    reportFailure(names.join(QLatin1String(", ")), message);
    return false;
}

bool groupExists(const Choice& choice, const Inputs& inputs)
{
    QStringList names;
    for (const Input* input : inputs)
        names += input->document.groupNames();
    if (choice.group.isNull() || names.contains(choice.group))
        return true;
    return refuse(
        inputs,
        Text::tr("there is no group \"%1\"; there are: %2").arg(choice.group, listed(names)));
}

bool viewExists(const Choice& choice, const Inputs& inputs)
{
    QStringList names;
    for (const Input* input : inputs) {
        const QStringList groups = input->document.groupNames();
        for (const QString& group : groups) {
            if (choice.hasGroup(group))
                names += input->document.viewNames(group);
        }
    }
    if (choice.view.isNull() || names.contains(choice.view))
        return true;
    return refuse(
        inputs,
        Text::tr("there is no layout \"%1\"; there are: %2").arg(choice.view, listed(names)));
}

bool windowExists(const Choice& choice, const Inputs& inputs)
{
    Choice anyWindow = choice;
    anyWindow.window = QString();
    QStringList ids;
    for (const Input* input : inputs) {
        const auto places = input->places();
        for (const Place& place : places) {
            if (anyWindow.has(place))
                ids.append(place.window);
        }
    }
    if (choice.window.isNull() || ids.contains(choice.window))
        return true;
    return refuse(
        inputs,
        Text::tr("there is no window \"%1\"; there are: %2").arg(choice.window, listed(ids)));
}

bool namesExist(const Choice& choice, const Inputs& inputs)
{
    if (!choice.view.isNull() && choice.isCurrent) {
        reportFailure(QString(), Text::tr("--view and --current exclude each other"));
        return false;
    }
    return groupExists(choice, inputs) && viewExists(choice, inputs) &&
           windowExists(choice, inputs);
}

} // namespace

QString listed(QStringList names)
{
    names.removeDuplicates();
    for (QString& name : names)
        name = QLatin1Char('"') + name + QLatin1Char('"');
    return names.isEmpty() ? Text::tr("none") : names.join(QLatin1String(", "));
}

bool Choice::isEverything() const
{
    return group.isNull() && view.isNull() && window.isNull() && !isCurrent;
}

bool Choice::hasGroup(const QString& name) const
{
    return matches(group, name);
}

bool Choice::hasView(const QString& name) const
{
    return !isCurrent && matches(view, name);
}

bool Choice::hasWindow(const QString& id) const
{
    return matches(window, id);
}

bool Choice::has(const Place& place) const
{
    if (!hasWindow(place.window))
        return false;
    if (place.isInToolBarState)
        return hasToolBarStates();
    if (!hasGroup(place.group))
        return false;
    return place.isInCurrentView ? hasCurrentViews() : hasView(place.view);
}

void addChoosingOptions(CommandLine& line)
{
    line.addValue({QStringLiteral("group")}, Text::tr("Only this group."), Text::tr("NAME"));
    line.addValue({QStringLiteral("view")}, Text::tr("Only this layout."), Text::tr("NAME"));
    line.addSwitch(QStringLiteral("current"), Text::tr("Only the working layout of a group."));
    line.addValue({QStringLiteral("window")},
                  Text::tr("Only this window; in a settings file, the state at SECTION/KEY."),
                  Text::tr("ID"));
}

Choice readChoice(const CommandLine& line)
{
    Choice choice;
    choice.group = line.value(QStringLiteral("group"));
    choice.view = line.value(QStringLiteral("view"));
    choice.window = line.value(QStringLiteral("window"));
    choice.isCurrent = line.isSet(QStringLiteral("current"));
    return choice;
}

bool exists(const Choice& choice, const Input& input)
{
    const bool needsDocument = !choice.group.isNull() || !choice.view.isNull() || choice.isCurrent;
    if (needsDocument && !input.isDocument())
        return refuse({&input}, Text::tr("has neither groups nor named layouts"));
    if (!choice.window.isNull() && input.kind() == LayoutFile::Kind::State)
        return refuse({&input}, Text::tr("is the state of one window, which has no id"));
    return namesExist(choice, {&input});
}

bool existsInEither(const Choice& choice, const Input& a, const Input& b)
{
    return namesExist(choice, {&a, &b});
}

QVector<Place> chosen(const Choice& choice, const Input& input)
{
    QVector<Place> places = input.places();
    places.erase(std::remove_if(places.begin(), places.end(),
                                [&](const Place& place) { return !choice.has(place); }),
                 places.end());
    return places;
}

std::optional<QVector<Place>> choosePlaces(const Choice& choice, const Input& input)
{
    if (!exists(choice, input))
        return std::nullopt;
    return chosen(choice, input);
}

} // namespace Panorel::Tool
