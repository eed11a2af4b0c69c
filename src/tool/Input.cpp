// SPDX-License-Identifier: MIT
#include "Input.h"

#include "CommandLine.h"
#include "Console.h"

#include <panorel/kit/WindowState.h>

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace Panorel::Tool {

using Kit::LayoutDocument;
using Kit::LayoutFile;
using Kit::SettingsStates;

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(Panorel::Tool::Input)
};

const QString limitOption = QStringLiteral("max-size");
constexpr qint64 bytesPerMebibyte = qint64(1024) * 1024;

void appendPlaces(QVector<Place>& places, Place place, const StateMap& states)
{
    for (auto it = states.cbegin(); it != states.cend(); ++it) {
        place.window = it.key();
        place.state = it.value();
        places.append(place);
    }
}

void appendPlaces(QVector<Place>& places, const LayoutDocument::Group& group)
{
    Place place;
    place.group = group.name;
    for (const LayoutDocument::View& view : group.views) {
        place.view = view.name;
        appendPlaces(places, place, view.states);
    }
    place.view = QString();
    place.isInCurrentView = true;
    appendPlaces(places, place, group.current.states);
}

QVector<Place> placesOf(const LayoutDocument& document)
{
    QVector<Place> places;
    Place place;
    place.isInToolBarState = true;
    appendPlaces(places, place, document.toolBarStates());
    const auto groups = document.groups();
    for (const LayoutDocument::Group& group : groups)
        appendPlaces(places, group);
    return places;
}

QVector<Place> placesOf(const SettingsStates& settings)
{
    QVector<Place> places;
    for (const SettingsStates::Entry& entry : settings.entries()) {
        Place place;
        place.window = entry.key;
        place.state = entry.state;
        places.append(place);
    }
    return places;
}

// Nothing, after a message, if the value is not a number.
std::optional<qint64> readLimit(const CommandLine& line)
{
    if (!line.isSet(limitOption))
        return LayoutFile::standardLimit;
    bool isNumber = false;
    const qint64 mebibytes = line.value(limitOption).toUInt(&isNumber);
    if (!isNumber) {
        line.reportMisuse(Text::tr("--%1 needs a number").arg(limitOption));
        return std::nullopt;
    }
    const qint64 limit = mebibytes * bytesPerMebibyte;
    return limit == 0 || limit > LayoutFile::largestLimit ? LayoutFile::largestLimit : limit;
}

LayoutFile readFile(const QString& name, qint64 limit)
{
    if (name != QLatin1String("-"))
        return LayoutFile::read(name, limit);
    QFile standardInput;
    if (!standardInput.open(stdin, QIODevice::ReadOnly))
        return LayoutFile();
    return LayoutFile::read(standardInput, limit);
}

QString errorOf(const LayoutFile& file)
{
    return file.error().isEmpty() ? Text::tr("holds no layout") : file.error();
}

} // namespace

QString Place::title() const
{
    QStringList parts;
    if (!group.isNull())
        parts.append(group.isEmpty() ? Text::tr("(without a name)") : group);
    if (isInCurrentView)
        parts.append(Text::tr("(working layout)"));
    else if (isInToolBarState)
        parts.append(Text::tr("(tool bars)"));
    else if (!view.isNull())
        parts.append(view.isEmpty() ? Text::tr("(without a name)") : view);
    if (!window.isNull())
        parts.append(window);
    return parts.join(QLatin1String(" / "));
}

QVector<Place> Input::places() const
{
    switch (kind()) {
    case LayoutFile::Kind::Document:
        return placesOf(document);
    case LayoutFile::Kind::Settings:
        return placesOf(settings);
    case LayoutFile::Kind::State: {
        Place place;
        place.state = file.state();
        return {place};
    }
    case LayoutFile::Kind::Unrecognised:
        break;
    }
    return {};
}

void addInputOptions(CommandLine& line)
{
    line.addValue({limitOption},
                  Text::tr("Reads files of up to this size in MiB, %1 if it is not given; 0 lifts "
                           "the limit.")
                      .arg(LayoutFile::standardLimit / bytesPerMebibyte),
                  Text::tr("MIB"));
}

std::optional<Input> readInput(const CommandLine& line, const QString& name)
{
    const std::optional<qint64> limit = readLimit(line);
    if (!limit)
        return std::nullopt;
    Input input;
    input.name = name;
    input.file = readFile(name, *limit);
    if (input.kind() == LayoutFile::Kind::Unrecognised) {
        reportFailure(name, errorOf(input.file));
        return std::nullopt;
    }
    if (input.isDocument())
        input.document = LayoutDocument(input.file.bytes());
    else if (input.kind() == LayoutFile::Kind::Settings)
        input.settings = SettingsStates(input.file.bytes());
    return input;
}

std::optional<Input> readDocument(const CommandLine& line, const QString& name)
{
    std::optional<Input> input = readInput(line, name);
    if (!input)
        return std::nullopt;
    if (!input->isDocument()) {
        reportFailure(name, Text::tr("is not a document of layouts"));
        return std::nullopt;
    }
    if (!input->document.isReadable()) {
        reportUnreadable(*input);
        return std::nullopt;
    }
    return input;
}

int writeDocument(const Input& input, const QString& output)
{
    const QByteArray before = input.file.bytes();
    const QByteArray bytes = input.document.bytes();
    if (bytes != before && LayoutDocument(before).isWrittenWhole())
        reportRemark(input.name, Text::tr("is written again as a whole, because of its document "
                                          "type or encoding"));
    return writeResult(output, bytes);
}

bool areReadable(const Input& input, const QVector<Place>& places)
{
    for (const Place& place : places) {
        if (Kit::WindowState(place.state).isReadable())
            continue;
        const QString title = place.title();
        reportFailure(input.name, title.isEmpty() ? Text::tr("is damaged")
                                                  : Text::tr("%1 is damaged").arg(title));
        return false;
    }
    return true;
}

int reportUnreadable(const Input& input)
{
    const auto problems = input.document.check();
    return reportFailure(input.name, problems.isEmpty() ? Text::tr("cannot be read")
                                                        : problems.constFirst().text());
}

} // namespace Panorel::Tool
