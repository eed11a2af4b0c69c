// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Panorel::Kit::Detail {

/** Whether @p character is white space to XML. */
bool isXmlSpace(QChar character);

/**
 * Finds the tags in the text of an XML document, one after the other. It knows just enough of the
 * grammar for that; whether the document is well-formed is decided elsewhere. Nothing in it takes
 * more than linear time, whatever the text.
 */
class TagReader
{
public:
    /** A place in a tag: an attribute with the white space before it. */
    struct Attribute
    {
        int start = 0;
        int valueStart = 0;
        int valueEnd = 0;
        int end = 0;
        QStringRef name;
    };

    explicit TagReader(const QString& text);

    /** Goes to the next tag; false if there is none. */
    bool next();

    /** Where the tag begins, and where it ends, after its closing bracket. */
    int start() const { return m_start; }
    int end() const { return m_end; }
    /** Whether it is an end tag. */
    bool isEnd() const;
    /** Whether it is an element of its own, without an end tag. */
    bool isEmptyElement() const;
    /** The name as it is written, with a prefix. */
    QStringRef name() const;
    /** How many attributes it has; namespace declarations are not counted. */
    int attributeCount() const;
    /** The attribute @p name of the tag that begins at @p start; with end 0 if it is not there. */
    static Attribute attribute(const QString& text, int start, QLatin1String name);

    /** Whether a document type came before the tag. */
    bool hasDocumentType() const { return m_hasDocumentType; }

private:
    int endOfMarkup(int position);
    int endOfDocumentType(int position) const;
    int endOfTag(int position) const;
    // After the next such text; -1 if there is none.
    int endOf(QChar end, int position) const;
    int endOf(QLatin1String end, int position) const;
    bool isAt(int position, QLatin1String text) const;

    const QString m_text;
    int m_start = 0;
    int m_end = 0;
    bool m_hasDocumentType = false;
};

} // namespace Panorel::Kit::Detail
