// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>
#include <initializer_list>

namespace Panorel::UiTests {

/** Short for QString::fromUtf8(); ""_s is empty and not null. */
inline QString operator""_s(const char* text, std::size_t size)
{
    return size == 0 ? QString(QLatin1String("")) : QString::fromUtf8(text, static_cast<int>(size));
}

/** A list of literals, for the expected side of a comparison. */
inline QStringList list(std::initializer_list<const char*> literals)
{
    QStringList result;
    for (const char* literal : literals)
        result.append(QString::fromUtf8(literal));
    return result;
}

} // namespace Panorel::UiTests
