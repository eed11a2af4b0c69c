// SPDX-License-Identifier: MIT
#pragma once

#include "support/Text.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>

namespace Panorel::Tests {

/**
 * Puts a window-state blob together field by field, well-formed or not.
 *
 * Counts and markers are written as given and never checked against what follows, so that broken
 * blobs are as easy to make as sound ones. It shares no code with the library and writes every byte
 * itself, so that a test that uses it does not test the library against itself.
 */
class BlobBuilder
{
public:
    using Ints = std::initializer_list<qint32>;

    BlobBuilder& byte(int value)
    {
        m_bytes.append(static_cast<char>(value));
        return *this;
    }

    BlobBuilder& int32(qint32 value)
    {
        const quint32 bits = static_cast<quint32>(value);
        for (int shift = 24; shift >= 0; shift -= 8)
            byte(static_cast<int>((bits >> shift) & 0xFF));
        return *this;
    }

    BlobBuilder& ints(Ints values)
    {
        for (const qint32 value : values)
            int32(value);
        return *this;
    }

    BlobBuilder& raw(const QByteArray& bytes)
    {
        m_bytes.append(bytes);
        return *this;
    }

    /** A null name is its count alone, 0xFFFFFFFF; an empty one the count 0. */
    BlobBuilder& name(const QString& text)
    {
        int32(text.isNull() ? -1 : text.size() * 2);
        for (const QChar unit : text)
            byte(unit.row()).byte(unit.cell());
        return *this;
    }

    BlobBuilder& head(qint32 marker, qint32 version) { return int32(marker).int32(version); }

    BlobBuilder& dockSection(qint32 dockCount) { return byte(0xFD).int32(dockCount); }

    /** What precedes the block of a dock record. */
    BlobBuilder& dock(qint32 area, qint32 width, qint32 height)
    {
        return ints({area, width, height});
    }

    BlobBuilder& sequence(int orientation, qint32 itemCount)
    {
        return byte(0xFC).byte(orientation).int32(itemCount);
    }

    BlobBuilder& tabs(qint32 currentIndex, int orientation, qint32 itemCount)
    {
        return byte(0xFA).int32(currentIndex).byte(orientation).int32(itemCount);
    }

    BlobBuilder& widget(const QString& objectName, int flags = 1, Ints values = {0, 0, 0, 0})
    {
        return byte(0xFB).name(objectName).byte(flags).ints(values);
    }

    /** What precedes the block of a nested item. */
    BlobBuilder& nested(Ints values = {0, 0, 0, 0}) { return byte(0xFC).ints(values); }

    /** Ends a dock-area section: size of the central widget, then the four corners. */
    BlobBuilder& dockTail(qint32 width = 400, qint32 height = 300, Ints corners = {1, 2, 1, 8})
    {
        return ints({width, height}).ints(corners);
    }

    BlobBuilder& toolBarSection(qint32 lineCount) { return byte(0xFC).int32(lineCount); }

    BlobBuilder& shortToolBarSection(qint32 lineCount) { return byte(0xFE).int32(lineCount); }

    BlobBuilder& line(qint32 area, qint32 itemCount) { return ints({area, itemCount}); }

    BlobBuilder& toolBar(const QString& objectName, int shown = 1, Ints values = {0, 0, 0, 0})
    {
        return name(objectName).byte(shown).ints(values);
    }

    BlobBuilder& shortToolBar(const QString& objectName, int shown = 1, Ints values = {0, 0, 0})
    {
        return toolBar(objectName, shown, values);
    }

    const QByteArray& blob() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/** A builder that has the two leading integers of a sound blob. */
inline BlobBuilder soundHead(qint32 version = 0)
{
    return BlobBuilder().head(255, version);
}

/** A window of 806 x 600 with "A" at the left, 200 wide, and a central widget of 600. */
inline BlobBuilder dockBesideCentral()
{
    constexpr int vertical = 2;
    constexpr int visible = 1;
    return soundHead()
        .dockSection(1)
        .dock(0, 200, 600)
        .sequence(vertical, 1)
        .widget("A"_s, visible, {0, 600, 50, 16777215})
        .dockTail(600, 600, {4, 4, 8, 8});
}

/**
 * One dock record with the dock widget AB and one extended line with the tool bar T; 117 bytes,
 * kept as literal bytes on purpose.
 */
inline QByteArray exampleBlob()
{
    return QByteArray::fromHex("000000FF 00000000"
                               "FD 00000001"
                               "00000001 000000C8 0000012C"
                               "FC 02 00000001"
                               "FB 00000004 00410042 01 00000000 000000C8 00000000 00000000"
                               "00000190 0000012C"
                               "00000001 00000002 00000001 00000008"
                               "FC 00000001"
                               "00000002 00000001"
                               "00000002 0054 01 00000000 FFFFFFFF 00000000 00000000");
}

} // namespace Panorel::Tests
