// SPDX-License-Identifier: MIT
#pragma once

#include <panorel/kit/WindowState.h>

#include <QByteArray>
#include <QCache>

namespace Panorel::Kit::Detail {

/** Stored states as read and checked, because the same few are given again and again. */
class CheckedStates
{
public:
    struct Entry
    {
        WindowState state;
        bool isSound = false;
        /** What a window may get; empty if the state is not sound. */
        QByteArray tidied;
    };

    CheckedStates();

    Entry read(const QByteArray& bytes);

private:
    QCache<QByteArray, Entry> m_entries;
};

} // namespace Panorel::Kit::Detail
