// SPDX-License-Identifier: MIT
#include "Activity.h"

#include "Giver.h"
#include "StoredViews.h"
#include "WindowOwner.h"

#include <panorel/Manager.h>

#include <utility>

namespace Panorel::Kit::Detail {

namespace {

// A Manager does not tell whether it merges, but only one that does asks for windows here.
bool asksForWindows(const Manager& manager, WindowOwner& owner)
{
    bool asked = false;
    owner.setHook([&asked] {
        asked = true;
        return QList<ManagedWindow>();
    });
    (void)manager.viewsValid();
    return asked;
}

} // namespace

Activity::Activity(Manager& manager, WindowOwner& owner, StoredViews& stored, Giver& giver)
    : m_manager(manager)
    , m_owner(owner)
    , m_stored(stored)
    , m_giver(giver)
    , m_merges(asksForWindows(manager, owner))
{
    noteActive();
    m_views = m_manager.views();
    m_owner.setHook([this] { return asked(); });
    connect(&m_manager, &Manager::groupModified, this, &Activity::onGroupModified);
    connect(&m_manager, &Manager::groupActivated, this, &Activity::onGroupActivated);
    connect(&m_manager, &Manager::viewActivated, this, &Activity::onViewActivated);
}

Activity::~Activity()
{
    m_owner.setHook(nullptr);
}

QList<ManagedWindow> Activity::asked()
{
    if (isSwitch()) {
        switchWindows();
        return {};
    }
    if (std::exchange(m_asksAgain, false))
        return {};
    noteActive();
    m_stored.readCurrents();
    Q_EMIT capturing();
    const QList<ManagedWindow> windows = m_owner.windows();
    m_giver.nameParts(windows);
    m_asked = m_giver.live(windows);
    ++m_asks;
    return windows;
}

bool Activity::isSwitch() const
{
    if (m_manager.activeGroup() != m_group)
        return true;
    const QString view = m_manager.activeView();
    if (view == m_view || view.isNull())
        return false;
    // What was asked for before may have been saving this view, and who asks now is a receiver of
    // the signal. Then the windows show it already.
    if (m_asks > 0)
        m_stored.forgetViews();
    return m_asks == 0 || m_stored.view(m_group, view) != m_giver.live();
}

void Activity::switchWindows()
{
    const bool isGroup = m_manager.activeGroup() != m_group;
    // The Manager has asked once before, to keep the layout of the group that it leaves.
    if (isGroup)
        m_stored.setCurrent(m_group, m_asked);
    noteActive();
    m_asksAgain = m_merges;
    m_hasSwitched = true;
    m_asks = 0;
    const StateMap states = isGroup ? m_stored.current(m_group) : m_stored.view(m_group, m_view);
    Q_EMIT switching();
    m_giver.give(states, m_merges ? Giver::ToolBars::Kept : Giver::ToolBars::Stored);
}

void Activity::noteActive()
{
    m_group = m_manager.activeGroup();
    m_view = m_manager.activeView();
}

void Activity::onGroupModified()
{
    noteActive();
    noteViews();
    Q_EMIT changed();
}

// Views that were saved or deleted one by one are known; all others come from a document.
void Activity::noteViews()
{
    const QStringList before = std::exchange(m_views, m_manager.views());
    if (m_views == before) {
        m_wasReplaced = true;
        return;
    }
    if (m_asks > 0 && m_views.size() == before.size() + 1 &&
        m_views.mid(0, before.size()) == before) {
        m_stored.setView(m_group, m_views.last(), m_asked);
        m_asks = 0;
        return;
    }
    const bool wasDeleted = m_views.size() == before.size() - 1;
    m_wasReplaced = m_wasReplaced || !wasDeleted;
    if (!wasDeleted)
        return;
    for (const QString& view : before) {
        if (!m_views.contains(view))
            m_stored.removeView(m_group, view);
    }
}

void Activity::onGroupActivated()
{
    noteActive();
    m_views = m_manager.views();
}

void Activity::onViewActivated(const QString& name)
{
    const bool hasSwitched = std::exchange(m_hasSwitched, false);
    noteActive();
    if (!hasSwitched && m_merges && m_asks > 1 && m_asked != m_giver.live())
        repair(name);
    if (!hasSwitched && m_asks > 0)
        m_stored.forgetViews();
    if (std::exchange(m_wasReplaced, false)) {
        m_stored.forgetViews();
        m_stored.forgetCurrents();
    }
    m_asks = 0;
    m_asksAgain = false;
    Q_EMIT changed();
}

// The Manager has merged by itself. Its tool bars were right before.
void Activity::repair(const QString& view)
{
    const StateMap stored =
        m_wasReplaced || view.isEmpty() ? m_giver.live() : m_stored.view(m_group, view);
    m_giver.give(stored, m_asked);
}

} // namespace Panorel::Kit::Detail
