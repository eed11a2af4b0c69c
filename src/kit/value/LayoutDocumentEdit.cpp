// SPDX-License-Identifier: MIT

// The operations of LayoutDocument that change single views, states and marks.

#include "DocumentEditor.h"
#include "DocumentErrors.h"
#include "DocumentModel.h"
#include "DocumentWriter.h"

#include <panorel/kit/LayoutDocument.h>

#include <algorithm>

namespace Panorel::Kit {

namespace Errors = Detail::DocumentErrors;

using Detail::DocumentEditor;
using Detail::DocumentGroup;
using Detail::DocumentModel;
using Detail::DocumentState;
using Detail::DocumentView;

namespace {

bool hasState(const QVector<DocumentState>& states, const QString& id)
{
    return std::any_of(states.cbegin(), states.cend(),
                       [&](const DocumentState& state) { return state.id == id; });
}

void renameIn(DocumentEditor& editor, const QVector<DocumentState>& states, const QString& id,
              const QString& newId)
{
    for (const DocumentState& state : states) {
        if (state.id == id)
            editor.setAttribute(state.element, "DescriptorId", newId);
    }
}

// All places that hold states of windows: the document itself and its views.
QVector<const QVector<DocumentState>*> allStates(const DocumentModel& model)
{
    QVector<const QVector<DocumentState>*> result{&model.toolBarStates};
    for (const DocumentGroup& group : model.groups) {
        for (const DocumentView& view : group.views)
            result.append(&view.states);
        result.append(&group.current.states);
    }
    return result;
}

QVector<int> elementsOf(const QVector<const DocumentView*>& views)
{
    QVector<int> elements;
    for (const DocumentView* view : views)
        elements.append(view->element);
    return elements;
}

} // namespace

LayoutDocument::Error LayoutDocument::editable() const
{
    if (!isReadable())
        return Errors::notReadable();
    // A Manager would take the result, and read nothing of it.
    if (version() != QLatin1String("1.1.0"))
        return Errors::otherVersion(version());
    return {};
}

LayoutDocument::Error LayoutDocument::checkGroup(const QString& group) const
{
    if (Error error = editable())
        return error;
    if (m_model->groupsNamed(group).isEmpty())
        return Errors::unknownGroup(group, groupNames());
    return {};
}

LayoutDocument::Error LayoutDocument::checkView(const QString& group, const QString& view) const
{
    if (Error error = checkGroup(group))
        return error;
    if (!hasView(group, view))
        return Errors::unknownView(group, view, viewNames(group));
    return {};
}

LayoutDocument::Error LayoutDocument::checkNewName(const QString& group, const QString& name) const
{
    if (name.isEmpty())
        return Errors::emptyName();
    if (!Detail::isWritable(name))
        return Errors::notWritable();
    if (hasView(group, name))
        return Errors::viewNameTaken(group, name);
    return {};
}

LayoutDocument::Error LayoutDocument::accept(const QByteArray& edited)
{
    LayoutDocument document(edited);
    if (!document.isReadable())
        return Errors::notAccepted();
    *this = std::move(document);
    return {};
}

// Which of several marked views counts depends on their order, which an edit may change. So all
// marks but that one go first.
LayoutDocument::Error LayoutDocument::dropSpareMarks(const QString& group)
{
    const QVector<const DocumentView*> marked = m_model.constData()->markedViews(group);
    return marked.size() > 1 ? setActiveView(group, marked.last()->name) : Error();
}

LayoutDocument::Error LayoutDocument::renameView(const QString& group, const QString& view,
                                                 const QString& newName)
{
    if (Error error = checkView(group, view))
        return error;
    if (newName == view)
        return {};
    if (Error error = checkNewName(group, newName))
        return error;
    DocumentEditor editor(*m_model.constData());
    for (const int element : elementsOf(editor.model().viewsNamed(group, view)))
        editor.setAttribute(element, "Name", newName);
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::moveView(const QString& group, const QString& view,
                                               const QString& before)
{
    if (Error error = checkView(group, view))
        return error;
    if (!before.isNull() && !hasView(group, before))
        return Errors::unknownView(group, before, viewNames(group));
    if (!before.isNull() && before == view)
        return {};
    LayoutDocument work(*this);
    if (Error error = work.dropSpareMarks(group))
        return error;
    DocumentEditor editor(*work.m_model.constData());
    const QVector<const DocumentView*> moved = editor.model().viewsNamed(group, view);
    for (const int element : elementsOf(moved))
        editor.removeElement(element);
    const QString text = editor.textOf(moved);
    if (before.isNull())
        editor.append(*editor.model().groupsNamed(group).last(), text);
    else
        editor.insertBefore(editor.model().viewsNamed(group, before).first()->element, text);
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::moveToGroup(const QString& group, const QString& view,
                                                  const QString& newGroup)
{
    if (Error error = checkView(group, view))
        return error;
    if (Error error = checkGroup(newGroup))
        return error;
    if (group == newGroup)
        return moveView(group, view);
    if (hasView(newGroup, view))
        return Errors::viewNameTaken(newGroup, view);
    LayoutDocument work(*this);
    Error error = work.view(group, view).isActive ? work.setActiveView(group, QString())
                                                  : work.dropSpareMarks(group);
    if (error)
        return error;
    DocumentEditor editor(*work.m_model.constData());
    const QVector<const DocumentView*> moved = editor.model().viewsNamed(group, view);
    for (const int element : elementsOf(moved))
        editor.removeElement(element);
    editor.append(*editor.model().groupsNamed(newGroup).last(), editor.textOf(moved));
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::removeView(const QString& group, const QString& view)
{
    if (Error error = checkView(group, view))
        return error;
    LayoutDocument work(*this);
    if (Error error = work.dropSpareMarks(group))
        return error;
    DocumentEditor editor(*work.m_model.constData());
    for (const int element : elementsOf(editor.model().viewsNamed(group, view)))
        editor.removeElement(element);
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::duplicateView(const QString& group, const QString& view,
                                                    const QString& newName)
{
    if (Error error = checkView(group, view))
        return error;
    if (Error error = checkNewName(group, newName))
        return error;
    DocumentEditor editor(*m_model.constData());
    View copy = this->view(group, view);
    copy.name = newName;
    const DocumentGroup& first = *editor.model().groupsNamed(group).first();
    editor.insertAfter(editor.model().viewsNamed(group, view).first()->element,
                       editor.textOf(first, copy));
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::setUserData(const QString& group, const QString& view,
                                                  const QString& text)
{
    if (Error error = checkView(group, view))
        return error;
    if (!Detail::isWritable(text))
        return Errors::notWritable();
    const QString before = this->view(group, view).userData;
    if (before == text && before.isNull() == text.isNull())
        return {};
    DocumentEditor editor(*m_model.constData());
    const QVector<const DocumentView*> views = editor.model().viewsNamed(group, view);
    for (const DocumentView* element : views) {
        if (text.isNull() && element->userDataElement >= 0)
            editor.removeElement(element->userDataElement);
    }
    // Where a view occurs again, a Manager goes by the last user data.
    const DocumentView& last = *views.last();
    if (!text.isNull() && last.userDataElement >= 0)
        editor.setText(last.userDataElement, text);
    else if (!text.isNull())
        editor.appendUserData(last, text);
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::setActiveView(const QString& group, const QString& view)
{
    Error error = view.isNull() ? checkGroup(group) : checkView(group, view);
    if (error)
        return error;
    DocumentEditor editor(*m_model.constData());
    const QVector<const DocumentView*> marked = editor.model().markedViews(group);
    const QVector<const DocumentView*> views = editor.model().viewsNamed(group, view);
    const DocumentView* active = view.isNull() ? nullptr : views.last();
    const bool isDone = active ? marked == QVector<const DocumentView*>{active} : marked.isEmpty();
    if (isDone)
        return {};
    for (const DocumentView* element : marked) {
        if (element != active)
            editor.removeAttribute(element->element, "Active");
    }
    if (active && !active->isMarked)
        editor.setAttribute(active->element, "Active", QStringLiteral("true"));
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::removeState(const QString& group, const QString& view,
                                                  const QString& window)
{
    if (Error error = checkView(group, view))
        return error;
    const StateMap states = this->view(group, view).states;
    if (!states.contains(window))
        return Errors::unknownWindow(window, states.keys());
    DocumentEditor editor(*m_model.constData());
    const QVector<const DocumentView*> views = editor.model().viewsNamed(group, view);
    for (const DocumentView* element : views) {
        for (const DocumentState& state : element->states) {
            if (state.id == window)
                editor.removeElement(state.element);
        }
    }
    return accept(editor.result());
}

LayoutDocument::Error LayoutDocument::renameWindow(const QString& id, const QString& newId)
{
    if (Error error = editable())
        return error;
    const QStringList ids = windowIds();
    if (!ids.contains(id))
        return Errors::unknownWindow(id, ids);
    if (newId == id)
        return {};
    if (newId.isEmpty())
        return Errors::emptyName();
    if (!Detail::isWritable(newId))
        return Errors::notWritable();
    DocumentEditor editor(*m_model.constData());
    const QVector<const QVector<DocumentState>*> places = allStates(editor.model());
    for (const QVector<DocumentState>* states : places) {
        if (hasState(*states, id) && hasState(*states, newId))
            return Errors::windowIdTaken(id, newId);
        renameIn(editor, *states, id, newId);
    }
    return accept(editor.result());
}

} // namespace Panorel::Kit
