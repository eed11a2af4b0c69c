// SPDX-License-Identifier: MIT
#include "DocumentEditor.h"

#include "DocumentWriter.h"
#include "TagReader.h"

#include <algorithm>

namespace Panorel::Kit::Detail {

DocumentEditor::DocumentEditor(const DocumentModel& model)
    : m_model(&model)
    , m_document(model.bytes)
    , m_text(m_document.text())
{
    if (m_document.isFaithful() && findElements())
        return;
    m_isWrittenWhole = true;
    m_model = new DocumentModel(writeDocument(model));
    m_document = DocumentText(m_model->bytes);
    m_text = m_document.text();
    (void)findElements();
}

// False where the tags in the text are not all that the reader found.
bool DocumentEditor::findElements()
{
    m_elements.clear();
    TagReader tags(m_text);
    int open = -1;
    while (tags.next()) {
        if (tags.isEnd()) {
            if (open < 0)
                return false;
            m_elements[open].endTagStart = tags.start();
            m_elements[open].end = tags.end();
            open = m_elements.at(open).parent;
            continue;
        }
        m_elements.append({tags.start(), tags.end(), tags.end(), tags.end(), open});
        if (!tags.isEmptyElement())
            open = m_elements.size() - 1;
    }
    return open < 0 && !tags.hasDocumentType() && m_elements.size() == m_model->elementCount;
}

bool DocumentEditor::isEmptyElement(int element) const
{
    return m_text.at(m_elements.at(element).startTagEnd - 2) == u'/';
}

QString DocumentEditor::nameOf(int element) const
{
    const int start = m_elements.at(element).start + 1;
    int end = start;
    while (m_text.at(end).isLetter())
        ++end;
    return m_text.mid(start, end - start);
}

// The white space before an element.
QString DocumentEditor::leadOf(int element) const
{
    const int end = m_elements.at(element).start;
    int start = end;
    while (start > 0 && isXmlSpace(m_text.at(start - 1)))
        --start;
    return m_text.mid(start, end - start);
}

// By how much further in an element is than its parent, if each begins a line.
QString DocumentEditor::stepOf(int element) const
{
    const int parent = m_elements.at(element).parent;
    const QString outer = parent < 0 ? QString() : leadOf(parent);
    const QString lead = leadOf(element);
    const bool isFurtherIn = outer.contains(u'\n') && lead.startsWith(outer);
    return isFurtherIn ? lead.mid(outer.size()) : QString();
}

// The white space before an element inside of this one, if it has none.
QString DocumentEditor::childLead(int element) const
{
    return leadOf(element) + stepOf(element);
}

QString DocumentEditor::written(const QString& text, QChar quote) const
{
    return escaped(text, quote, &m_document);
}

void DocumentEditor::setAttribute(int element, const char* name, const QString& value)
{
    const int start = m_elements.at(element).start;
    const TagReader::Attribute found = TagReader::attribute(m_text, start, QLatin1String(name));
    if (found.end != 0) {
        replace(found.valueStart, found.valueEnd, written(value, m_text.at(found.valueEnd)));
        return;
    }
    const int place = start + 1 + nameOf(element).size();
    replace(place, place,
            QLatin1Char(' ') + QLatin1String(name) + QLatin1String("=\"") + written(value, u'"') +
                QLatin1Char('"'));
}

void DocumentEditor::removeAttribute(int element, const char* name)
{
    const TagReader::Attribute found =
        TagReader::attribute(m_text, m_elements.at(element).start, QLatin1String(name));
    if (found.end != 0)
        replace(found.start, found.end, QString());
}

void DocumentEditor::setText(int element, const QString& text)
{
    setContent(element, written(text, QChar()));
}

void DocumentEditor::setViewContent(int element, const LayoutDocument::View& view)
{
    setContent(element, writeViewContent(view, childLead(element), leadOf(element), &m_document));
}

void DocumentEditor::setContent(int element, const QString& content)
{
    const Element& place = m_elements.at(element);
    if (isEmptyElement(element))
        replace(place.end - 2, place.end,
                QLatin1Char('>') + content + QLatin1String("</") + nameOf(element) +
                    QLatin1Char('>'));
    else
        replace(place.startTagEnd, place.endTagStart, content);
}

void DocumentEditor::removeElement(int element)
{
    const Element& place = m_elements.at(element);
    replace(place.start - leadOf(element).size(), place.end, QString());
}

QString DocumentEditor::textOf(const QVector<const DocumentView*>& views) const
{
    QString text;
    for (const DocumentView* view : views) {
        const Element& place = m_elements.at(view->element);
        text += leadOf(view->element) + m_text.mid(place.start, place.end - place.start);
    }
    return text;
}

QString DocumentEditor::textOf(const DocumentGroup& group, const LayoutDocument::View& view) const
{
    const bool isFirst = group.views.isEmpty();
    const int other = isFirst ? group.viewsElement : group.views.last().element;
    const QString lead = isFirst ? childLead(other) : leadOf(other);
    const QString step = stepOf(other);
    return writeView(view, lead, step, &m_document);
}

void DocumentEditor::insertBefore(int element, const QString& text)
{
    const int place = m_elements.at(element).start - leadOf(element).size();
    replace(place, place, text);
}

void DocumentEditor::insertAfter(int element, const QString& text)
{
    const int place = m_elements.at(element).end;
    replace(place, place, text);
}

void DocumentEditor::append(const DocumentGroup& group, const QString& text)
{
    const Element& place = m_elements.at(group.viewsElement);
    if (!group.views.isEmpty())
        insertAfter(group.views.last().element, text);
    else if (place.startTagEnd == place.endTagStart)
        setContent(group.viewsElement, text + leadOf(group.viewsElement));
    else
        replace(place.startTagEnd, place.startTagEnd, text);
}

void DocumentEditor::appendUserData(const DocumentView& view, const QString& text)
{
    if (view.states.isEmpty()) {
        LayoutDocument::View content;
        content.userData = text;
        setViewContent(view.element, content);
        return;
    }
    const int last = view.states.last().element;
    insertAfter(last, leadOf(last) + writeUserData(text, &m_document));
}

void DocumentEditor::replace(int start, int end, const QString& text)
{
    m_splices.append({start, end, text});
}

QByteArray DocumentEditor::result() const
{
    QVector<Splice> splices = m_splices;
    std::stable_sort(splices.begin(), splices.end(), [](const Splice& a, const Splice& b) {
        return a.start != b.start ? a.start < b.start : a.end < b.end;
    });
    QString text;
    int position = 0;
    for (const Splice& splice : qAsConst(splices)) {
        text += m_text.midRef(position, splice.start - position) + splice.text;
        position = splice.end;
    }
    return m_document.encoded(text + m_text.midRef(position));
}

} // namespace Panorel::Kit::Detail
