// SPDX-License-Identifier: MIT
#include "SchemaHints.h"

#include "WritableText.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace Panorel::Detail {

namespace {

bool isHint(const QXmlStreamAttribute& attribute)
{
    return attribute.namespaceUri() == QLatin1String("http://www.w3.org/2001/XMLSchema-instance") &&
           (attribute.name() == QLatin1String("schemaLocation") ||
            attribute.name() == QLatin1String("noNamespaceSchemaLocation"));
}

bool hasHints(const QByteArray& data)
{
    QXmlStreamReader reader(data);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (isHint(attribute))
                return true;
        }
    }
    return false;
}

// By the names as they are spelled: an inner element may declare a prefix anew.
void copyStartElement(const QXmlStreamReader& reader, QXmlStreamWriter& writer)
{
    writer.writeStartElement(reader.qualifiedName().toString());
    const QXmlStreamNamespaceDeclarations declarations = reader.namespaceDeclarations();
    for (const QXmlStreamNamespaceDeclaration& declaration : declarations) {
        const QString prefix = declaration.prefix().toString();
        const QString xmlns = QStringLiteral("xmlns");
        writer.writeAttribute(prefix.isEmpty() ? xmlns : QString(xmlns + QLatin1Char(':') + prefix),
                              writable(declaration.namespaceUri().toString()));
    }
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (!isHint(attribute))
            writer.writeAttribute(attribute.qualifiedName().toString(),
                                  writable(attribute.value().toString()));
    }
}

} // namespace

QByteArray SchemaHints::removed(const QByteArray& data)
{
    if (!hasHints(data))
        return data;
    QByteArray copy;
    QXmlStreamReader reader(data);
    QXmlStreamWriter writer(&copy);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            copyStartElement(reader, writer);
            break;
        case QXmlStreamReader::EndElement:
            writer.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            writer.writeCharacters(writable(reader.text().toString()));
            break;
        default:
            break;
        }
    }
    // An error behind the root would leave no trace in the copy.
    return reader.hasError() ? QByteArray() : copy;
}

} // namespace Panorel::Detail
