// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/StateMap.h>

#include <QByteArray>
#include <QHash>

namespace Panorel::Kit::Detail {

/** Keeps equal states once, however many steps have them, and knows their bytes. */
class StatePool
{
public:
    /** Replaces each state by the one that is kept; release() what was added. */
    void add(StateMap& states);
    void release(const StateMap& states);
    /** For what is kept elsewhere; less than none when it is released. */
    void addBytes(qint64 bytes) { m_bytes += bytes; }

    /** Of all that is kept. */
    qint64 bytes() const { return m_bytes; }

private:
    QHash<QByteArray, int> m_uses;
    qint64 m_bytes = 0;
};

} // namespace Panorel::Kit::Detail
