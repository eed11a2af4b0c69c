// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/PanorelKitExport.h>

#include <QString>
#include <QVector>

namespace Panorel::Kit {

/** How bad a Problem is. */
enum class Severity {
    /** Worth knowing. A window takes the state without harm. */
    Note,
    /** A window or a Manager refuses the state or document as a whole. */
    Refused,
    /** A window that is given the state may crash or hang. */
    Harmful
};

/** What kind of problem was found. */
enum class ProblemCode {
    /** Harmful: a dock record on a side other than 0 to 3. */
    DockArea,
    /** Harmful: the bytes do not parse to their end. */
    Malformed,
    /** Harmful: blocks nested deeper than Qt's recursion can handle, see Limits::nesting. */
    Nesting,
    /** Harmful: repeated items describe more than a window can have, see Limits::items. */
    Size,
    /** Refused: the document is not well-formed XML. */
    NotWellFormed,
    /** Refused: the document does not satisfy the schema. */
    NotValid,
    /** Refused: a document of another version than "1.1.0", of which a Manager reads nothing. */
    Version,
    /** Refused: a state that does not begin with Qt's marker. */
    Marker,
    /** Note: a saved view with an empty name. */
    NamelessView,
    /** Note: a name that two saved views of a group have. */
    RepeatedView,
    /** Note: a dock widget or tool bar without a name. */
    NamelessPart,
    /** Note: two dock widgets or tool bars of one name that merging did not repeat. */
    RepeatedPart,
    /** Note: items that merging has repeated. */
    Repeats,
    /** Note: a floating tab group; merging this state through the Manager loses its tool bars. */
    FloatingTabs,
    /** Note: a tool-bar line on a side other than 0 to 3. */
    ToolBarArea
};

/** Something that a check has found. A plain value. */
struct PANORELKIT_EXPORT Problem
{
    /** What it is. */
    ProblemCode code = ProblemCode::Malformed;
    /** Where in the state it is, in bytes from its first; in bytes of the document if it concerns
        the document itself; -1 where no single place can be named. */
    qint64 offset = -1;
    /** The group, saved view and window id that it concerns; null where that does not apply. A
        problem of one state alone has none of them. */
    QString group;
    /** The saved view. */
    QString view;
    /** The id of the window. */
    QString window;
    /** Whether it is in a group's current view; then view is null. */
    bool isInCurrentView = false;
    /** Whether it is in one of the document's tool-bar states; then group and view are null. */
    bool isInToolBarState = false;
    /** The name of the dock widget, tool bar or view that it concerns, or another detail of the
        text; may be null. */
    QString detail;

    /** How bad it is; each code has one severity. */
    Severity severity() const;
    /** One sentence in the user's language. */
    QString text() const;
};

/** The identifier of @p code in scripts, such as "dock-area"; never translated. */
PANORELKIT_EXPORT QString identifierOf(ProblemCode code);
/** The identifier of @p severity in scripts: "harmful", "refused" or "note". */
PANORELKIT_EXPORT QString identifierOf(Severity severity);

/** Whether no problem is worse than a note. */
PANORELKIT_EXPORT bool isSound(const QVector<Problem>& problems);

} // namespace Panorel::Kit
