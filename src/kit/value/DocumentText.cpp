// SPDX-License-Identifier: MIT
#include "DocumentText.h"

#include "TagReader.h"

#include <QTextCodec>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

constexpr int utf8 = 106;
constexpr int utf16BigEndian = 1013;
constexpr int utf16LittleEndian = 1014;

struct Start
{
    const char* bytes;
    int size;
    int mib;
    int markSize;
};

const Start starts[] = {{"\xEF\xBB\xBF", 3, utf8, 3},
                        {"\xFE\xFF", 2, utf16BigEndian, 2},
                        {"\xFF\xFE", 2, utf16LittleEndian, 2},
                        {"<\0", 2, utf16LittleEndian, 0},
                        {"\0<", 2, utf16BigEndian, 0}};

// The last encoding that the XML declaration names; null if it names none.
QTextCodec* declaredCodec(const QByteArray& bytes)
{
    if (!bytes.startsWith("<?xml"))
        return nullptr;
    const QByteArray declaration = bytes.left(std::max(0, bytes.left(1024).indexOf("?>")));
    const int found = declaration.lastIndexOf("encoding");
    const QByteArray rest = found < 0 ? QByteArray() : declaration.mid(found);
    const int quote = rest.contains('"') ? rest.indexOf('"') : rest.indexOf('\'');
    if (quote < 0)
        return nullptr;
    return QTextCodec::codecForName(
        rest.mid(quote + 1, rest.indexOf(rest.at(quote), quote + 1) - quote - 1));
}

// Without a state of its own a codec would write or look for byte order marks.
QString decoded(QTextCodec* codec, const QByteArray& bytes, int from)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec->toUnicode(bytes.constData() + from, bytes.size() - from, &state);
}

} // namespace

DocumentText::DocumentText(const QByteArray& bytes)
    : m_bytes(bytes)
{
    for (const Start& start : starts) {
        if (!m_codec && bytes.startsWith(QByteArray::fromRawData(start.bytes, start.size))) {
            m_codec = QTextCodec::codecForMib(start.mib);
            m_markSize = start.markSize;
        }
    }
    if (!m_codec)
        m_codec = declaredCodec(bytes);
    if (!m_codec)
        m_codec = QTextCodec::codecForMib(utf8);
    m_text = decoded(m_codec, bytes, m_markSize);
}

bool DocumentText::isFaithful() const
{
    return encoded(m_text) == m_bytes;
}

QByteArray DocumentText::encoded(const QString& text) const
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return m_bytes.left(m_markSize) + m_codec->fromUnicode(text.constData(), text.size(), &state);
}

qint64 DocumentText::byteOffset(int position) const
{
    return encoded(m_text.left(position)).size();
}

QVector<qint64> DocumentText::elementOffsets() const
{
    QVector<qint64> offsets;
    qint64 offset = m_markSize;
    int position = 0;
    TagReader tags(m_text);
    while (tags.next() && !tags.hasDocumentType()) {
        offset += encoded(m_text.mid(position, tags.start() - position)).size() - m_markSize;
        position = tags.start();
        if (!tags.isEnd())
            offsets.append(offset);
    }
    return tags.hasDocumentType() ? QVector<qint64>() : offsets;
}

bool DocumentText::canEncode(const QString& character) const
{
    const QByteArray bytes = encoded(character);
    return decoded(m_codec, bytes, m_markSize) == character;
}

QString rootName(const QByteArray& bytes)
{
    const DocumentText document(bytes);
    TagReader tags(document.text());
    return tags.next() ? tags.name().toString() : QString();
}

} // namespace Panorel::Kit::Detail
