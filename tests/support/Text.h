// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <initializer_list>

namespace Panorel::Tests {

/** Short for QString::fromUtf8(); ""_s is empty and not null. */
inline QString operator""_s(const char* text, std::size_t size)
{
    return size == 0 ? QString(QLatin1String("")) : QString::fromUtf8(text, static_cast<int>(size));
}

/** Bytes from pairs of hexadecimal digits; blanks between them are ignored. */
inline QByteArray operator""_hex(const char* digits, std::size_t size)
{
    return QByteArray::fromHex(QByteArray(digits, static_cast<int>(size)));
}

/** A list of literals, for the expected side of a comparison. */
inline QStringList lines(std::initializer_list<const char*> literals)
{
    QStringList result;
    for (const char* literal : literals)
        result.append(QString::fromUtf8(literal));
    return result;
}

/** The text in quotes, or the bare word null: QCOMPARE takes a null string for an empty one. */
inline QString quoted(const QString& text)
{
    return text.isNull() ? "null"_s : QString("'"_s + text + "'"_s);
}

} // namespace Panorel::Tests
