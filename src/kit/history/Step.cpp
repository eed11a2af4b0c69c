// SPDX-License-Identifier: MIT
#include "Step.h"

#include "History.h"

#include <utility>

namespace Panorel::Kit::Detail {

namespace {

// A step with all its parts, roughly.
constexpr qint64 emptyStep = 1024;

qint64 bytesOf(const QString& text)
{
    return text.size() * qint64{sizeof(QChar)};
}

qint64 bytesOf(const QStringList& names)
{
    qint64 bytes = 0;
    for (const QString& name : names)
        bytes += bytesOf(name);
    return bytes;
}

qint64 bytesOf(const std::optional<Contents::View>& view)
{
    return view ? bytesOf(view->name) + bytesOf(view->userData) : 0;
}

} // namespace

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

qint64 Step::ownBytes() const
{
    qint64 bytes = emptyStep;
    for (const Delta::Group& group : m_delta.groups) {
        for (const Delta::View& view : group.views)
            bytes += bytesOf(view.before) + bytesOf(view.after);
        bytes += bytesOf(group.order.before) + bytesOf(group.order.after);
    }
    return bytes;
}

void Step::keep()
{
    StatePool& pool = m_history.pool();
    m_bytes = ownBytes();
    pool.addBytes(m_bytes);
    m_delta.forEachStates([&](StateMap& states) { pool.add(states); });
    if (m_shown)
        pool.add(m_shown->states);
}

void Step::release()
{
    StatePool& pool = m_history.pool();
    pool.addBytes(-std::exchange(m_bytes, 0));
    m_delta.forEachStates([&](StateMap& states) { pool.release(states); });
    if (m_shown)
        pool.release(m_shown->states);
}

} // namespace Panorel::Kit::Detail
