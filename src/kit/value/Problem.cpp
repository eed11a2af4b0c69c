// SPDX-License-Identifier: MIT
#include <panorel/kit/Problem.h>

#include <QCoreApplication>

#include <algorithm>

namespace Panorel::Kit {

namespace {

// What belongs to a code, in the order of ProblemCode. The texts are completed by Problem::detail.
struct Row
{
    const char* identifier;
    Severity severity;
    const char* text;
};

const Row rows[] = {
    {"dock-area", Severity::Harmful,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "Dock widgets are on a side that does not exist")},
    {"malformed", Severity::Harmful,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "The state is damaged")},
    {"nesting", Severity::Harmful,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "Dock widgets are nested too deeply")},
    {"size", Severity::Harmful,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "The state describes more than a window can have")},
    {"not-well-formed", Severity::Refused,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "The document is damaged: %1")},
    {"not-valid", Severity::Refused,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "The document is not one of layouts: %1")},
    {"version", Severity::Refused,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "The document has the unknown version \"%1\"")},
    {"marker", Severity::Refused,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "This is not the state of a window")},
    {"nameless-view", Severity::Note,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "A layout has no name")},
    {"repeated-view", Severity::Note,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "Several layouts have the name \"%1\"")},
    {"nameless-part", Severity::Note,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "A dock widget or tool bar has no name")},
    {"repeated-part", Severity::Note,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem",
                       "Several dock widgets or tool bars have the name \"%1\"")},
    {"repeats", Severity::Note,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "Merging has repeated dock widgets or tool bars")},
    {"floating-tabs", Severity::Note,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem",
                       "Dock widgets float as tabs; merging this state loses its tool bars")},
    {"tool-bar-area", Severity::Note,
     QT_TRANSLATE_NOOP("Panorel::Kit::Problem", "Tool bars are on a side that does not exist")},
};

const Row& rowOf(ProblemCode code)
{
    return rows[static_cast<int>(code)];
}

} // namespace

Severity Problem::severity() const
{
    return rowOf(code).severity;
}

QString Problem::text() const
{
    const QString text = QCoreApplication::translate("Panorel::Kit::Problem", rowOf(code).text);
    return text.contains(QLatin1String("%1")) ? text.arg(detail) : text;
}

QString identifierOf(ProblemCode code)
{
    return QLatin1String(rowOf(code).identifier);
}

QString identifierOf(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QStringLiteral("note");
    case Severity::Refused:
        return QStringLiteral("refused");
    case Severity::Harmful:
        break;
    }
    return QStringLiteral("harmful");
}

bool isSound(const QVector<Problem>& problems)
{
    return std::all_of(problems.cbegin(), problems.cend(),
                       [](const Problem& problem) { return problem.severity() == Severity::Note; });
}

} // namespace Panorel::Kit
