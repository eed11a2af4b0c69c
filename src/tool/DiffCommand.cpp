// SPDX-License-Identifier: MIT
#include "Choice.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Input.h"

#include <panorel/kit/Difference.h>
#include <panorel/kit/WindowState.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>

#include <algorithm>

namespace Panorel::Tool {

using Kit::Difference;
using Kit::LayoutDocument;
using Kit::LayoutFile;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::DiffCommand)
};

/** A difference, and where it is. */
struct Change
{
    Place place;
    Difference difference;
};

/** What is found; a place has no state here. */
struct Result
{
    QVector<Place> onlyInA;
    QVector<Place> onlyInB;
    QVector<Change> changed;

    bool isEmpty() const { return onlyInA.isEmpty() && onlyInB.isEmpty() && changed.isEmpty(); }
};

// The place in a document, all of whose views are in groups.
Place placeOf(const Difference& difference)
{
    Place place;
    place.group = difference.group;
    place.view = difference.view;
    place.window = difference.window;
    place.isInCurrentView = difference.isInCurrentView;
    place.isInToolBarState = difference.group.isNull();
    return place;
}

// Documents, layout by layout.

void appendPlaces(QVector<Place>& places,
                  const QVector<LayoutDocument::Differences::Place>& documentPlaces,
                  const Choice& choice)
{
    for (const auto& documentPlace : documentPlaces) {
        Place place;
        place.group = documentPlace.group;
        place.view = documentPlace.view;
        place.isInCurrentView = documentPlace.view.isNull();
        Choice anyWindow = choice;
        anyWindow.window = QString();
        if (anyWindow.has(place))
            places.append(place);
    }
}

Result compareDocuments(const LayoutDocument& a, const LayoutDocument& b, const Choice& choice)
{
    const LayoutDocument::Differences all = LayoutDocument::differences(a, b);
    Result result;
    appendPlaces(result.onlyInA, all.onlyInA, choice);
    appendPlaces(result.onlyInB, all.onlyInB, choice);
    for (const Difference& difference : all.changed) {
        const Place place = placeOf(difference);
        if (choice.has(place))
            result.changed.append({place, difference});
    }
    return result;
}

std::optional<Result> compareDocuments(const Input& a, const Input& b, const Choice& choice)
{
    if (!existsInEither(choice, a, b) || !areReadable(a, chosen(choice, a)) ||
        !areReadable(b, chosen(choice, b)))
        return std::nullopt;
    return compareDocuments(a.document, b.document, choice);
}

// Single layouts, window by window.

QVector<Change> compareStates(const QByteArray& a, const QByteArray& b, const Place& place)
{
    QVector<Change> changed;
    const auto differences = Kit::differences(Kit::WindowState(a), Kit::WindowState(b));
    for (const Difference& difference : differences)
        changed.append({place, difference});
    return changed;
}

const Place* findWindow(const QVector<Place>& places, const QString& window)
{
    const auto it = std::find_if(places.cbegin(), places.cend(),
                                 [&](const Place& place) { return place.window == window; });
    return it == places.cend() ? nullptr : &*it;
}

Place windowOf(const Place& place)
{
    Place window;
    window.window = place.window;
    return window;
}

Result compareLayouts(const QVector<Place>& a, const QVector<Place>& b)
{
    Result result;
    if (a.size() == 1 && b.size() == 1) {
        result.changed = compareStates(a.constFirst().state, b.constFirst().state, Place());
        return result;
    }
    for (const Place& place : a) {
        const Place* other = findWindow(b, place.window);
        if (!other) {
            result.onlyInA.append(windowOf(place));
            continue;
        }
        result.changed += compareStates(place.state, other->state, windowOf(place));
    }
    for (const Place& place : b) {
        if (!findWindow(a, place.window))
            result.onlyInB.append(windowOf(place));
    }
    return result;
}

// Nothing, after a message, if the places belong to several layouts or cannot be read.
std::optional<QVector<Place>> chooseLayout(const Choice& choice, const Input& input)
{
    auto places = choosePlaces(choice, input);
    if (!places || !areReadable(input, *places))
        return std::nullopt;
    for (const Place& place : qAsConst(*places)) {
        const Place& first = places->constFirst();
        if (place.group != first.group || place.view != first.view) {
            reportFailure(input.name,
                          Text::tr("has several layouts; choose one by --group and --view"));
            return std::nullopt;
        }
    }
    return places;
}

std::optional<Result> compareLayouts(const Input& a, const Choice& choiceOfA, const Input& b,
                                     const Choice& choiceOfB)
{
    const auto layoutA = chooseLayout(choiceOfA, a);
    const auto layoutB = layoutA ? chooseLayout(choiceOfB, b) : std::nullopt;
    if (!layoutB)
        return std::nullopt;
    return compareLayouts(*layoutA, *layoutB);
}

std::optional<Result> compare(const CommandLine& line, const Input& a, const Input& b)
{
    const Choice choice = readChoice(line);
    Choice choiceOfB = choice;
    if (line.isSet(QStringLiteral("with"))) {
        choiceOfB.view = line.value(QStringLiteral("with"));
        choiceOfB.isCurrent = false;
    } else if (a.isDocument() && b.isDocument()) {
        return compareDocuments(a, b, choice);
    }
    // Where only one is a document, the options say what of it is compared.
    return compareLayouts(a, a.isDocument() || !b.isDocument() ? choice : Choice(), b,
                          b.isDocument() || !a.isDocument() ? choiceOfB : Choice());
}

// Output.

QJsonValue nameToJson(const QString& name)
{
    return name.isNull() ? QJsonValue() : QJsonValue(name);
}

QJsonValue toJson(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QSize: {
        const QSize size = value.toSize();
        return QJsonArray{size.width(), size.height()};
    }
    case QMetaType::QRect: {
        const QRect rect = value.toRect();
        return QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()};
    }
    case QMetaType::QString:
        return nameToJson(value.toString());
    default:
        return QJsonValue::fromVariant(value);
    }
}

QJsonObject toJson(const Place& place)
{
    QJsonObject object{{QStringLiteral("group"), nameToJson(place.group)},
                       {QStringLiteral("view"), nameToJson(place.view)}};
    if (!place.window.isNull())
        object.insert(QStringLiteral("window"), place.window);
    if (place.isInCurrentView)
        object.insert(QStringLiteral("current"), true);
    if (place.isInToolBarState)
        object.insert(QStringLiteral("toolBarState"), true);
    return object;
}

QJsonObject toJson(const Change& change)
{
    const Difference& difference = change.difference;
    QJsonObject object = toJson(change.place);
    object.insert(QStringLiteral("window"), nameToJson(change.place.window));
    object.insert(QStringLiteral("part"), identifierOf(difference.part));
    object.insert(QStringLiteral("name"), nameToJson(difference.name));
    object.insert(QStringLiteral("what"), identifierOf(difference.aspect));
    object.insert(QStringLiteral("from"), toJson(difference.from));
    object.insert(QStringLiteral("to"), toJson(difference.to));
    return object;
}

template<typename Items>
QJsonArray toJsonArray(const Items& items)
{
    QJsonArray array;
    for (const auto& item : items)
        array.append(toJson(item));
    return array;
}

QJsonObject toJson(const Result& result)
{
    return {{QStringLiteral("same"), result.isEmpty()},
            {QStringLiteral("onlyInA"), toJsonArray(result.onlyInA)},
            {QStringLiteral("onlyInB"), toJsonArray(result.onlyInB)},
            {QStringLiteral("changed"), toJsonArray(result.changed)}};
}

void print(const Result& result, const QString& nameOfA, const QString& nameOfB)
{
    for (const Place& place : result.onlyInA)
        printLine(Text::tr("Only in %1: %2").arg(nameOfA, place.title()));
    for (const Place& place : result.onlyInB)
        printLine(Text::tr("Only in %1: %2").arg(nameOfB, place.title()));
    QString heading;
    for (const Change& change : result.changed) {
        const QString title = change.place.title();
        if (title != heading)
            printLine(title + QLatin1Char(':'));
        heading = title;
        printLine((title.isEmpty() ? QString() : QStringLiteral("  ")) + change.difference.text());
    }
    if (result.isEmpty())
        printLine(Text::tr("No difference"));
}

// The layout that the options name, or the working layout.
QString titleOf(const CommandLine& line, const QString& option)
{
    Place place;
    place.view = line.value(option);
    place.isInCurrentView = place.view.isNull();
    return place.title();
}

// Two layouts of one file are distinguished by their own names.
void print(const CommandLine& line, const Result& result, const Input& a, const Input& b)
{
    if (line.files().size() == 1)
        print(result, titleOf(line, QStringLiteral("view")), titleOf(line, QStringLiteral("with")));
    else
        print(result, a.name, b.name);
}

bool isReadable(const Input& input)
{
    if (!input.isDocument() || input.document.isReadable())
        return true;
    reportUnreadable(input);
    return false;
}

} // namespace

int runDiff(const Command& command, const QStringList& arguments)
{
    CommandLine line(QLatin1String(command.name), QStringLiteral("A [B]"),
                     command.translatedSummary());
    line.addSwitch(QStringLiteral("json"), Text::tr("Prints JSON."));
    line.addValue({QStringLiteral("with")},
                  Text::tr("Compares the layout of --view with this one, of the same file if there "
                           "is no B."),
                  Text::tr("NAME"));
    addChoosingOptions(line);
    addInputOptions(line);
    if (const auto status = line.parse(arguments, 1, 2))
        return *status;
    if (line.files().size() == 1 && !line.isSet(QStringLiteral("with")))
        return line.reportMisuse(Text::tr("there is nothing to compare with"));
    const std::optional<Input> a = readInput(line, line.files().constFirst());
    const std::optional<Input> b =
        a && line.files().size() == 2 ? readInput(line, line.files().constLast()) : a;
    if (!a || !b || !isReadable(*a) || !isReadable(*b))
        return Failed;
    const std::optional<Result> result = compare(line, *a, *b);
    if (!result)
        return Failed;
    if (line.isSet(QStringLiteral("json")))
        printJson(QJsonDocument(toJson(*result)));
    else
        print(line, *result, *a, *b);
    return result->isEmpty() ? Fine : Found;
}

} // namespace Panorel::Tool
