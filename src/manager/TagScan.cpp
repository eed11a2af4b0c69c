// SPDX-License-Identifier: MIT
#include "TagScan.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace Panorel::Detail {

namespace {

bool isSpace(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

} // namespace

TagScan::TagScan(const QByteArray& data)
    : m_data(data)
{
    m_isPlain = isUtf8();
    if (m_isPlain)
        scan();
}

// Only the declarations that toXml() and most programs write are known here, with the one kind of
// quotes or the other. A reader may take others differently: Qt's goes by the last of several
// encodings.
bool TagScan::isUtf8() const
{
    int start = m_data.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    if (m_data.mid(start, 5) == "<?xml") {
        QByteArray declaration = m_data.mid(start, behind("?>", start) - start).toUpper();
        if (!declaration.contains('"'))
            declaration.replace('\'', '"');
        return declaration == "<?XML VERSION=\"1.0\" ENCODING=\"UTF-8\"?>" ||
               declaration == "<?XML VERSION=\"1.0\"?>";
    }
    while (start < m_data.size() && isSpace(m_data[start]))
        ++start;
    const QByteArray first = m_data.mid(start, 5);
    return first.startsWith('<') && first != "<?xml" && !first.contains('\0');
}

void TagScan::scan()
{
    int position = positionOf('<', 0);
    while (position < m_data.size() && !m_hasOverfullTag)
        position = positionOf('<', endOfMarkup(position));
}

int TagScan::endOfMarkup(int position)
{
    // Nothing ends the data but its size, for the caller may have made it of raw bytes.
    const auto startsWith = [&](const char* text) {
        const std::size_t length = qstrlen(text);
        return static_cast<std::size_t>(m_data.size() - position) >= length &&
               std::memcmp(m_data.constData() + position, text, length) == 0;
    };
    if (startsWith("<!--"))
        return behind("-->", position + 4);
    if (startsWith("<![CDATA["))
        return behind("]]>", position);
    if (startsWith("<?"))
        return behind("?>", position);
    if (startsWith("<!")) {
        // A document type can give every tag further attributes.
        m_isPlain = false;
        return m_data.size();
    }
    return endOfTag(position + 1);
}

int TagScan::endOfTag(int position)
{
    int attributes = 0;
    while (position < m_data.size() && m_data[position] != '>') {
        const char character = m_data[position];
        if (character == '=') {
            if (isNamespaceDeclared(position))
                m_isPlain = false;
            else
                ++attributes;
        }
        ++position;
        if (character == '"' || character == '\'') {
            position = std::min(positionOf(character, position) + 1, m_data.size());
        }
    }
    m_hasOverfullTag = attributes > mostAttributes;
    return position;
}

// Whether the name before the equals sign is that of a namespace declaration. It stops at what
// cannot be a part of a name; there is always something, for a tag begins with one of them.
bool TagScan::isNamespaceDeclared(int equals) const
{
    int end = equals;
    while (isSpace(m_data[end - 1]))
        --end;
    int start = end;
    while (!isSpace(m_data[start - 1]) && std::strchr("<\"'=", m_data[start - 1]) == nullptr)
        --start;
    return qstrncmp(m_data.constData() + start, "xmlns", 5) == 0;
}

// The size where there is none. QByteArray::indexOf() looks at one character after the other.
int TagScan::positionOf(char character, int from) const
{
    const char* start = m_data.constData();
    const auto left = static_cast<std::size_t>(m_data.size() - from);
    const void* found = std::memchr(start + from, character, left);
    return found ? static_cast<int>(static_cast<const char*>(found) - start) : m_data.size();
}

int TagScan::behind(const char* end, int position) const
{
    const int found = m_data.indexOf(end, position);
    return found < 0 ? m_data.size() : found + static_cast<int>(qstrlen(end));
}

} // namespace Panorel::Detail
