// SPDX-License-Identifier: MIT
#include "Choice.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Input.h"
#include "Untranslated.h"

#include <panorel/kit/Problem.h>
#include <panorel/kit/WindowState.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <limits>

namespace Panorel::Tool {

using Kit::Problem;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::CheckCommand)
};

QVector<Problem> problemsOf(const Place& place)
{
    QVector<Problem> problems = Kit::WindowState(place.state).check();
    for (Problem& problem : problems)
        problem.window = place.window;
    return problems;
}

bool isChosen(const Problem& problem, const Choice& choice)
{
    const bool isAboutDocument =
        problem.group.isNull() && problem.window.isNull() && !problem.isInToolBarState;
    if (isAboutDocument)
        return true;
    Place place;
    place.group = problem.group;
    place.view = problem.view;
    place.window = problem.window;
    place.isInCurrentView = problem.isInCurrentView;
    place.isInToolBarState = problem.isInToolBarState;
    return choice.has(place);
}

QVector<Problem> problemsOf(const Input& input, const Choice& choice)
{
    QVector<Problem> problems;
    if (input.isDocument()) {
        problems = input.document.check();
    } else {
        const auto places = input.places();
        for (const Place& place : places)
            problems += problemsOf(place);
    }
    problems.erase(
        std::remove_if(problems.begin(), problems.end(),
                       [&](const Problem& problem) { return !isChosen(problem, choice); }),
        problems.end());
    return problems;
}

QString placeOf(const Problem& problem)
{
    Place place;
    place.group = problem.group;
    place.view = problem.view;
    place.window = problem.window;
    place.isInCurrentView = problem.isInCurrentView;
    place.isInToolBarState = problem.isInToolBarState;
    QStringList parts;
    if (!place.title().isEmpty())
        parts.append(place.title());
    if (problem.offset >= 0)
        parts.append(Text::tr("byte %1").arg(problem.offset));
    return parts.isEmpty() ? Text::tr("document") : parts.join(QLatin1String(", "));
}

void print(const QString& file, const QVector<Problem>& problems)
{
    if (problems.isEmpty())
        printLine(file + QLatin1String(": ") + Text::tr("sound"));
    for (const Problem& problem : problems)
        printLine(QStringList{file, placeOf(problem), problem.text()}.join(QLatin1String(": ")));
}

QJsonValue nameToJson(const QString& name)
{
    return name.isNull() ? QJsonValue() : QJsonValue(name);
}

QJsonObject toJson(const Problem& problem)
{
    QJsonObject object{
        {QStringLiteral("group"), nameToJson(problem.group)},
        {QStringLiteral("view"), nameToJson(problem.view)},
        {QStringLiteral("window"), nameToJson(problem.window)},
        {QStringLiteral("severity"), identifierOf(problem.severity())},
        {QStringLiteral("code"), identifierOf(problem.code)},
        {QStringLiteral("offset"), problem.offset < 0 ? QJsonValue() : QJsonValue(problem.offset)},
        {QStringLiteral("text"), problem.text()},
    };
    if (problem.isInCurrentView)
        object.insert(QStringLiteral("current"), true);
    if (problem.isInToolBarState)
        object.insert(QStringLiteral("toolBarState"), true);
    return object;
}

QJsonObject toJson(const Input& input, const QVector<Problem>& problems)
{
    QJsonArray array;
    for (const Problem& problem : problems)
        array.append(toJson(problem));
    return {{QStringLiteral("file"), input.name},
            {QStringLiteral("kind"), identifierOf(input.kind())},
            {QStringLiteral("sound"), Kit::isSound(problems)},
            {QStringLiteral("problems"), array}};
}

// A file in which nothing is recognised.
QJsonObject toJson(const QString& file)
{
    return {{QStringLiteral("file"), file},
            {QStringLiteral("kind"), QJsonValue()},
            {QStringLiteral("sound"), false},
            {QStringLiteral("problems"), QJsonArray()}};
}

/** Checks one file after the other and remembers the worst exit status. */
class Check
{
public:
    explicit Check(const CommandLine& line)
        : m_line(line)
        , m_choice(readChoice(line))
        , m_isJson(line.isSet(QStringLiteral("json")))
        , m_isQuiet(line.isSet(QStringLiteral("quiet")))
    {}

    void add(const QString& name)
    {
        const std::optional<Input> input = readInput(m_line, name);
        if (!input)
            m_files.append(toJson(name));
        if (!input || !isChoiceThere(*input)) {
            m_status = Failed;
            return;
        }
        const Untranslated untranslated(m_isJson);
        const QVector<Problem> problems = problemsOf(*input, m_choice);
        if (!Kit::isSound(problems))
            m_status = std::max<int>(m_status, Found);
        if (m_isJson)
            m_files.append(toJson(*input, problems));
        else if (!m_isQuiet)
            print(name, problems);
    }

    int end() const
    {
        if (m_isJson && !m_isQuiet)
            printJson(QJsonDocument(m_files));
        return m_status;
    }

private:
    // The content of a refused document is unknown; the reason for refusing it is printed instead.
    bool isChoiceThere(const Input& input) const
    {
        return (input.isDocument() && !input.document.isReadable()) || exists(m_choice, input);
    }

    const CommandLine& m_line;
    const Choice m_choice;
    const bool m_isJson;
    const bool m_isQuiet;
    QJsonArray m_files;
    int m_status = Fine;
};

} // namespace

int runCheck(const Command& command, const QStringList& arguments)
{
    CommandLine line(QLatin1String(command.name), QStringLiteral("FILE..."),
                     command.translatedSummary());
    line.addSwitch(QStringLiteral("quiet"), Text::tr("Prints nothing."));
    line.addSwitch(QStringLiteral("json"), Text::tr("Prints JSON."));
    addChoosingOptions(line);
    addInputOptions(line);
    if (const auto status = line.parse(arguments, 1, std::numeric_limits<int>::max()))
        return *status;
    Check check(line);
    const QStringList files = line.files();
    for (const QString& file : files)
        check.add(file);
    return check.end();
}

} // namespace Panorel::Tool
