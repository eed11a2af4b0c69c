// SPDX-License-Identifier: MIT

// The operations of LayoutDocument that bring views in from outside.

#include "DocumentEditor.h"
#include "DocumentErrors.h"
#include "DocumentModel.h"
#include "DocumentWriter.h"

#include <panorel/kit/LayoutDocument.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace Panorel::Kit {

namespace Errors = Detail::DocumentErrors;

using Detail::DocumentEditor;
using Detail::DocumentGroup;
using Detail::DocumentModel;
using Detail::DocumentView;

namespace {

using OnConflict = LayoutDocument::OnConflict;
using Error = LayoutDocument::Error;
using View = LayoutDocument::View;

bool isWritable(const View& view)
{
    const QStringList ids = view.states.keys();
    return Detail::isWritable(view.name) && Detail::isWritable(view.userData) &&
           std::all_of(ids.cbegin(), ids.cend(), Detail::isWritable);
}

QString freeName(const QString& name, const QSet<QString>& taken)
{
    QString result = name;
    for (int number = 2; taken.contains(result); ++number)
        result = QStringLiteral("%1 (%2)").arg(name, QString::number(number));
    return result;
}

/** Adds views to one group. */
class ViewAdder
{
public:
    ViewAdder(DocumentEditor& editor, const QString& group)
        : m_editor(editor)
        , m_group(group)
    {
        const QVector<const DocumentGroup*> groups = editor.model().groupsNamed(group);
        for (const DocumentGroup* sameGroup : groups) {
            for (const DocumentView& view : sameGroup->views)
                m_elements[view.name].append(view.element);
        }
        const QStringList names = m_elements.keys();
        m_taken = QSet<QString>(names.cbegin(), names.cend());
        m_last = groups.last();
    }

    Error add(View view, OnConflict onConflict)
    {
        if (!isWritable(view))
            return Errors::notWritable();
        const bool isTaken = m_taken.contains(view.name);
        if (isTaken && onConflict == OnConflict::Fail)
            return Errors::viewNameTaken(m_group, view.name);
        if (isTaken && onConflict == OnConflict::Replace) {
            for (const int element : m_elements.value(view.name))
                m_editor.setViewContent(element, view);
            return {};
        }
        view.name = freeName(view.name, m_taken);
        m_taken.insert(view.name);
        m_text += m_editor.textOf(*m_last, view);
        return {};
    }

    /** To be called once, after all views. */
    void finish()
    {
        if (!m_text.isEmpty())
            m_editor.append(*m_last, m_text);
    }

private:
    DocumentEditor& m_editor;
    const QString m_group;
    const DocumentGroup* m_last = nullptr;
    QHash<QString, QVector<int>> m_elements;
    QSet<QString> m_taken;
    QString m_text;
};

/** The views of a group by name, in their order; a search for each would be quadratic. */
struct ViewsByName
{
    ViewsByName(const DocumentModel& model, const QString& group)
    {
        const QVector<const DocumentGroup*> groups = model.groupsNamed(group);
        for (const DocumentGroup* sameGroup : groups) {
            for (const DocumentView& view : sameGroup->views) {
                QVector<const DocumentView*>& elements = views[view.name];
                if (elements.isEmpty())
                    names.append(view.name);
                elements.append(&view);
            }
        }
    }

    QStringList names;
    QHash<QString, QVector<const DocumentView*>> views;
};

} // namespace

LayoutDocument::Error LayoutDocument::addView(const QString& group, const View& view,
                                              OnConflict onConflict)
{
    if (Error error = checkGroup(group))
        return error;
    if (view.name.isEmpty())
        return Errors::emptyName();
    LayoutDocument work(*this);
    DocumentEditor editor(*m_model.constData());
    ViewAdder adder(editor, group);
    if (Error error = adder.add(view, onConflict))
        return error;
    adder.finish();
    if (Error error = work.accept(editor.result()))
        return error;
    const QStringList names = work.viewNames(group);
    const bool isNew = names.size() > viewNames(group).size();
    const QString name = isNew ? names.last() : view.name;
    if (Error error = view.isActive ? work.setActiveView(group, name) : Error())
        return error;
    *this = std::move(work);
    return {};
}

LayoutDocument::Error LayoutDocument::copyViews(const LayoutDocument& from, const QString& group,
                                                const QStringList& views, OnConflict onConflict)
{
    if (Error error = editable())
        return error;
    if (Error error = group.isNull() ? from.editable() : from.checkGroup(group))
        return error;
    const QStringList groups = group.isNull() ? from.groupNames() : QStringList(group);
    const QSet<QString> chosen(views.cbegin(), views.cend());
    QSet<QString> missing = chosen;
    QStringList known;
    DocumentEditor editor(*m_model.constData());
    for (const QString& name : groups) {
        const ViewsByName source(*from.m_model.constData(), name);
        QStringList names;
        std::copy_if(
            source.names.cbegin(), source.names.cend(), std::back_inserter(names),
            [&](const QString& view) { return chosen.isEmpty() || chosen.contains(view); });
        known += source.names;
        if (names.isEmpty())
            continue;
        if (Error error = checkGroup(name))
            return error;
        ViewAdder adder(editor, name);
        for (const QString& view : qAsConst(names)) {
            missing.remove(view);
            if (Error error = adder.add(Detail::readView(source.views.value(view)), onConflict))
                return error;
        }
        adder.finish();
    }
    known.removeDuplicates();
    if (!missing.isEmpty())
        return Errors::unknownView(groups.join(QLatin1String(", ")), *missing.cbegin(), known);
    return accept(editor.result());
}

} // namespace Panorel::Kit
