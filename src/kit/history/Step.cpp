// SPDX-License-Identifier: MIT
#include "Step.h"

#include "History.h"

#include <utility>

namespace Panorel::Kit::Detail {

Step::Step(History& history, const Delta& delta, const std::optional<Shown>& shown, bool isDone)
    : m_history(history)
    , m_delta(delta)
    , m_shown(shown)
    , m_isDone(isDone)
{
    keep();
}

Step::~Step()
{
    release();
}

void Step::undo()
{
    run(m_delta.reversed());
}

void Step::redo()
{
    if (!std::exchange(m_isDone, false))
        run(m_delta);
}

bool Step::mergeWith(const QUndoCommand* other)
{
    const auto* const step = dynamic_cast<const Step*>(other);
    if (!step || !step->m_isContinuing)
        return false;
    release();
    m_delta = step->m_delta;
    m_shown = step->m_shown;
    setText(step->text());
    keep();
    return true;
}

void Step::clear()
{
    release();
    m_delta = Delta();
    m_shown.reset();
    setObsolete(true);
}

Step* Step::copy() const
{
    auto* const step = new Step(m_history, m_delta, m_shown, /*isDone=*/true);
    step->setText(text());
    return step;
}

void Step::run(const Delta& delta)
{
    const std::optional<StateMap> before = m_history.run(delta, m_shown);
    if (!m_shown || !before)
        return;
    release();
    m_shown->states = *before;
    keep();
}

void Step::keep()
{
    StatePool& pool = m_history.pool();
    m_delta.forEachStates([&](StateMap& states) { pool.add(states); });
    if (m_shown)
        pool.add(m_shown->states);
}

void Step::release()
{
    StatePool& pool = m_history.pool();
    m_delta.forEachStates([&](StateMap& states) { pool.release(states); });
    if (m_shown)
        pool.release(m_shown->states);
}

} // namespace Panorel::Kit::Detail
