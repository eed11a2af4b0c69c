// SPDX-License-Identifier: MIT
#include "CheckedDocument.h"

#include <algorithm>
#include <cstring>

namespace Panorel::Detail {

namespace {

// Most texts hold no such character, and QByteArray::replace() is slow to find that out.
void replace(QByteArray& bytes, char character, const char* reference)
{
    if (std::memchr(bytes.constData(), character, static_cast<std::size_t>(bytes.size())) !=
        nullptr)
        bytes.replace(character, reference);
}

// Half of a surrogate pair becomes a question mark.
QByteArray escaped(const QStringRef& text)
{
    QByteArray bytes = text.toUtf8();
    replace(bytes, '&', "&amp;");
    replace(bytes, '<', "&lt;");
    replace(bytes, '>', "&gt;");
    replace(bytes, '\r', "&#13;");
    return bytes;
}

QByteArray attribute(const QByteArray& name, const QStringRef& value)
{
    QByteArray quoted = escaped(value);
    replace(quoted, '"', "&quot;");
    replace(quoted, '\n', "&#10;");
    replace(quoted, '\t', "&#9;");
    return ' ' + name + "=\"" + quoted + '"';
}

bool isInstance(const QXmlStreamAttribute& attribute)
{
    return OpenElements::isInstanceNamespace(attribute.namespaceUri().toUtf8());
}

bool isHint(const QXmlStreamAttribute& attribute)
{
    return isInstance(attribute) &&
           (attribute.name() == QLatin1String("schemaLocation") ||
            attribute.name() == QLatin1String("noNamespaceSchemaLocation"));
}

} // namespace

CheckedDocument::CheckedDocument(const QByteArray& document)
{
    m_source.setData(document);
    m_source.open(QIODevice::ReadOnly);
    m_reader.setDevice(&m_source);
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 CheckedDocument::readData(char* data, qint64 maxSize)
{
    qint64 size = 0;
    while (size < maxSize) {
        if (m_position == m_piece.size()) {
            if (m_ended)
                break;
            next();
            continue;
        }
        const auto length = std::min<qint64>(maxSize - size, m_piece.size() - m_position);
        std::copy_n(m_piece.constData() + m_position, length, data + size);
        m_position += static_cast<int>(length);
        size += length;
    }
    return size;
}

qint64 CheckedDocument::writeData(const char* data, qint64 size)
{
    Q_UNUSED(data)
    Q_UNUSED(size)
    return -1;
}

void CheckedDocument::next()
{
    m_piece.clear();
    m_position = 0;
    switch (m_reader.readNext()) {
    case QXmlStreamReader::StartElement:
        startElement();
        break;
    case QXmlStreamReader::EndElement:
        m_elements.close();
        m_piece = "</" + m_reader.qualifiedName().toUtf8() + '>';
        break;
    case QXmlStreamReader::Characters:
        m_piece = escaped(m_reader.text());
        break;
    // Either parts the text around it.
    case QXmlStreamReader::Comment:
    case QXmlStreamReader::ProcessingInstruction:
        m_piece = "<!---->";
        break;
    case QXmlStreamReader::Invalid:
        breakOff();
        break;
    default:
        m_ended = m_reader.atEnd();
        break;
    }
}

// A bracket at the end makes an error of it, even after the end of the root.
void CheckedDocument::breakOff()
{
    m_piece = "<";
    m_ended = true;
}

void CheckedDocument::startElement()
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    m_piece = '<' + m_reader.qualifiedName().toUtf8();
    m_elements.open();
    writeDeclarations(m_reader.namespaceDeclarations());
    writeAttributes(attributes);
    m_piece += '>';
    if (!isPossible(attributes))
        breakOff();
}

void CheckedDocument::writeDeclarations(const QXmlStreamNamespaceDeclarations& declarations)
{
    for (const QXmlStreamNamespaceDeclaration& declaration : declarations) {
        const QByteArray prefix = declaration.prefix().toUtf8();
        m_elements.declare(prefix, declaration.namespaceUri().toUtf8());
        m_piece += attribute(prefix.isEmpty() ? QByteArray("xmlns") : "xmlns:" + prefix,
                             declaration.namespaceUri());
    }
}

// By the names as they are spelled, because an inner element may declare a prefix again.
void CheckedDocument::writeAttributes(const QXmlStreamAttributes& attributes)
{
    for (const QXmlStreamAttribute& item : attributes) {
        if (!isHint(item))
            m_piece += attribute(item.qualifiedName().toUtf8(), item.value());
    }
}

bool CheckedDocument::isPossible(const QXmlStreamAttributes& attributes)
{
    OpenElements::Tag tag;
    tag.qualifiedName = m_reader.qualifiedName().toUtf8();
    tag.attributeCount = attributes.size();
    for (const QXmlStreamAttribute& item : attributes) {
        if (isInstance(item) && item.name() == QLatin1String("type"))
            tag.type = item.value().toUtf8();
    }
    return m_elements.isPossible(tag);
}

} // namespace Panorel::Detail
