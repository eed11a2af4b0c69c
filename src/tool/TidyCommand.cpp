// SPDX-License-Identifier: MIT
#include "Choice.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Input.h"

#include <panorel/kit/WindowState.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace Panorel::Tool {

using Kit::LayoutDocument;
using Kit::WindowState;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::TidyCommand)
};

// The tidied state in the form in which the file has it: bytes, hexadecimal or base64.
QByteArray inFormOf(const Input& input, const QByteArray& state)
{
    const QByteArray bytes = input.file.bytes();
    if (bytes == input.file.state() || input.file.state().isEmpty())
        return state;
    const bool isHexadecimal = bytes.trimmed().startsWith("00");
    return (isHexadecimal ? state.toHex() : state.toBase64()) + '\n';
}

bool isSameFile(const Input& input, const QString& output)
{
    const QString path = QFileInfo(output).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(input.name).canonicalFilePath();
}

int tidyState(const Input& input, const Place& place, const QString& output)
{
    const WindowState state(place.state);
    if (!state.isSound())
        return reportFailure(input.name, Text::tr("is not sound; see \"panorel check\""));
    const QByteArray tidied = state.tidied();
    if (tidied == place.state && input.kind() == Kit::LayoutFile::Kind::State)
        return writeResult(output, input.file.bytes());
    return writeResult(output, inFormOf(input, tidied));
}

int tidyDocument(Input& input, const CommandLine& line, const QString& output)
{
    LayoutDocument::TidyOptions options;
    options.keepsNameless = line.isSet(QStringLiteral("keep-nameless"));
    options.dropsUnsound = line.isSet(QStringLiteral("drop-unsound"));
    QVector<Kit::Problem> dropped;
    if (const auto error = input.document.tidy(options, &dropped))
        return reportFailure(input.name, error.text);
    for (const Kit::Problem& problem : qAsConst(dropped)) {
        Place place;
        place.group = problem.group;
        place.view = problem.view;
        place.window = problem.window;
        place.isInCurrentView = problem.isInCurrentView;
        place.isInToolBarState = problem.isInToolBarState;
        reportRemark(input.name, Text::tr("left out %1: %2").arg(place.title(), problem.text()));
    }
    return writeDocument(input, output);
}

// Of a settings file only one state is written, so it must be named and go elsewhere.
bool isUsable(const CommandLine& line, const Input& input, const QString& output)
{
    if (input.kind() != Kit::LayoutFile::Kind::Settings)
        return true;
    if (!line.requireValues({QStringLiteral("window")}))
        return false;
    if (!isSameFile(input, output))
        return true;
    reportFailure(input.name, Text::tr("a state is not written over its settings file"));
    return false;
}

} // namespace

int runTidy(const Command& command, const QStringList& arguments)
{
    CommandLine line(QLatin1String(command.name), QStringLiteral("FILE [-o OUT]"),
                     command.translatedSummary());
    line.addValue({QStringLiteral("o")}, Text::tr("Writes this file and not standard output."),
                  Text::tr("OUT"));
    line.addSwitch(QStringLiteral("keep-nameless"), Text::tr("Keeps layouts without a name."));
    line.addSwitch(QStringLiteral("drop-unsound"),
                   Text::tr("Leaves out states that are not sound, and says so."));
    line.addValue({QStringLiteral("window")},
                  Text::tr("The state at SECTION/KEY of a settings file."), Text::tr("ID"));
    addInputOptions(line);
    if (const auto status = line.parse(arguments, 1, 1))
        return *status;
    std::optional<Input> input = readInput(line, line.files().constFirst());
    if (!input)
        return Failed;
    const QString output =
        line.isSet(QStringLiteral("o")) ? line.value(QStringLiteral("o")) : QStringLiteral("-");
    if (input->isDocument()) {
        if (line.isSet(QStringLiteral("window")))
            return line.reportMisuse(Text::tr("--window is for settings files"));
        return input->document.isReadable() ? tidyDocument(*input, line, output)
                                            : reportUnreadable(*input);
    }
    if (!isUsable(line, *input, output))
        return Failed;
    const auto places = choosePlaces(readChoice(line), *input);
    if (!places)
        return Failed;
    if (places->size() != 1)
        return reportFailure(input->name, Text::tr("has several states; choose one by --window"));
    return tidyState(*input, places->constFirst(), output);
}

} // namespace Panorel::Tool
