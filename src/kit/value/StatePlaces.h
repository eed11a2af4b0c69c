// SPDX-License-Identifier: MIT
#pragma once

#include "value/StateTree.h"

#include <vector>

namespace Panorel::Kit::Detail {

/** What Qt does with an item, and why it is there. */
enum class Place : unsigned char {
    /** The dock widget or tool bar comes here. One without a name always does, and so do blocks. */
    Taken,
    /** Merging has repeated a part that has its place already. */
    Repeated,
    /** Merging has repeated a dock widget without a name, which Qt ignores. */
    RepeatedNameless,
    /** Another part of the same name, or so it looks. */
    SameName,
    /** A later section names it again and takes it from here, as a floating tab group does. */
    Superseded
};

/**
 * The places in a state, by the rules by which QMainWindow::restoreState() finds the parts: within
 * a section the first item of a name gets the part, and each section looks for all parts again.
 *
 * What merging repeats differs from other parts of the same name in place and form.
 * A record that merging has written begins with all items of the one before it, and has items of
 * its own after them. A window that was given such a state keeps an empty place for each repeat,
 * which it saves with a minimum and maximum size of 0; a dock widget has a maximum size above 0.
 */
struct StatePlaces
{
    explicit StatePlaces(const StateTree& tree);

    /** Whether merging has repeated the item of @p place. */
    static bool isRepeat(Place place)
    {
        return place == Place::Repeated || place == Place::RepeatedNameless;
    }

    /** For each of StateTree::items. */
    std::vector<Place> items;
    /** For each of StateTree::toolBars. */
    std::vector<Place> toolBars;
    /** How many of both have a name that occurred before in their section. */
    int repeats = 0;
    /** Whether merging has repeated any. */
    bool hasRepeats = false;
};

/** Whether @p section is one of tool bars. */
bool holdsToolBars(const StateSection& section);

} // namespace Panorel::Kit::Detail
