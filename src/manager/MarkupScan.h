// SPDX-License-Identifier: MIT
#pragma once

#include "OpenElements.h"

#include <QByteArray>

#include <vector>

namespace Panorel::Detail {

/**
 * Looks through the markup of a document for what Qt's validator must not see, in time proportional
 * to the document's size. It parses no more than it needs: names are not checked, text is skipped.
 *
 * The document is in UTF-8, or in another encoding in which markup is spelled as in ASCII. It
 * follows XML's grammar as far as the document does, because a reader stops where that ends.
 */
class MarkupScan
{
public:
    enum class Result {
        /** The validator can have the document, if it gets it without its schema hints. */
        Harmless,
        /** No valid document looks like this, or it is too deep for the validator. */
        Invalid,
        /** The document type or a reference may add markup that is not seen here. */
        Unclear
    };

    explicit MarkupScan(const QByteArray& document);

    Result result() const { return m_result; }

    bool hasSchemaHints() const { return !m_hints.empty(); }
    /** The document with blanks in place of its schema hints. Only if the result is Harmless. */
    QByteArray withoutSchemaHints() const;

private:
    struct Range
    {
        int start;
        int end;
    };
    struct Attribute
    {
        Range name;
        Range value;
    };

    void scan();
    int endOfMarkup(int position);
    int endOfDocumentType(int position);
    int endOfDeclaration(int position);
    int endOfEndTag(int position);
    int endOfStartTag(int position);
    int readAttribute(int position, Attribute& attribute);
    void addAttribute(const Attribute& attribute);
    void enterElement(Range name);
    void addInstanceAttribute(const Attribute& attribute);
    void leaveTypeUnknown();
    void addHint(const Attribute& attribute);

    int end(Result result);
    bool isAt(int position, const char* text) const;
    int positionOf(char character, int from) const;
    int endOf(const char* text, int from) const;
    int skipSpace(int position) const;
    int skipName(int position) const;
    QByteArray text(Range range) const;

    const QByteArray m_document;
    const char* const m_data;
    const int m_size;
    Result m_result = Result::Harmless;
    OpenElements m_elements;
    OpenElements::Tag m_tag;
    /** Attributes of the current tag that are in some namespace. */
    std::vector<Attribute> m_prefixed;
    std::vector<Range> m_hints;
};

} // namespace Panorel::Detail
