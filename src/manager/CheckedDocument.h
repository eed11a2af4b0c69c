// SPDX-License-Identifier: MIT
#pragma once

#include "OpenElements.h"

#include <QBuffer>
#include <QXmlStreamReader>

namespace Panorel::Detail {

/**
 * A document as Qt's reader understands it, written again in UTF-8 without document type, entities
 * and schema hints. It breaks off where the document has an error, and where no valid document goes
 * on like this. So what reads it to the end can be given all of it.
 *
 * It is written while it is read, and only a piece of it is in memory at a time.
 */
class CheckedDocument : public QIODevice
{
public:
    explicit CheckedDocument(const QByteArray& document);

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    void next();
    void breakOff();
    void startElement();
    void writeDeclarations(const QXmlStreamNamespaceDeclarations& declarations);
    void writeAttributes(const QXmlStreamAttributes& attributes);
    bool isPossible(const QXmlStreamAttributes& attributes);

    QBuffer m_source;
    QXmlStreamReader m_reader;
    OpenElements m_elements;
    QByteArray m_piece;
    int m_position = 0;
    bool m_ended = false;
};

} // namespace Panorel::Detail
