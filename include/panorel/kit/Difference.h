// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/PanorelKitExport.h>

#include <QString>
#include <QVariant>
#include <QVector>

namespace Panorel::Kit {

class WindowState;

/** One thing that is not the same in two layouts of a window. A plain value. */
struct PANORELKIT_EXPORT Difference
{
    /** What of the window differs. */
    enum class Part { DockWidget, ToolBar };

    /** In what it differs. */
    enum class Aspect {
        /** It is in the second layout only. */
        Added,
        /** It is in the first layout only. */
        Removed,
        /** Its side of the window; from and to are identifiers: "left", "right", "top", "bottom".
         */
        Area,
        /** Which others are tabs with it, or are in one floating window with it; from and to are
            lists of their names, 50 at most. Or which page is in front: the part is the one that is
            in front in the second layout, and from and to are lists of one name, those in front. */
        Tabs,
        /** Whether it is a window of its own or in a floating tab group, and where, by more than a
            tenth of its size; from and to are bool, or the window's QRects if it floats in both. */
        Floating,
        /** Whether it is open; from and to are bool. Where one that was opened is, and what room it
            takes, is not said as well. */
        Visible,
        /** Its size, by more than a tenth; or by more than 2 pixels where another side of the
           window has a corner. From and to are QSize, of a tool bar int, its length. */
        Size,
        /** The line of a tool bar within its side; from and to are int, from 0 at the window's
            edge. */
        Line,
        /** Its place among its neighbours: tabs, tool bars of a line, or dock widgets of a side in
            reading order; from and to are int. If that is the same, whether it is beside or below
            its neighbours; from and to are the identifiers "beside" and "below". These are equal
            if only with whom it is beside or below has changed. */
        Order
    };

    /** The group, saved view and window id; null where two states are compared. For a group's
        current view, view is null and isInCurrentView is true. */
    QString group;
    /** The saved view. */
    QString view;
    /** The id of the window. */
    QString window;
    /** Whether it is in the group's current view. */
    bool isInCurrentView = false;

    /** What of the window differs. */
    Part part = Part::DockWidget;
    /** The objectName of the dock widget or tool bar. */
    QString name;
    /** In what it differs. */
    Aspect aspect = Aspect::Added;
    /** What it is in the first and in the second layout, see Aspect. */
    QVariant from;
    /** What it is in the second layout. */
    QVariant to;

    /**
     * One sentence in the user's language.
     * @param title what the user knows the part by, such as its window title; empty for its name.
     */
    QString text(const QString& title = QString()) const;
};

/** The identifiers of @p part and @p aspect in scripts, such as "toolBar" and "area". */
PANORELKIT_EXPORT QString identifierOf(Difference::Part part);
PANORELKIT_EXPORT QString identifierOf(Difference::Aspect aspect);

/**
 * All that a user would see change between two states of a window, dock widgets first, then tool
 * bars. Empty only if two windows that are given @p a and @p b look the same; sizes within a tenth
 * count as the same, and both windows are taken to be of one size.
 *
 * Told is what was done, not what follows from it: that neighbours share the room of a dock widget
 * that was closed is no difference of theirs. What differs in bytes alone, such as repeats, and
 * what nobody sees, such as the place of a closed part, is the same.
 *
 * Both must be readable; an unreadable one is compared as a window without parts. Takes n log n for
 * n parts.
 */
PANORELKIT_EXPORT QVector<Difference> differences(const WindowState& a, const WindowState& b);

} // namespace Panorel::Kit
