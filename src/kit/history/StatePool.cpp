// SPDX-License-Identifier: MIT
#include "StatePool.h"

namespace Panorel::Kit::Detail {

void StatePool::add(StateMap& states)
{
    const StateMap given = states;
    for (auto state = given.cbegin(); state != given.cend(); ++state) {
        auto known = m_uses.find(*state);
        if (known == m_uses.end()) {
            // Copied, because the stream that wrote it reserves up to twice its size.
            const QByteArray exact(state->constData(), state->size());
            const bool isExact = state->capacity() <= state->size();
            known = m_uses.insert(isExact ? *state : exact, 0);
            m_bytes += state->size();
        }
        ++*known;
        if (known.key().constData() != state->constData())
            states.insert(state.key(), known.key());
    }
}

void StatePool::release(const StateMap& states)
{
    for (const QByteArray& state : states) {
        const auto known = m_uses.find(state);
        if (known == m_uses.end() || --*known > 0)
            continue;
        m_bytes -= state.size();
        m_uses.erase(known);
    }
}

} // namespace Panorel::Kit::Detail
