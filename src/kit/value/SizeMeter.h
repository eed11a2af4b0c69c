// SPDX-License-Identifier: MIT
#pragma once

#include "value/StatePlaces.h"

namespace Panorel::Kit::Detail {

/**
 * Counts what a state describes, as merging spells it out: each dock record and each line of tool
 * bars has the items of all those before it and then its own. The record counts as well, and a
 * floating tab group as a hundred items, because it is a window of its own.
 *
 * What merging has repeated in a state as a window writes it, with one dock record for each side
 * at most, does not count: there are few records, and Qt ignores the repeats.
 */
class SizeMeter
{
public:
    /** Where the record begins with which @p tree exceeds the limit; -1 if none does. */
    static int offsetOfExcess(const StateTree& tree, const StatePlaces& places);

private:
    SizeMeter(const StateTree& tree, const StatePlaces& places);

    void addDocks(const StateSection& section);
    void addFloating(const StateSection& section);
    void addLines(const StateSection& section);
    qint64 dockWidgetsIn(int block) const;
    void add(qint64 count, int offset);

    const StateTree& m_tree;
    const StatePlaces& m_places;
    bool m_countsRepeats = false;
    // Items of all records so far, and of all lines.
    qint64 m_items = 0;
    qint64 m_toolBars = 0;
    qint64 m_described = 0;
    int m_excess = -1;
};

} // namespace Panorel::Kit::Detail
