// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;
class QXmlSchema;

namespace Panorel::Detail {

/**
 * The only way to Qt's schema validator, which cannot be given a document from elsewhere as it is:
 *
 * - A type (xsi:type) whose prefix is not declared crashes it.
 * - A schema hint (xsi:schemaLocation, xsi:noNamespaceSchemaLocation) makes it open a file or a
 *   network connection.
 * - Its reader compares the attributes of a tag in pairs, 100,000 of them for half a minute.
 *
 * Documents with the first or the last are refused, because none of them is valid. A valid one is
 * never refused. Hints are removed, because they decide nothing.
 */
class DocumentGuard
{
public:
    DocumentGuard() = delete;

    /** Whether @p document satisfies @p schema. Also false if the memory is not enough. Never
     * throws. */
    static bool isValid(const QByteArray& document, const QXmlSchema& schema);
};

} // namespace Panorel::Detail
