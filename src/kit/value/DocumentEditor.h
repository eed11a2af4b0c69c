// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentModel.h"
#include "DocumentText.h"

#include <QExplicitlySharedDataPointer>
#include <QString>
#include <QVector>

namespace Panorel::Kit::Detail {

/**
 * Changes the text of a readable document in single places. Elements are named by their numbers;
 * all operations refer to the document as it was, and the places must not overlap.
 *
 * A document in which places cannot be found, because it has a document type or an encoding that
 * does not come back the same, is written again first.
 */
class DocumentEditor
{
public:
    /** @param model a readable one that a shared pointer holds. */
    explicit DocumentEditor(const DocumentModel& model);

    /** The document that is edited, to take numbers of elements from. */
    const DocumentModel& model() const { return *m_model; }
    /** Whether the document was written again. */
    bool isWrittenWhole() const { return m_isWrittenWhole; }

    void setAttribute(int element, const char* name, const QString& value);
    void removeAttribute(int element, const char* name);
    /** Puts text in the place of all that an element holds. */
    void setText(int element, const QString& text);
    /** Puts states and user data in the place of all that the element of a view holds. */
    void setViewContent(int element, const LayoutDocument::View& view);
    /** Removes an element and the white space before it. */
    void removeElement(int element);

    /** Elements as text with the white space before each. */
    QString textOf(const QVector<const DocumentView*>& views) const;
    /** New text for a saved view in the group, in the manner of what is there. */
    QString textOf(const DocumentGroup& group, const LayoutDocument::View& view) const;
    /** Inserts the text of views before an element and the white space before it. */
    void insertBefore(int element, const QString& text);
    /** Inserts the text of views directly after an element. */
    void insertAfter(int element, const QString& text);
    /** Inserts the text of views after all others of the group. */
    void append(const DocumentGroup& group, const QString& text);
    /** Adds user data to the element of a view that has none. */
    void appendUserData(const DocumentView& view, const QString& text);

    /** Whether anything is to be changed. */
    bool isChanged() const { return !m_splices.isEmpty(); }
    /** The bytes of the edited document. */
    QByteArray result() const;

private:
    struct Element
    {
        int start = 0;
        int startTagEnd = 0;
        int endTagStart = 0;
        int end = 0;
        int parent = -1;
    };

    struct Splice
    {
        int start = 0;
        int end = 0;
        QString text;
    };

    bool findElements();
    bool isEmptyElement(int element) const;
    QString nameOf(int element) const;
    QString leadOf(int element) const;
    QString stepOf(int element) const;
    QString childLead(int element) const;
    QString written(const QString& text, QChar quote) const;
    void setContent(int element, const QString& content);
    void replace(int start, int end, const QString& text);

    QExplicitlySharedDataPointer<const DocumentModel> m_model;
    DocumentText m_document;
    QString m_text;
    QVector<Element> m_elements;
    QVector<Splice> m_splices;
    bool m_isWrittenWhole = false;
};

} // namespace Panorel::Kit::Detail
