// SPDX-License-Identifier: MIT
#pragma once

#include "value/StatePlaces.h"

#include <QByteArray>

#include <vector>

namespace Panorel::Kit::Detail {

/**
 * Writes a state again without what merging has repeated: items, the blocks and dock records that
 * held nothing else, and nothing more. What stays is copied byte for byte, but for counts and for
 * the number of the tab in front, which follows its tab.
 */
class StateTidy
{
public:
    /** @p tree must be readable. */
    static QByteArray tidied(const StateTree& tree, const StatePlaces& places);

private:
    // What becomes of a block.
    struct Block
    {
        int itemsKept = 0;
        // Items as Qt counts them for the tab in front, those without a name left out: so far, and
        // of these the ones that are kept.
        int counted = 0;
        int countedKept = 0;
        int currentIndex = 0;
    };

    StateTidy(const StateTree& tree, const StatePlaces& places);

    void findKept();
    void findFrontTabs();
    void countIn(std::size_t block, std::size_t item);
    bool isKept(int block) const { return m_isKept[static_cast<std::size_t>(block)]; }

    void writeDockAreas(const StateSection& section);
    void writeFloating(const StateSection& section);
    void writeToolBars(const StateSection& section);
    void writeLine(const StateLine& line, int valueCount);
    void writeBlock(int top);
    void writeBlockHead(std::size_t block);
    void copy(int offset, int size);
    void writeInt(int value);

    const StateTree& m_tree;
    const StatePlaces& m_places;
    // For each item: the index of the block around it, -1 for a top block.
    std::vector<int> m_parents;
    std::vector<bool> m_isKept;
    std::vector<Block> m_blocks;
    QByteArray m_bytes;
};

} // namespace Panorel::Kit::Detail
