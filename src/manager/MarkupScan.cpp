// SPDX-License-Identifier: MIT
#include "MarkupScan.h"

#include <algorithm>
#include <cstring>

namespace Panorel::Detail {

namespace {

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool isPrintable(char character)
{
    return isSpace(character) || (character >= ' ' && character <= '~');
}

bool endsName(char character)
{
    return isSpace(character) || std::strchr("=>/<\"'", character) != nullptr;
}

QByteArray prefixOf(const QByteArray& qualifiedName)
{
    return qualifiedName.left(std::max(0, qualifiedName.indexOf(':')));
}

QByteArray localPartOf(const QByteArray& qualifiedName)
{
    return qualifiedName.mid(qualifiedName.indexOf(':') + 1);
}

} // namespace

MarkupScan::MarkupScan(const QByteArray& document)
    : m_document(document)
    , m_data(m_document.constData())
    , m_size(m_document.size())
{
    scan();
}

QByteArray MarkupScan::withoutSchemaHints() const
{
    QByteArray copy = m_document;
    for (const Range& hint : m_hints)
        std::memset(copy.data() + hint.start, ' ', static_cast<std::size_t>(hint.end - hint.start));
    return copy;
}

void MarkupScan::scan()
{
    int position = positionOf('<', 0);
    while (position < m_size)
        position = positionOf('<', endOfMarkup(position));
}

int MarkupScan::endOfMarkup(int position)
{
    if (isAt(position, "<!--"))
        return endOf("-->", position + 4);
    if (isAt(position, "<![CDATA["))
        return endOf("]]>", position);
    if (isAt(position, "<?"))
        return endOf("?>", position);
    if (isAt(position, "<!"))
        return endOfDocumentType(position + 2);
    if (isAt(position, "</"))
        return endOfEndTag(position);
    return endOfStartTag(position + 1);
}

// Declarations follow between brackets, with comments and instructions between them. A reference to
// a parameter entity may stand for further declarations.
int MarkupScan::endOfDocumentType(int position)
{
    bool isInside = false;
    while (position < m_size) {
        const char character = m_data[position];
        if (character == '%')
            return end(Result::Unclear);
        if (character == '>' && !isInside)
            return position;
        if (character == '"' || character == '\'')
            position = positionOf(character, position + 1);
        else if (isAt(position, "<!--"))
            position = endOf("-->", position + 4) - 1;
        else if (isAt(position, "<?"))
            position = endOf("?>", position) - 1;
        else if (character == '<')
            position = endOfDeclaration(position);
        else if (character == '[' || character == ']')
            isInside = character == '[';
        ++position;
    }
    return m_size;
}

// An entity may stand for tags only if there is a bracket in its text, as it is or as a character
// reference; a default attribute may be in a namespace, or declare one, only if its name has a
// colon or is "xmlns".
int MarkupScan::endOfDeclaration(int position)
{
    const int start = position;
    while (position < m_size && m_data[position] != '>') {
        const char character = m_data[position];
        if (character == '%')
            return end(Result::Unclear);
        if (character == '"' || character == '\'') {
            const int closing = positionOf(character, position + 1);
            const QByteArray literal = text({position + 1, closing});
            if (literal.contains('<') || literal.contains('%') || literal.contains("&#"))
                return end(Result::Unclear);
            position = closing;
        }
        ++position;
    }
    if (isAt(start, "<!ATTLIST")) {
        const QByteArray declaration = text({start, std::min(position, m_size)});
        if (declaration.contains(':') || declaration.contains("xmlns"))
            return end(Result::Unclear);
    }
    return position;
}

int MarkupScan::endOfEndTag(int position)
{
    m_elements.close();
    return positionOf('>', position);
}

int MarkupScan::endOfStartTag(int position)
{
    m_elements.open();
    m_tag = OpenElements::Tag();
    m_tag.isTypeKnown = m_result == Result::Harmless;
    m_prefixed.clear();
    const Range name{position, skipName(position)};
    position = skipSpace(name.end);
    while (position < m_size && m_data[position] != '>' && m_data[position] != '/') {
        Attribute attribute{};
        position = readAttribute(position, attribute);
        if (position < m_size)
            addAttribute(attribute);
        position = skipSpace(position);
    }
    if (position >= m_size)
        return m_size;
    enterElement(name);
    if (m_data[position] == '/')
        m_elements.close();
    return m_result == Result::Invalid ? m_size : position;
}

// Returns the size if there is no attribute, which is an error in the document.
int MarkupScan::readAttribute(int position, Attribute& attribute)
{
    attribute.name = {position, skipName(position)};
    position = skipSpace(attribute.name.end);
    if (!isAt(position, "="))
        return end(Result::Invalid);
    position = skipSpace(position + 1);
    if (!isAt(position, "\"") && !isAt(position, "'"))
        return end(Result::Invalid);
    const int closing = positionOf(m_data[position], position + 1);
    if (closing == m_size)
        return end(Result::Invalid);
    attribute.value = {position + 1, closing};
    return closing + 1;
}

void MarkupScan::addAttribute(const Attribute& attribute)
{
    const Range name = attribute.name;
    const bool isDeclaration = isAt(name.start, "xmlns") && name.end - name.start >= 5;
    const auto colon = std::find(m_data + name.start, m_data + name.end, ':');
    const bool hasPrefix = colon != m_data + name.end;
    if (isDeclaration &&
        (hasPrefix ? colon == m_data + name.start + 5 : name.end - name.start == 5)) {
        const QByteArray uri = text(attribute.value);
        if (uri.contains('&'))
            leaveTypeUnknown();
        m_elements.declare(hasPrefix ? text({name.start + 6, name.end}) : QByteArray(), uri);
        return;
    }
    ++m_tag.attributeCount;
    if (hasPrefix)
        m_prefixed.push_back(attribute);
}

void MarkupScan::enterElement(Range name)
{
    m_tag.qualifiedName = text(name);
    for (const Attribute& attribute : m_prefixed) {
        if (m_elements.isInstancePrefix(prefixOf(text(attribute.name))))
            addInstanceAttribute(attribute);
    }
    if (!m_elements.isPossible(m_tag))
        m_result = Result::Invalid;
}

void MarkupScan::addInstanceAttribute(const Attribute& attribute)
{
    const QByteArray name = localPartOf(text(attribute.name));
    if (name == "type") {
        m_tag.type = text(attribute.value);
        const bool isKnown = !m_tag.type.contains('&') &&
                             std::all_of(m_tag.type.cbegin(), m_tag.type.cend(), isPrintable);
        if (!isKnown)
            leaveTypeUnknown();
    } else if (name == "schemaLocation" || name == "noNamespaceSchemaLocation") {
        addHint(attribute);
    }
}

void MarkupScan::leaveTypeUnknown()
{
    m_tag.isTypeKnown = false;
    m_result = Result::Unclear;
}

// Blanks may take a hint's place only if they hide no error: its value is text without references,
// there is space on either side, and the tag has no second one.
void MarkupScan::addHint(const Attribute& attribute)
{
    const QByteArray value = text(attribute.value);
    const int after = attribute.value.end + 1;
    const bool isAlone = m_hints.empty() || m_hints.back().start < m_prefixed.front().name.start;
    const bool isApart = isSpace(m_data[attribute.name.start - 1]) &&
                         (isSpace(m_data[after]) || isAt(after, ">") || isAt(after, "/>"));
    const bool isText = std::all_of(value.cbegin(), value.cend(), isPrintable) &&
                        !value.contains('<') && !value.contains('&');
    if (!isAlone || !isApart || !isText)
        m_result = Result::Unclear;
    m_hints.push_back({attribute.name.start, after});
}

// Ends the scan: everything is skipped.
int MarkupScan::end(Result result)
{
    m_result = result;
    return m_size;
}

// Nothing follows the data, because the caller may have made it of raw bytes.
bool MarkupScan::isAt(int position, const char* text) const
{
    const auto length = static_cast<int>(qstrlen(text));
    return m_size - position >= length &&
           std::memcmp(m_data + position, text, static_cast<std::size_t>(length)) == 0;
}

// The size where there is none. QByteArray::indexOf() looks at one character after the other.
int MarkupScan::positionOf(char character, int from) const
{
    if (from >= m_size)
        return m_size;
    const void* found =
        std::memchr(m_data + from, character, static_cast<std::size_t>(m_size - from));
    return found ? static_cast<int>(static_cast<const char*>(found) - m_data) : m_size;
}

int MarkupScan::endOf(const char* text, int from) const
{
    while (from < m_size && !isAt(from, text))
        from = positionOf(text[0], from + 1);
    return std::min(m_size, from + static_cast<int>(qstrlen(text)));
}

int MarkupScan::skipSpace(int position) const
{
    while (position < m_size && isSpace(m_data[position]))
        ++position;
    return position;
}

int MarkupScan::skipName(int position) const
{
    while (position < m_size && !endsName(m_data[position]))
        ++position;
    return position;
}

QByteArray MarkupScan::text(Range range) const
{
    return m_document.mid(range.start, range.end - range.start);
}

} // namespace Panorel::Detail
