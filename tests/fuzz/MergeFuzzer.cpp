// SPDX-License-Identifier: MIT

// Merges two window states, well-formed or not, and compares with what the reference reader says of
// each:
// - the result has marker, version and dock areas of the first, and the tool bars of the second
//   unless that is null; nothing else, and neither argument changes;
// - the Manager merges a stored and a live layout the same way: every window of either side gets a
//   state, and a side without one counts as empty.
// An input is the length of the first state in two bytes, the first state, and the second.

#include "Fuzz.h"
#include "manager/ManagerPrivate.h"
#include "support/ReferenceReader.h"

#include <panorel/Manager.h>
#include <panorel/QtState.h>

#include <algorithm>

using namespace Panorel;
using namespace Panorel::Tests;

namespace {

QtState expectedMerge(const QtState& a, const QtState& b)
{
    QtState merged(a);
    merged.m_toolBarAreaLayouts.clear();
    if (b.m_version != -1)
        merged.m_toolBarAreaLayouts = b.m_toolBarAreaLayouts;
    return merged;
}

/** What the Manager takes @p blob for, none included. */
QtState side(const QByteArray& blob)
{
    return blob.isEmpty() ? QtState() : ReferenceReader::read(blob).state;
}

void checkManager(const QByteArray& stored, const QByteArray& live)
{
    static auto* manager = new Manager({QString()}, /*mergeOnApply=*/true);
    const QString both = QStringLiteral("both");
    const QString onlyStored = QStringLiteral("stored");
    const QString onlyLive = QStringLiteral("live");
    const StateMap merged = Tests::mergeStates(*manager, {{both, stored}, {onlyStored, stored}},
                                               {{both, live}, {onlyLive, live}});
    require(merged.size() == 3, "every window has one merged state");
    requireEqual(difference(merged[both], expectedMerge(side(stored), side(live)).write()),
                 "a stored layout is merged with the live one");
    requireEqual(difference(merged[onlyStored], expectedMerge(side(stored), QtState()).write()),
                 "a window that is not there has no tool bars");
    requireEqual(difference(merged[onlyLive], expectedMerge(QtState(), side(live)).write()),
                 "a window without a stored layout gets one that it refuses");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const QByteArray input = bytes(data + 2, size - 2);
    const int length = std::min(data[0] * 256 + data[1], input.size());
    const QByteArray first = input.left(length);
    const QByteArray second = input.mid(length);
    QtState a;
    (void)a.read(first);
    QtState b;
    (void)b.read(second);
    const QtState expected =
        expectedMerge(ReferenceReader::read(first).state, ReferenceReader::read(second).state);

    const QtState merged = QtState::merge(a, b);
    requireEqual(difference(merged, expected), "each part comes from its side");
    requireEqual(difference(merged.write(), expected.write()), "the same is written");
    requireEqual(difference(a, ReferenceReader::read(first).state), "the first stays unchanged");
    requireEqual(difference(b, ReferenceReader::read(second).state), "the second stays unchanged");
    requireEqual(difference(QtState::merge(a, a), expectedMerge(a, a)), "both may be the same");
    checkManager(first, second);
    return 0;
}
