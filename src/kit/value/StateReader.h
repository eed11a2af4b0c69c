// SPDX-License-Identifier: MIT
#pragma once

#include "value/StateTree.h"

#include <QByteArray>

namespace Panorel::Kit::Detail {

/**
 * Reads a window's state into a StateTree.
 *
 * It accepts what QtState::read() accepts, and floating tab groups. Nested blocks are read with a
 * list of the open ones instead of recursion, and memory is taken for bytes that are there, never
 * for a count that is read.
 */
class StateReader
{
public:
    /** What @p bytes say. A tree that is not readable holds nothing but the bytes, marker and
        version as far as they were there, and where reading ended. */
    static StateTree read(const QByteArray& bytes);

private:
    explicit StateReader(StateTree& tree);

    bool readSections();
    bool readDockAreas(StateSection& section);
    bool readFloating(StateSection& section);
    bool readToolBars(StateSection& section);
    bool readLine();
    bool readBlock();
    bool readBlockHead(StateItem& block, int& itemCount);
    bool readItemHead(StateItem& item);

    // Each returns false, and stays where it is, if the bytes are not there.
    bool read(unsigned char& value);
    bool read(int& value);
    bool read(QSize& size);
    bool read(QString& name);
    bool read(int* values, int count);
    bool has(int count) const;

    StateTree& m_tree;
    const char* const m_data;
    const int m_size;
    int m_offset = 0;
    // How many values a tool bar of the section being read has.
    int m_valueCount = 0;
};

} // namespace Panorel::Kit::Detail
