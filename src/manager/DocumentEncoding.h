// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Panorel::Detail {

/** How the characters of a document are encoded, as Qt's XML reader finds it out. */
class DocumentEncoding
{
public:
    DocumentEncoding() = delete;

    /**
     * The text of @p document with its markup spelled as in ASCII: the document itself where it is
     * so, a copy in UTF-8 otherwise. Null if it is not certain what the reader takes it for.
     */
    static QByteArray textOf(const QByteArray& document);
};

} // namespace Panorel::Detail
