// SPDX-License-Identifier: MIT

// The commands that change a document: copy, rename, move and remove.

#include "Choice.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Console.h"
#include "Input.h"

#include <QCoreApplication>

namespace Panorel::Tool {

using Kit::LayoutDocument;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::EditCommands)
};

const QString groupOption = QStringLiteral("group");
const QString viewOption = QStringLiteral("view");
const QString windowOption = QStringLiteral("window");
const QString toOption = QStringLiteral("to");
const QString outputOption = QStringLiteral("o");

/** The arguments that all of these commands have. */
class EditLine : public CommandLine
{
public:
    EditLine(const Command& command, const QString& files)
        : CommandLine(QLatin1String(command.name), files, command.translatedSummary())
    {
        addValue({outputOption}, Text::tr("The file to write; \"-\" is standard output."),
                 Text::tr("OUT"));
        addValue({groupOption}, Text::tr("The group of the layout."), Text::tr("NAME"));
        addValue({viewOption}, Text::tr("The layout."), Text::tr("NAME"));
        addInputOptions(*this);
    }
};

// Writes the document unless its edit was refused.
int finish(const CommandLine& line, const Input& input, const LayoutDocument::Error& error)
{
    if (error)
        return reportFailure(input.name, error.text);
    return writeDocument(input, line.value(outputOption));
}

// Without --group, the only group there is. Nothing, after a message, if there are others.
std::optional<QString> groupOf(const CommandLine& line, const Input& input)
{
    if (line.isSet(groupOption))
        return line.value(groupOption);
    const QStringList names = input.document.groupNames();
    if (names.size() == 1)
        return names.constFirst();
    reportFailure(
        input.name,
        Text::tr("the option %1 is missing; there are: %2").arg(typed(groupOption), listed(names)));
    return std::nullopt;
}

LayoutDocument::Error removeViews(LayoutDocument& document, const QString& group,
                                  const QStringList& views)
{
    for (const QString& view : views) {
        if (auto error = document.removeView(group, view))
            return error;
    }
    return {};
}

} // namespace

int runCopy(const Command& command, const QStringList& arguments)
{
    EditLine line(command, QStringLiteral("FROM INTO -o OUT"));
    line.allowRepeated(viewOption);
    line.addSwitch(QStringLiteral("replace"),
                   Text::tr("Replaces layouts whose names are there already."));
    line.addSwitch(QStringLiteral("keep-both"),
                   Text::tr("Copies layouts under another name where theirs is there already."));
    if (const auto status = line.parse(arguments, 2, 2))
        return *status;
    const bool replaces = line.isSet(QStringLiteral("replace"));
    const bool keepsBoth = line.isSet(QStringLiteral("keep-both"));
    if (replaces && keepsBoth)
        return line.reportMisuse(Text::tr("--replace and --keep-both exclude each other"));
    if (!line.requireValues({outputOption}))
        return Failed;
    const std::optional<Input> from = readDocument(line, line.files().constFirst());
    std::optional<Input> into = from ? readDocument(line, line.files().constLast()) : std::nullopt;
    if (!into)
        return Failed;
    const auto onConflict = replaces    ? LayoutDocument::OnConflict::Replace
                            : keepsBoth ? LayoutDocument::OnConflict::KeepBoth
                                        : LayoutDocument::OnConflict::Fail;
    return finish(line, *into,
                  into->document.copyViews(from->document, line.value(groupOption),
                                           line.values(viewOption), onConflict));
}

int runRename(const Command& command, const QStringList& arguments)
{
    EditLine line(command, QStringLiteral("FILE --view V --to NAME -o OUT"));
    line.addValue({windowOption}, Text::tr("The window to rename in all layouts."), Text::tr("ID"));
    line.addValue({toOption}, Text::tr("The new name."), Text::tr("NAME"));
    if (const auto status = line.parse(arguments, 1, 1))
        return *status;
    const bool isWindow = line.isSet(windowOption);
    if (isWindow && (line.isSet(viewOption) || line.isSet(groupOption)))
        return line.reportMisuse(Text::tr("a window is renamed in all layouts"));
    if (!line.requireValues({isWindow ? windowOption : viewOption, toOption, outputOption}))
        return Failed;
    std::optional<Input> input = readDocument(line, line.files().constFirst());
    if (!input)
        return Failed;
    LayoutDocument& document = input->document;
    const QString name = line.value(toOption);
    if (isWindow)
        return finish(line, *input, document.renameWindow(line.value(windowOption), name));
    const std::optional<QString> group = groupOf(line, *input);
    if (!group)
        return Failed;
    return finish(line, *input, document.renameView(*group, line.value(viewOption), name));
}

int runMove(const Command& command, const QStringList& arguments)
{
    EditLine line(command, QStringLiteral("FILE --view V --before OTHER|--last -o OUT"));
    line.addValue({QStringLiteral("before")}, Text::tr("The layout to move it before."),
                  Text::tr("OTHER"));
    line.addSwitch(QStringLiteral("last"), Text::tr("Moves it after all others."));
    if (const auto status = line.parse(arguments, 1, 1))
        return *status;
    if (line.isSet(QStringLiteral("before")) == line.isSet(QStringLiteral("last")))
        return line.reportMisuse(Text::tr("either --before or --last is needed"));
    if (!line.requireValues({viewOption, outputOption}))
        return Failed;
    std::optional<Input> input = readDocument(line, line.files().constFirst());
    const std::optional<QString> group = input ? groupOf(line, *input) : std::nullopt;
    if (!group)
        return Failed;
    return finish(line, *input,
                  input->document.moveView(*group, line.value(viewOption),
                                           line.value(QStringLiteral("before"))));
}

int runRemove(const Command& command, const QStringList& arguments)
{
    EditLine line(command, QStringLiteral("FILE --view V -o OUT"));
    line.allowRepeated(viewOption);
    if (const auto status = line.parse(arguments, 1, 1))
        return *status;
    if (!line.requireValues({viewOption, outputOption}))
        return Failed;
    std::optional<Input> input = readDocument(line, line.files().constFirst());
    const std::optional<QString> group = input ? groupOf(line, *input) : std::nullopt;
    if (!group)
        return Failed;
    return finish(line, *input, removeViews(input->document, *group, line.values(viewOption)));
}

} // namespace Panorel::Tool
