// SPDX-License-Identifier: MIT
#include <panorel/kit/LayoutDocument.h>

#include "DocumentEditor.h"
#include "DocumentModel.h"
#include "DocumentWriter.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Panorel::Kit {

using Detail::DocumentGroup;
using Detail::DocumentModel;
using Detail::DocumentState;
using Detail::DocumentView;

namespace {

// Of each group name the element of the view that is active.
QHash<QString, int> activeElements(const DocumentModel& model)
{
    QHash<QString, int> elements;
    for (const DocumentGroup& group : model.groups) {
        for (const DocumentView& view : group.views) {
            if (view.isMarked)
                elements.insert(group.name, view.element);
        }
    }
    return elements;
}

void insertIds(QSet<QString>& ids, const QVector<DocumentState>& states)
{
    for (const DocumentState& state : states) {
        if (!state.bytes.isEmpty())
            ids.insert(state.id);
    }
}

} // namespace

LayoutDocument::LayoutDocument()
    : m_model(new DocumentModel)
{}

LayoutDocument::LayoutDocument(const QByteArray& bytes)
    : m_model(new DocumentModel(bytes))
{}

LayoutDocument LayoutDocument::withGroups(const QStringList& names)
{
    DocumentModel model;
    model.version = QStringLiteral("1.1.0");
    for (const QString& name : names) {
        if (!Detail::isWritable(name))
            return LayoutDocument();
        DocumentGroup group;
        group.name = name;
        group.current.name = QStringLiteral("__current__");
        group.current.userData = QLatin1String("");
        model.groups.append(group);
    }
    return LayoutDocument(Detail::writeDocument(model));
}

LayoutDocument::LayoutDocument(const LayoutDocument& other) = default;
LayoutDocument::LayoutDocument(LayoutDocument&& other) noexcept = default;
LayoutDocument& LayoutDocument::operator=(const LayoutDocument& other) = default;
LayoutDocument& LayoutDocument::operator=(LayoutDocument&& other) noexcept = default;
LayoutDocument::~LayoutDocument() = default;

QByteArray LayoutDocument::bytes() const
{
    return m_model->bytes;
}

bool LayoutDocument::isReadable() const
{
    return m_model->isReadable;
}

bool LayoutDocument::isWrittenWhole() const
{
    return m_model->isReadable && Detail::DocumentEditor(*m_model).isWrittenWhole();
}

QString LayoutDocument::version() const
{
    return m_model->version;
}

QVector<LayoutDocument::Group> LayoutDocument::groups() const
{
    const QHash<QString, int> active = activeElements(*m_model);
    QVector<Group> result;
    for (const DocumentGroup& group : m_model->groups) {
        result.append({group.name, {}, Detail::readView({&group.current})});
        for (const DocumentView& view : group.views) {
            result.last().views.append(Detail::readView({&view}));
            result.last().views.last().isActive = active.value(group.name, -1) == view.element;
        }
    }
    return result;
}

QStringList LayoutDocument::groupNames() const
{
    QStringList names;
    for (const DocumentGroup& group : m_model->groups)
        names.append(group.name);
    names.removeDuplicates();
    return names;
}

QStringList LayoutDocument::viewNames(const QString& group) const
{
    QStringList names;
    const QVector<const DocumentGroup*> sameGroups = m_model->groupsNamed(group);
    for (const DocumentGroup* sameGroup : sameGroups) {
        for (const DocumentView& view : sameGroup->views)
            names.append(view.name);
    }
    names.removeDuplicates();
    return names;
}

bool LayoutDocument::hasView(const QString& group, const QString& view) const
{
    return !m_model->viewsNamed(group, view).isEmpty();
}

LayoutDocument::View LayoutDocument::view(const QString& group, const QString& view) const
{
    View result = Detail::readView(m_model->viewsNamed(group, view));
    const QVector<const DocumentView*> marked = m_model->markedViews(group);
    result.isActive = !marked.isEmpty() && marked.last()->name == view;
    return result;
}

LayoutDocument::View LayoutDocument::currentView(const QString& group) const
{
    QVector<const DocumentView*> elements;
    const QVector<const DocumentGroup*> sameGroups = m_model->groupsNamed(group);
    for (const DocumentGroup* sameGroup : sameGroups)
        elements.append(&sameGroup->current);
    return Detail::readView(elements);
}

StateMap LayoutDocument::toolBarStates() const
{
    DocumentView states;
    states.states = m_model->toolBarStates;
    return Detail::readView({&states}).states;
}

QStringList LayoutDocument::windowIds() const
{
    QSet<QString> ids;
    insertIds(ids, m_model->toolBarStates);
    for (const DocumentGroup& group : m_model->groups) {
        insertIds(ids, group.current.states);
        for (const DocumentView& view : group.views)
            insertIds(ids, view.states);
    }
    QStringList sorted = ids.values();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

} // namespace Panorel::Kit
