// SPDX-License-Identifier: MIT
#include "TagReader.h"

namespace Panorel::Kit::Detail {

namespace {

bool endsName(QChar character)
{
    return isXmlSpace(character) || character == u'=' || character == u'/' || character == u'>';
}

int skipSpace(const QString& text, int position)
{
    while (position < text.size() && isXmlSpace(text.at(position)))
        ++position;
    return position;
}

int endOfName(const QString& text, int position)
{
    while (position < text.size() && !endsName(text.at(position)))
        ++position;
    return position;
}

// The attribute whose leading white space begins at the position; with end 0 after the last one.
TagReader::Attribute attributeAt(const QString& text, int position)
{
    TagReader::Attribute attribute;
    attribute.start = position;
    const int nameStart = skipSpace(text, position);
    const int nameEnd = endOfName(text, nameStart);
    attribute.name = text.midRef(nameStart, nameEnd - nameStart);
    const int equals = skipSpace(text, nameEnd);
    const int quote = skipSpace(text, equals + 1);
    if (nameEnd == nameStart || quote >= text.size() || text.at(equals) != u'=')
        return attribute;
    attribute.valueStart = quote + 1;
    attribute.valueEnd = text.indexOf(text.at(quote), quote + 1);
    attribute.end = attribute.valueEnd + 1;
    return attribute;
}

} // namespace

bool isXmlSpace(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

TagReader::TagReader(const QString& text)
    : m_text(text)
{}

bool TagReader::next()
{
    for (;;) {
        m_start = m_text.indexOf(u'<', m_end);
        if (m_start < 0)
            return false;
        const bool isTag =
            !isAt(m_start, QLatin1String("<!")) && !isAt(m_start, QLatin1String("<?"));
        const int position = isTag ? endOfTag(m_start + 1) : endOfMarkup(m_start);
        m_end = position < 0 ? m_text.size() : position;
        if (position < 0 || isTag)
            return position >= 0;
    }
}

bool TagReader::isEnd() const
{
    return isAt(m_start, QLatin1String("</"));
}

bool TagReader::isEmptyElement() const
{
    return m_text.at(m_end - 2) == u'/';
}

QStringRef TagReader::name() const
{
    const int start = m_start + (isEnd() ? 2 : 1);
    return m_text.midRef(start, endOfName(m_text, start) - start);
}

int TagReader::attributeCount() const
{
    int count = 0;
    int position = endOfName(m_text, m_start + 1);
    for (;;) {
        const Attribute attribute = attributeAt(m_text, position);
        if (attribute.end == 0)
            return count;
        position = attribute.end;
        count += attribute.name.startsWith(QLatin1String("xmlns")) ? 0 : 1;
    }
}

TagReader::Attribute TagReader::attribute(const QString& text, int start, QLatin1String name)
{
    Attribute attribute = attributeAt(text, endOfName(text, start + 1));
    while (attribute.end != 0 && attribute.name != name)
        attribute = attributeAt(text, attribute.end);
    return attribute;
}

int TagReader::endOfMarkup(int position)
{
    if (isAt(position, QLatin1String("<!--")))
        return endOf(QLatin1String("-->"), position + 4);
    if (isAt(position, QLatin1String("<![CDATA[")))
        return endOf(QLatin1String("]]>"), position);
    if (isAt(position, QLatin1String("<?")))
        return endOf(QLatin1String("?>"), position);
    m_hasDocumentType = true;
    return endOfDocumentType(position + 2);
}

// The bracket that closes it is neither in quotes, nor in a comment or processing instruction, nor
// that of a declaration in the internal subset.
int TagReader::endOfDocumentType(int position) const
{
    int depth = 1;
    while (position >= 0 && position < m_text.size() && depth > 0) {
        const QChar character = m_text.at(position);
        if (character == u'"' || character == u'\'') {
            position = endOf(character, position + 1);
        } else if (isAt(position, QLatin1String("<!--"))) {
            position = endOf(QLatin1String("-->"), position + 4);
        } else if (isAt(position, QLatin1String("<?"))) {
            position = endOf(QLatin1String("?>"), position);
        } else {
            depth += character == u'<' ? 1 : (character == u'>' ? -1 : 0);
            ++position;
        }
    }
    return depth == 0 ? position : -1;
}

int TagReader::endOfTag(int position) const
{
    while (position >= 0 && position < m_text.size()) {
        const QChar character = m_text.at(position);
        if (character == u'>')
            return position + 1;
        const bool isQuote = character == u'"' || character == u'\'';
        position = isQuote ? endOf(character, position + 1) : position + 1;
    }
    return -1;
}

int TagReader::endOf(QChar end, int position) const
{
    const int found = m_text.indexOf(end, position);
    return found < 0 ? -1 : found + 1;
}

int TagReader::endOf(QLatin1String end, int position) const
{
    const int found = m_text.indexOf(end, position);
    return found < 0 ? -1 : found + end.size();
}

bool TagReader::isAt(int position, QLatin1String text) const
{
    return m_text.midRef(position, text.size()) == text;
}

} // namespace Panorel::Kit::Detail
