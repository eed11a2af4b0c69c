// SPDX-License-Identifier: MIT
#include "History.h"

#include "../window/Actions.h"
#include "../window/Giver.h"
#include "../window/StoredViews.h"
#include "../window/WindowOwner.h"
#include "../window/Windows.h"

#include <panorel/Manager.h>

#include <QUndoCommand>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

class Step : public QUndoCommand
{
public:
    Step(History& history, const Snapshot& before, const Snapshot& after, const QString& text)
        : QUndoCommand(text)
        , m_history(history)
        , m_before(before)
        , m_after(after)
    {}

    void undo() override { m_history.apply(m_before); }
    void redo() override { m_history.apply(m_after); }

private:
    History& m_history;
    Snapshot m_before;
    Snapshot m_after;
};

StateMap activeStates(const Snapshot::Group& group)
{
    const auto active = std::find_if(group.views.cbegin(), group.views.cend(),
                                     [](const Snapshot::View& view) { return view.isActive; });
    return active == group.views.cend() ? StateMap() : active->states;
}

} // namespace

History::History(Manager& manager, WindowOwner& owner, StoredViews& stored, Giver& giver,
                 Windows& windows, const Actions& actions)
    : m_manager(manager)
    , m_owner(owner)
    , m_stored(stored)
    , m_giver(giver)
    , m_windows(windows)
    , m_stack(actions.history)
{}

History::~History()
{
    if (m_stack)
        m_stack->clear();
}

Snapshot History::snapshot()
{
    Snapshot result;
    {
        const WindowOwner::Silence silence(m_owner);
        result = Snapshot::fromXml(m_manager.toXml(/*markActive=*/true));
    }
    m_stored.read(result);
    if (Snapshot::Group* const active = result.find(m_manager.activeGroup()))
        active->current.states = m_windows.states();
    return result;
}

void History::change(const Snapshot& to, const QString& text)
{
    if (m_stack)
        m_stack->push(new Step(*this, snapshot(), to, text));
    else
        apply(to);
}

void History::apply(const Snapshot& to)
{
    const Snapshot before = snapshot();
    const Snapshot::Group* const old = before.find(m_manager.activeGroup());
    const Snapshot::Group* const active = to.find(m_manager.activeGroup());
    const StateMap states = active ? activeStates(*active) : StateMap();
    if (!states.isEmpty() && old && states != activeStates(*old))
        m_giver.give(states, Giver::ToolBars::Stored);
    const WindowOwner::Silence silence(m_owner);
    (void)m_manager.fromXml(to.toXml(), /*merge=*/false); // It is valid.
    m_stored.read(to);
}

} // namespace Panorel::Kit::Detail
