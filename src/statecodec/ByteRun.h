// SPDX-License-Identifier: MIT
#pragma once

#include <QDataStream>
#include <QSize>
#include <QtEndian>

#include <cstddef>

namespace Panorel::Detail {

/**
 * Consecutive fixed fields that are read or written in one call of the stream. Most of a blob is
 * integers, and a call for each costs more than everything else together.
 *
 * Either read the run and take its fields, or put its fields and write it.
 */
class ByteRun
{
public:
    bool readFrom(QDataStream& stream, int size)
    {
        Q_ASSERT(size <= capacity);
        return stream.readRawData(m_bytes, size) == size && stream.status() == QDataStream::Ok;
    }
    unsigned char takeByte()
    {
        Q_ASSERT(m_position < capacity);
        return static_cast<unsigned char>(m_bytes[m_position++]);
    }
    int takeInt()
    {
        Q_ASSERT(m_position + intSize <= capacity);
        const int value = qFromBigEndian<qint32>(m_bytes + m_position);
        m_position += intSize;
        return value;
    }
    QSize takeSize()
    {
        const int width = takeInt();
        return QSize(width, takeInt());
    }

    ByteRun& putByte(unsigned char value)
    {
        Q_ASSERT(m_position < capacity);
        m_bytes[m_position++] = static_cast<char>(value);
        return *this;
    }
    ByteRun& putInt(int value)
    {
        Q_ASSERT(m_position + intSize <= capacity);
        qToBigEndian<qint32>(value, m_bytes + m_position);
        m_position += intSize;
        return *this;
    }
    ByteRun& putSize(const QSize& size) { return putInt(size.width()).putInt(size.height()); }
    ByteRun& putCount(std::size_t count) { return putInt(static_cast<int>(count)); }
    void writeTo(QDataStream& stream) const { stream.writeRawData(m_bytes, m_position); }

    static constexpr int intSize = sizeof(qint32);

private:
    // The longest run: what follows the dock records of a section.
    static constexpr int capacity = 6 * intSize;

    char m_bytes[capacity];
    int m_position = 0;
};

} // namespace Panorel::Detail
