// SPDX-License-Identifier: MIT
#include "CheckedStates.h"

namespace Panorel::Kit::Detail {

namespace {

// In bytes of the states; read they take a few times as many.
constexpr int capacity = 1024 * 1024;

} // namespace

CheckedStates::CheckedStates()
    : m_entries(capacity)
{}

CheckedStates::Entry CheckedStates::read(const QByteArray& bytes)
{
    if (const Entry* const known = m_entries.object(bytes))
        return *known;
    Entry entry;
    entry.state = WindowState(bytes);
    entry.isSound = entry.state.isSound();
    if (entry.isSound)
        entry.tidied = entry.state.tidied();
    m_entries.insert(bytes, new Entry(entry), bytes.size());
    return entry;
}

} // namespace Panorel::Kit::Detail
