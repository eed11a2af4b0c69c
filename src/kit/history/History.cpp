// SPDX-License-Identifier: MIT
#include "History.h"

#include "ManagerWriter.h"
#include "StepText.h"

#include "../window/Actions.h"
#include "../window/Activity.h"
#include "../window/Giver.h"
#include "../window/StoredViews.h"
#include "../window/WindowOwner.h"
#include "../window/Windows.h"

#include <panorel/Manager.h>

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <utility>

namespace Panorel::Kit::Detail {

namespace {

// In bytes of the states and of all else that steps consist of, which are many if states are small.
constexpr qint64 limit = qint64{32} * 1024 * 1024;

// Null for a command of the application.
Step* stepAt(const QUndoStack& stack, int index)
{
    return dynamic_cast<Step*>(const_cast<QUndoCommand*>(stack.command(index)));
}

} // namespace

History::History(Manager& manager, WindowOwner& owner, StoredViews& stored, Giver& giver,
                 Activity& activity, Windows& windows, const Actions& actions)
    : m_manager(manager)
    , m_owner(owner)
    , m_stored(stored)
    , m_giver(giver)
    , m_activity(activity)
    , m_windows(windows)
    , m_stack(actions.history)
    , m_contents(stored.contents())
{
    connect(&m_activity, &Activity::done, this, &History::onDone);
    connect(&m_activity, &Activity::takenOver, this, [this] { m_contents = m_stored.contents(); });
}

History::~History()
{
    if (m_stack)
        m_stack->clear();
}

Snapshot History::snapshot()
{
    Contents contents = m_stored.contents();
    if (Contents::Group* const active = contents.find(contents.activeGroup))
        active->current = m_windows.states();
    return contents.toSnapshot();
}

void History::change(const Snapshot& to, const QString& text)
{
    const Contents before = m_stored.contents();
    const Contents after = Contents::of(to, before.activeGroup);
    const Delta delta = Delta::between(before, after);
    if (delta.isEmpty())
        return;
    const Contents::Group* const old = before.find(before.activeGroup);
    const Contents::Group* const active = after.find(before.activeGroup);
    std::optional<Step::Shown> shown;
    if (old && active && !active->activeStates().isEmpty() &&
        old->activeStates() != active->activeStates())
        shown = Step::Shown{active->activeStates(), !m_activity.merges()};
    if (m_stack)
        push(new Step(*this, delta, shown, /*isDone=*/false), text);
    else
        (void)run(delta, shown);
}

void History::nameImport(const QString& file)
{
    m_documentName = StepText::ofImport(file);
}

void History::forget()
{
    m_last = nullptr;
    if (!m_stack)
        return;
    // A step that runs is needed until it is done.
    if (m_isRunning) {
        QMetaObject::invokeMethod(this, &History::forget, Qt::QueuedConnection);
        return;
    }
    bool areAllSteps = true;
    for (int i = 0; i < m_stack->count(); ++i) {
        Step* const step = stepAt(*m_stack, i);
        areAllSteps = areAllSteps && step;
        if (step)
            step->clear();
    }
    // What the application has put there stays; obsolete steps are removed when they are reached.
    if (areAllSteps)
        m_stack->clear();
}

std::optional<StateMap> History::run(const Delta& delta, const std::optional<Step::Shown>& shown)
{
    // A receiver of the signals may undo more.
    if (m_isRunning)
        return std::nullopt;
    const QScopedValueRollback<bool> running(m_isRunning, true);
    const StateMap before = m_giver.live();
    const Contents from = m_stored.contents();
    Contents to = from;
    delta.apply(to);
    if (Contents::Group* const left = to.find(from.activeGroup))
        left->current = before;
    write(from, to);
    if (shown) {
        Q_EMIT m_activity.switching();
        m_giver.give(shown->states, shown->hasToolBars ? StateMap() : before);
    }
    const Contents::Group* const old = from.find(to.activeGroup);
    const Contents::Group* const active = to.find(to.activeGroup);
    m_activity.announce(old && active && old->names() != active->names(),
                        from.activeGroup != to.activeGroup);
    return before;
}

void History::write(const Contents& from, const Contents& to)
{
    const Activity::Takeover takeover(m_activity);
    ManagerWriter(m_manager, m_owner).write(from, to);
    m_stored.set(to);
    const Contents::Group* const active = to.find(m_manager.activeGroup());
    // A document cannot hold every character of a name.
    if (!active || active->names() != m_manager.views())
        m_stored.forgetViews();
}

void History::onDone(const Operation& operation)
{
    if (m_isRunning)
        recordLater();
    else
        record(operation);
}

// The stack cannot take a step while it undoes or redoes another one.
void History::recordLater()
{
    QMetaObject::invokeMethod(
        this, [this] { record(Operation()); }, Qt::QueuedConnection);
}

void History::record(const Operation& operation)
{
    const Contents now = m_stored.contents();
    const bool continues = operation.continuesLast && m_last && m_stack && m_stack->index() > 0 &&
                           m_stack->command(m_stack->index() - 1) == m_last;
    const Contents before = continues ? m_beforeLast : m_contents;
    m_contents = now;
    const Delta delta = Delta::between(before, now);
    const bool isUnchanged =
        delta.isEmpty() && (!operation.hasGiven || operation.before == m_giver.live());
    const QString documentName =
        operation.isDocument ? std::exchange(m_documentName, QString()) : QString();
    m_last = nullptr;
    if (!m_stack || isUnchanged)
        return;
    std::optional<Step::Shown> shown;
    if (operation.hasGiven)
        shown = Step::Shown{operation.before, operation.hasGivenToolBars};
    auto* const step = new Step(*this, delta, shown, /*isDone=*/true);
    if (continues)
        step->setContinuing();
    m_beforeLast = before;
    push(step, documentName.isEmpty() ? StepText::of(delta, now) : documentName);
}

void History::push(Step* step, const QString& text)
{
    // What follows a line break is for menus only.
    step->setText(QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    m_stack->push(step);
    m_last = m_stack->command(m_stack->index() - 1);
    dropOldest();
}

void History::dropOldest()
{
    if (m_pool.bytes() <= limit)
        return;
    int dropped = 0;
    bool areAllSteps = true;
    for (int i = 0; i < m_stack->count(); ++i) {
        Step* const step = stepAt(*m_stack, i);
        areAllSteps = areAllSteps && step;
        // Down to less than the limit, because the others are put back each time.
        if (step && i < m_stack->count() - 1 && m_pool.bytes() > limit / 4 * 3) {
            step->clear();
            dropped = i + 1;
        }
    }
    m_last = nullptr;
    // What the application has put there stays, and with it all steps, of which those that are
    // obsolete do nothing and are removed when they are reached.
    if (areAllSteps)
        keepNewest(m_stack->count() - dropped);
}

// A stack gives up its first steps only with all others, so those that stay are put back.
void History::keepNewest(int count)
{
    const int first = m_stack->count() - count;
    const int clean = m_stack->cleanIndex() - first;
    QVector<Step*> steps;
    for (int i = first; i < m_stack->count(); ++i)
        steps.append(stepAt(*m_stack, i)->copy());
    {
        const QSignalBlocker blocker(m_stack);
        m_stack->clear();
        m_stack->resetClean();
        for (int i = 0; i < count - 1; ++i) {
            m_stack->push(steps[i]);
            if (clean == i + 1)
                m_stack->setClean();
        }
    }
    m_stack->push(steps.last());
}

} // namespace Panorel::Kit::Detail
