// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

class QTextCodec;

namespace Panorel::Kit::Detail {

/**
 * The text of an XML document's bytes, and the way back. The encoding is found as Qt's reader finds
 * it: by a byte order mark, by zero bytes at the start, by the XML declaration, or else UTF-8.
 */
class DocumentText
{
public:
    explicit DocumentText(const QByteArray& bytes);

    /** The text without a byte order mark. */
    QString text() const { return m_text; }
    /** Whether encoded(text()) gives the bytes again. */
    bool isFaithful() const;
    /** The bytes of another text in the same encoding, with the same byte order mark. */
    QByteArray encoded(const QString& text) const;
    /** Where the character at @p position of the text is in the bytes. */
    qint64 byteOffset(int position) const;
    /** Where each element begins in the bytes; empty where the places in the text are not those of
        the elements, because there is a document type. */
    QVector<qint64> elementOffsets() const;
    /** Whether the encoding has the character, which is one or two UTF-16 units. */
    bool canEncode(const QString& character) const;

private:
    QByteArray m_bytes;
    QString m_text;
    QTextCodec* m_codec = nullptr;
    int m_markSize = 0;
};

/** The name of the root element; null where none is found. It looks no further than to the root. */
QString rootName(const QByteArray& bytes);

} // namespace Panorel::Kit::Detail
