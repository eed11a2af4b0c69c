// SPDX-License-Identifier: MIT
#pragma once

#include <QBuffer>

namespace Panorel::Detail {

/**
 * Writes into a QByteArray as QBuffer does, but refuses what would make it larger than any window's
 * state can be. QBuffer itself warns when it reaches the end of what a QByteArray can hold.
 */
class LimitedBuffer : public QBuffer
{
public:
    /** Opens the buffer for writing; @p bytes must outlive it. */
    explicit LimitedBuffer(QByteArray& bytes)
        : QBuffer(&bytes)
    {
        QBuffer::open(QIODevice::WriteOnly);
    }

protected:
    qint64 writeData(const char* data, qint64 length) override
    {
        return pos() + length <= mostBytes ? QBuffer::writeData(data, length) : -1;
    }

private:
    static constexpr qint64 mostBytes = 1 << 29;
};

} // namespace Panorel::Detail
