// SPDX-License-Identifier: MIT

// Reads any bytes as a window state and holds the codec against the reference reader, which shares
// no code with it:
// - both accept the bytes or both refuse them, and either way both hold the same value;
// - what write() gives of it reads as that value again, with items repeated as read() always does;
// - dock areas are written before tool bars, and bytes that have them so and hold no section with
//   several records come back unchanged, but for counts below zero, which mean none;
// - a copy is equal, and stays so when its original is gone.
// Inputs stay short: items repeat from record to record, twice here, so the memory that one takes
// grows with the cube of its size.

#include "Fuzz.h"
#include "support/ReferenceReader.h"

#include <panorel/QtState.h>

#include <algorithm>
#include <memory>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

void checkCopies(const QtState& state)
{
    auto original = std::make_unique<QtState>(state);
    const QtState copy(*original);
    original->clear();
    requireEqual(difference(*original, QtState()), "a cleared value is an empty one");
    original.reset();
    requireEqual(difference(copy, state), "a copy does not need its original");

    std::vector<DockArea> assigned = state.m_dockAreaLayouts;
    for (DockArea& area : assigned) {
        for (Dock& dock : area.docks) {
            // An item may be replaced by one of its own inside.
            for (DockItem& item : dock.block.items) {
                if (item.subBlock && !item.subBlock->items.empty())
                    item = item.subBlock->items.back();
            }
        }
    }
    requireEqual(difference(copy, state), "a copy shares nothing");
}

/** @p input with 0 where @p written has it: a count below zero means none and is written so. */
QByteArray withoutNegativeCounts(QByteArray input, const QByteArray& written)
{
    for (int i = 0; i < std::min(input.size(), written.size()); ++i) {
        if (written[i] == '\0')
            input[i] = '\0';
    }
    return input;
}

bool areDocksFirst(const QByteArray& input, const QtState& state)
{
    QtState docks(state);
    docks.m_toolBarAreaLayouts.clear();
    const QByteArray start = docks.write();
    return state.m_toolBarAreaLayouts.empty() ||
           withoutNegativeCounts(input.left(start.size()), start) == start;
}

void checkWriting(const QtState& state, const QByteArray& input)
{
    const QByteArray written = state.write();
    QtState docks(state);
    docks.m_toolBarAreaLayouts.clear();
    QtState toolBars(state);
    toolBars.m_dockAreaLayouts.clear();
    requireEqual(difference(written, docks.write() + toolBars.write().mid(8)),
                 "dock areas are written before tool bars");

    QtState expected(state);
    accumulate(expected);
    QtState again;
    require(again.read(written), "what was written is accepted");
    requireEqual(difference(again, expected), "what was written reads as the same value");
    const Reading reference = ReferenceReader::read(written);
    require(reference.ok, "what was written is well-formed");
    requireEqual(difference(reference.state, expected), "what was written holds the value");

    if (hasSingleRecords(state) && areDocksFirst(input, state))
        requireEqual(difference(written, withoutNegativeCounts(input, written)),
                     "single records come back unchanged");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input = bytes(data, size);
    QtState state;
    const bool accepted = state.read(input);
    const Reading reference = ReferenceReader::read(input);
    require(accepted == reference.ok, "both readers agree on what is well-formed");
    requireEqual(difference(state, reference.state), "both readers hold the same value");
    if (accepted)
        checkWriting(state, input);
    checkCopies(state);
    return 0;
}
