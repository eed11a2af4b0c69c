// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Panorel::Detail {

// The schema gives no element more than two attributes, and the schema instance namespace has four.
constexpr int mostAttributes = 6;

/**
 * What the tags of a document hold, found without parsing it: a glance at the bytes that spares
 * most documents the slower guards, and one kind of hostile document any reader.
 *
 * It follows XML's grammar as far as the document does; a reader stops where that ends.
 */
class TagScan
{
public:
    explicit TagScan(const QByteArray& data);

    /**
     * True for UTF-8 without a document type and without namespaces. Such a document can have
     * neither a schema hint nor an xsi:type.
     */
    bool isPlain() const { return m_isPlain; }

    /**
     * Whether a tag bears more attributes than any valid one, namespace declarations not counted.
     * Qt's reader compares the attributes of a tag in pairs, 100,000 of them for half a minute.
     * Not looked for behind a document type or in other encodings.
     */
    bool hasOverfullTag() const { return m_hasOverfullTag; }

private:
    bool isUtf8() const;
    void scan();
    int endOfMarkup(int position);
    int endOfTag(int position);
    bool isNamespaceDeclared(int equals) const;
    int positionOf(char character, int from) const;
    int behind(const char* end, int position) const;

    const QByteArray m_data;
    bool m_isPlain = false;
    bool m_hasOverfullTag = false;
};

} // namespace Panorel::Detail
