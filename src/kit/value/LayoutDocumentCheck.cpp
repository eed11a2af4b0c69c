// SPDX-License-Identifier: MIT

// What is wrong in a document, and LayoutDocument's tidying, which fixes a part of it.

#include "DocumentEditor.h"
#include "DocumentErrors.h"
#include "DocumentModel.h"
#include "DocumentRefusal.h"
#include "DocumentText.h"

#include <panorel/kit/LayoutDocument.h>
#include <panorel/kit/WindowState.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace Panorel::Kit {

namespace Errors = Detail::DocumentErrors;

using Detail::DocumentGroup;
using Detail::DocumentModel;
using Detail::DocumentState;
using Detail::DocumentView;

namespace {

QVector<Problem> worseThanNotes(const QVector<Problem>& problems)
{
    QVector<Problem> worse;
    std::copy_if(problems.cbegin(), problems.cend(), std::back_inserter(worse),
                 [](const Problem& problem) { return problem.severity() != Severity::Note; });
    return worse;
}

// The problems of a state; @p place says where it is.
QVector<Problem> problemsOf(const WindowState& state, const Problem& place)
{
    QVector<Problem> problems = state.check();
    for (Problem& problem : problems) {
        problem.group = place.group;
        problem.view = place.view;
        problem.window = place.window;
        problem.isInCurrentView = place.isInCurrentView;
        problem.isInToolBarState = place.isInToolBarState;
    }
    return problems;
}

// Calls visitView for each saved view and, unless that says false, visitState for each state in it
// that is not empty; the same for the states elsewhere. Both get the place.
template<typename ViewVisitor, typename StateVisitor>
void visit(const DocumentModel& model, ViewVisitor visitView, StateVisitor visitState)
{
    const auto visitStates = [&](const QVector<DocumentState>& states, Problem place) {
        for (const DocumentState& state : states) {
            place.window = state.id;
            if (!state.bytes.isEmpty())
                visitState(state, place);
        }
    };
    Problem place;
    place.isInToolBarState = true;
    visitStates(model.toolBarStates, place);
    place.isInToolBarState = false;
    for (const DocumentGroup& group : model.groups) {
        place.group = group.name;
        place.isInCurrentView = false;
        for (const DocumentView& view : group.views) {
            place.view = view.name;
            if (visitView(view, place))
                visitStates(view.states, place);
        }
        place.view = QString();
        place.isInCurrentView = true;
        visitStates(group.current.states, place);
    }
}

// Whether a problem is one of the document itself; until offsets are known, the number of the
// element is in the place of the offset.
bool isOfDocument(const Problem& problem)
{
    return problem.code == ProblemCode::Version || problem.code == ProblemCode::NamelessView ||
           problem.code == ProblemCode::RepeatedView;
}

// Puts offsets in the place of the numbers of elements, which ascend; -1 where the places in the
// text are not known.
void findOffsets(QVector<Problem>& problems, const DocumentModel& model)
{
    if (std::none_of(problems.cbegin(), problems.cend(), isOfDocument))
        return;
    const QVector<qint64> offsets = Detail::DocumentText(model.bytes).elementOffsets();
    for (Problem& problem : problems) {
        if (isOfDocument(problem))
            problem.offset = offsets.value(static_cast<int>(problem.offset), -1);
    }
}

Problem problemOfView(ProblemCode code, const DocumentView& view, const Problem& place)
{
    Problem problem = place;
    problem.code = code;
    problem.detail = view.name;
    problem.offset = view.element;
    return problem;
}

/** Finds the names that occur again in groups of one name. */
class ViewNames
{
public:
    bool isRepeated(const QString& group, const QString& view)
    {
        QSet<QString>& names = m_names[group];
        const int before = names.size();
        names.insert(view);
        return names.size() == before;
    }

private:
    QHash<QString, QSet<QString>> m_names;
};

} // namespace

QVector<Problem> LayoutDocument::check() const
{
    if (!isReadable())
        return {Detail::refusalOf(bytes())};
    QVector<Problem> problems;
    if (version() != QLatin1String("1.1.0")) {
        problems.append(Problem());
        problems.last().code = ProblemCode::Version;
        problems.last().offset = 0;
        problems.last().detail = version();
    }
    ViewNames names;
    const auto checkView = [&](const DocumentView& view, const Problem& place) {
        const bool isRepeated = names.isRepeated(place.group, view.name);
        if (view.name.isEmpty())
            problems.append(problemOfView(ProblemCode::NamelessView, view, place));
        else if (isRepeated)
            problems.append(problemOfView(ProblemCode::RepeatedView, view, place));
        return true;
    };
    visit(*m_model, checkView, [&](const DocumentState& state, const Problem& place) {
        problems += problemsOf(WindowState(state.bytes), place);
    });
    findOffsets(problems, *m_model);
    return problems;
}

bool LayoutDocument::isSound() const
{
    return Kit::isSound(check());
}

LayoutDocument::Error LayoutDocument::tidy(const TidyOptions& options, QVector<Problem>* dropped)
{
    if (Error error = editable())
        return error;
    LayoutDocument work(*this);
    if (Error error = options.keepsNameless ? Error() : work.dropNameless())
        return error;
    Detail::DocumentEditor editor(*work.m_model.constData());
    QVector<Problem> reasons;
    Error error;
    const auto anyView = [](const DocumentView&, const Problem&) { return true; };
    visit(editor.model(), anyView, [&](const DocumentState& element, const Problem& place) {
        const WindowState state(element.bytes);
        const QVector<Problem> worse = worseThanNotes(problemsOf(state, place));
        const QByteArray tidied = worse.isEmpty() ? state.tidied() : element.bytes;
        if (!worse.isEmpty() && !options.dropsUnsound && !error)
            error = Errors::unsound(worse.first());
        if (!worse.isEmpty())
            editor.removeElement(element.element);
        else if (tidied != element.bytes)
            editor.setText(element.element, QString::fromLatin1(tidied.toHex()));
        reasons += worse;
    });
    if (!error && editor.isChanged())
        error = work.accept(editor.result());
    if (error)
        return error;
    *this = std::move(work);
    if (dropped)
        *dropped += reasons;
    return {};
}

// All in one edit, because a document may have very many groups. Of several marks in a group the
// last one counts, also if it goes.
LayoutDocument::Error LayoutDocument::dropNameless()
{
    Detail::DocumentEditor editor(*m_model.constData());
    QHash<QString, QVector<const DocumentView*>> marked;
    QSet<QString> changed;
    for (const DocumentGroup& group : editor.model().groups) {
        for (const DocumentView& view : group.views) {
            if (view.isMarked)
                marked[group.name].append(&view);
            if (view.name.isEmpty()) {
                changed.insert(group.name);
                editor.removeElement(view.element);
            }
        }
    }
    for (const QString& group : qAsConst(changed)) {
        const QVector<const DocumentView*> views = marked.value(group);
        for (int i = 0; i + 1 < views.size(); ++i) {
            if (!views.at(i)->name.isEmpty())
                editor.removeAttribute(views.at(i)->element, "Active");
        }
    }
    return editor.isChanged() ? accept(editor.result()) : Error();
}

} // namespace Panorel::Kit
