// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>

namespace Panorel::Kit::Detail {

/**
 * Takes the digits of states out of a document that satisfies the schema. Nearly all of a document
 * are such digits, and Qt's reader takes several times as long for them as the decoding.
 *
 * Digits stay in the document where they are not in one piece or have white space around them. All
 * of them stay where the bytes are not those of the characters, because of the encoding, and where
 * a document type may bring in tags.
 */
struct StateDigits
{
    explicit StateDigits(const QByteArray& document);

    /** The document without the digits that were taken out. */
    QByteArray rest;
    /** What the digits say, by the number of the element. */
    QHash<int, QByteArray> states;
};

} // namespace Panorel::Kit::Detail
