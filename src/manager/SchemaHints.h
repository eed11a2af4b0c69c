// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;

namespace Panorel::Detail {

/**
 * The attributes by which a document says where a schema for it may be found. The validator would
 * ask the network access manager for each, and for an "ftp" address waits in an event loop for an
 * answer that no refusal can give before the loop runs.
 */
class SchemaHints
{
public:
    SchemaHints() = delete;

    /** @p data itself if it bears no hint; else a copy without hints, or nothing if it is not
        well-formed. */
    static QByteArray removed(const QByteArray& data);
};

} // namespace Panorel::Detail
