// SPDX-License-Identifier: MIT
#include "DocumentModel.h"

#include "StateDigits.h"

#include <panorel/Manager.h>

#include <QXmlStreamReader>

namespace Panorel::Kit::Detail {

namespace {

/** Reads a document that satisfies the schema; so it need not look for what cannot be there. */
class DocumentReader
{
public:
    explicit DocumentReader(DocumentModel& model)
        : m_digits(model.bytes)
        , m_reader(m_digits.rest)
        , m_model(model)
    {}

    void read()
    {
        nextChild();
        m_model.version = attribute("Version");
        while (nextChild()) {
            if (m_reader.name() == QLatin1String("Groups"))
                readGroups();
            else
                m_model.toolBarStates.append(readState());
        }
    }

private:
    bool nextChild()
    {
        const bool isChild = m_reader.readNextStartElement();
        m_model.elementCount += isChild ? 1 : 0;
        return isChild;
    }

    int element() const { return m_model.elementCount - 1; }

    QString attribute(const char* name) const
    {
        const QString value = m_reader.attributes().value(QLatin1String(name)).toString();
        return value.isNull() ? QStringLiteral("") : value;
    }

    void readGroups()
    {
        while (nextChild()) {
            m_model.groups.append(DocumentGroup());
            readGroup(m_model.groups.last());
        }
    }

    void readGroup(DocumentGroup& group)
    {
        group.name = attribute("Name");
        while (nextChild()) {
            if (m_reader.name() == QLatin1String("Views")) {
                group.viewsElement = element();
                while (nextChild())
                    group.views.append(readView());
            } else {
                group.current = readView();
            }
        }
    }

    DocumentView readView()
    {
        DocumentView view;
        view.element = element();
        view.name = attribute("Name");
        const QString active = attribute("Active");
        view.isMarked = active == QLatin1String("true") || active == QLatin1String("1");
        while (nextChild()) {
            if (m_reader.name() == QLatin1String("State")) {
                view.states.append(readState());
            } else {
                view.userDataElement = element();
                view.userData = m_reader.readElementText();
                if (view.userData.isNull())
                    view.userData = QLatin1String("");
            }
        }
        return view;
    }

    DocumentState readState()
    {
        const int number = element();
        const QString id = attribute("DescriptorId");
        const QByteArray digits = m_reader.readElementText().toLatin1();
        return {id, m_digits.states.value(number, QByteArray::fromHex(digits)), number};
    }

    const StateDigits m_digits;
    QXmlStreamReader m_reader;
    DocumentModel& m_model;
};

// The same code decides as for a Manager that reads the document, and nothing is applied.
bool isAccepted(const QByteArray& bytes)
{
    Manager manager({QString()}, /*mergeOnApply=*/false);
    return manager.setFactoryDefaultView(bytes);
}

} // namespace

DocumentModel::DocumentModel(const QByteArray& data)
    : bytes(data)
    , isReadable(isAccepted(data))
{
    if (isReadable)
        DocumentReader(*this).read();
}

DocumentModel DocumentModel::ofAccepted(const QByteArray& bytes)
{
    DocumentModel model;
    model.bytes = bytes;
    model.isReadable = true;
    DocumentReader(model).read();
    return model;
}

QVector<const DocumentGroup*> DocumentModel::groupsNamed(const QString& name) const
{
    QVector<const DocumentGroup*> found;
    for (const DocumentGroup& group : groups) {
        if (group.name == name)
            found.append(&group);
    }
    return found;
}

QVector<const DocumentView*> DocumentModel::viewsNamed(const QString& group,
                                                       const QString& name) const
{
    QVector<const DocumentView*> found;
    const QVector<const DocumentGroup*> sameGroups = groupsNamed(group);
    for (const DocumentGroup* sameGroup : sameGroups) {
        for (const DocumentView& view : sameGroup->views) {
            if (view.name == name)
                found.append(&view);
        }
    }
    return found;
}

QVector<const DocumentView*> DocumentModel::markedViews(const QString& group) const
{
    QVector<const DocumentView*> found;
    const QVector<const DocumentGroup*> sameGroups = groupsNamed(group);
    for (const DocumentGroup* sameGroup : sameGroups) {
        for (const DocumentView& view : sameGroup->views) {
            if (view.isMarked)
                found.append(&view);
        }
    }
    return found;
}

LayoutDocument::View readView(const QVector<const DocumentView*>& elements)
{
    LayoutDocument::View result;
    for (const DocumentView* element : elements) {
        result.name = element->name;
        result.states.clear();
        for (const DocumentState& state : element->states) {
            if (!state.bytes.isEmpty())
                result.states.insert(state.id, state.bytes);
        }
        if (!element->userData.isNull())
            result.userData = element->userData;
    }
    return result;
}

} // namespace Panorel::Kit::Detail
