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
    if (++m_asks == 1)
        m_askedFirst = m_asked;
    forgetSoon();
    if (m_hasRead)
        noteBefore();
    else if (m_readings == 0)
        noteCreation();
    return windows;
}

bool Activity::isSwitch()
{
    if (m_manager.activeGroup() != m_group)
        return true;
    const QString view = m_manager.activeView();
    const bool mayBeReading = m_readings > 0 || m_hasRead || m_hasRemoved;
    if (view == m_view || view.isNull() || mayBeReading)
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
    m_hasCreated = false;
    m_asks = 0;
    const StateMap states = isGroup ? m_stored.current(m_group) : m_stored.view(m_group, m_view);
    m_operation = Operation();
    m_operation.hasGiven = true;
    m_operation.hasGivenToolBars = !m_merges;
    m_operation.before = m_giver.live();
    Q_EMIT switching();
    m_giver.give(states, m_merges ? m_operation.before : StateMap());
}

void Activity::noteActive()
{
    m_group = m_manager.activeGroup();
    m_view = m_manager.activeView();
}

// A view is created before its states are captured, and activated afterwards, unlike that of a
// document.
void Activity::noteCreation()
{
    const QStringList views = m_manager.views();
    if (views.size() != m_views.size() + 1 || views.mid(0, m_views.size()) != m_views ||
        views.last() == m_view)
        return;
    m_created = views.last();
    m_createdStates = m_asked;
    m_hasCreated = false;
}

// The Manager is about to restore what it has read.
void Activity::noteBefore()
{
    if (m_operation.hasGiven)
        return;
    m_operation.hasGiven = true;
    m_operation.hasGivenToolBars = true;
    m_operation.before = m_asked;
    m_giver.prepareForRestoring();
}

// Asking for the document, say, is followed by no signal.
void Activity::forgetSoon()
{
    if (std::exchange(m_forgetsSoon, true))
        return;
    QMetaObject::invokeMethod(this, &Activity::forget, Qt::QueuedConnection);
}

void Activity::forget()
{
    m_forgetsSoon = false;
    // Unless a receiver of its signals has entered the event loop.
    if (m_manager.activeGroup() != m_group || m_manager.activeView() != m_view)
        return;
    m_asks = 0;
    m_created = QString();
    m_hasCreated = m_hasRemoved = false;
}

void Activity::onGroupModified()
{
    if (m_takeovers == 0 && !std::exchange(m_isAnnouncing, false)) {
        noteActive();
        noteViews();
    }
    Q_EMIT changed();
}

// Views that were saved or deleted one by one are known; all others come from a document.
void Activity::noteViews()
{
    const QStringList before = std::exchange(m_views, m_manager.views());
    const bool mayBeClearing = std::exchange(m_mayBeClearing, false);
    const bool isKnown = m_readings == 0 && (noteRemoval(mayBeClearing, before) ||
                                             noteCreatedView(before) || noteDeletedView(before));
    if (isKnown)
        return;
    m_operation.isDocument = true;
    m_operation.continuesLast = std::exchange(m_hasRemoved, false);
    m_hasRead = true;
    m_asks = 0;
}

// By clear(), which tells it before and after.
bool Activity::noteRemoval(bool mayBeClearing, const QStringList& before)
{
    if (m_isClearing && m_views.isEmpty()) {
        m_isClearing = false;
        m_stored.removeViews();
        m_operation = Operation();
        finish();
        // Reading a document in place of all views begins with it.
        m_hasRemoved = true;
        forgetSoon();
        return true;
    }
    m_isClearing = mayBeClearing && m_views == before;
    return m_isClearing;
}

bool Activity::noteCreatedView(const QStringList& before)
{
    if (m_created.isNull() || m_hasCreated || m_views.size() != before.size() + 1 ||
        m_views.last() != m_created)
        return false;
    m_stored.setView(m_group, m_created, m_createdStates);
    m_asks = 0;
    m_hasRemoved = false;
    m_operation = Operation();
    // Saving under a new name activates it next.
    if (m_view == m_created) {
        m_created = QString();
        return true;
    }
    finish();
    // A document that adds one view to one group and has no layout for another looks the same.
    m_hasCreated = true;
    return true;
}

bool Activity::noteDeletedView(const QStringList& before)
{
    if (m_views.size() != before.size() - 1)
        return false;
    for (const QString& view : before) {
        if (!m_views.contains(view))
            m_stored.removeView(m_group, view);
    }
    m_hasCreated = m_hasRemoved = false;
    m_operation = Operation();
    finish();
    return true;
}

void Activity::onGroupActivated()
{
    if (m_takeovers > 0 || std::exchange(m_isAnnouncing, false))
        return;
    noteActive();
    m_views = m_manager.views();
    m_hasReactivated = !m_hasSwitched;
}

void Activity::onViewActivated(const QString& name)
{
    const bool isOwn = m_takeovers > 0 || std::exchange(m_isAnnouncing, false);
    if (!isOwn && m_readings == 0) {
        noteActive();
        // Deleting the active view and clear() begin with an empty name. Within clear() there is
        // one without a name, before the views are gone.
        m_mayBeClearing = name.isEmpty() && !name.isNull();
        if (!m_mayBeClearing && !m_isClearing)
            noteActivation();
        m_asks = 0;
        m_asksAgain = false;
    }
    Q_EMIT changed();
}

void Activity::noteActivation()
{
    const bool hasSwitched = std::exchange(m_hasSwitched, false);
    const bool hasReactivated = std::exchange(m_hasReactivated, false);
    if (std::exchange(m_hasRead, false))
        noteDocument();
    else if (hasReactivated && m_asks > 0 && m_asked != m_giver.live())
        m_giver.give(m_asked, StateMap()); // It was to give what they showed.
    else if (hasReactivated)
        m_asks = 0;
    else if (!hasSwitched && m_asks > 0)
        noteSameView();
    m_stored.setActive(m_group, m_view);
    m_created = QString();
    m_hasCreated = m_hasRemoved = false;
    finish();
}

// The Manager has restored it by itself. With merging it gives the tool bars first, with all that
// the windows showed when the document was made, which is all of it but for a floating tab group,
// and its merge drops that.
void Activity::noteDocument()
{
    const StateMap live = m_giver.live();
    if (m_merges && m_asks > 1 && m_asked != live)
        m_giver.give(m_giver.withFloatingTabs(live, m_asked), m_asked);
    m_stored.forgetViews();
    m_stored.forgetCurrents();
    m_stored.readCurrents();
}

// It was either saved or given again, and the document tells which.
void Activity::noteSameView()
{
    m_stored.forgetViews();
    const StateMap live = m_giver.live();
    m_operation = Operation();
    if (m_hasCreated && m_stored.view(m_group, m_created) != m_createdStates) {
        m_operation.isDocument = true;
        m_operation.continuesLast = true;
        m_operation.hasGiven = true;
        m_operation.hasGivenToolBars = true;
        m_operation.before = m_askedFirst;
        noteDocument();
        return;
    }
    const StateMap stored = m_stored.view(m_group, m_view);
    if (m_view.isNull() || stored == m_asked || m_asked == live)
        return;
    m_operation.hasGiven = true;
    m_operation.hasGivenToolBars = !m_merges;
    m_operation.before = m_asked;
    // The Manager has restored it by itself. Its tool bars were right before.
    m_giver.give(stored, m_merges ? m_asked : StateMap());
}

void Activity::finish()
{
    const Operation operation = std::exchange(m_operation, Operation());
    Q_EMIT done(operation);
}

// The Manager would restore it by itself, as it is stored.
void Activity::giveActiveView()
{
    if (m_view.isNull())
        return;
    Operation operation;
    operation.hasGiven = true;
    operation.hasGivenToolBars = !m_merges;
    operation.before = m_giver.live();
    Q_EMIT switching();
    m_giver.give(m_stored.view(m_group, m_view), m_merges ? operation.before : StateMap());
    announce(/*views=*/false, /*group=*/false);
    Q_EMIT done(operation);
}

void Activity::announce(bool views, bool group)
{
    resynchronize();
    if (views) {
        m_isAnnouncing = true;
        Q_EMIT m_manager.groupModified();
    }
    if (group) {
        m_isAnnouncing = true;
        Q_EMIT m_manager.groupActivated(m_manager.activeGroup());
    }
    m_isAnnouncing = true;
    Q_EMIT m_manager.viewActivated(m_manager.activeView());
    m_isAnnouncing = false;
}

void Activity::resynchronize()
{
    noteActive();
    m_views = m_manager.views();
    m_stored.setActive(m_group, m_view);
    m_created = QString();
    m_hasCreated = m_hasRemoved = false;
    m_asks = 0;
    m_asksAgain = m_hasSwitched = m_hasReactivated = m_hasRead = false;
    m_mayBeClearing = m_isClearing = false;
    m_operation = Operation();
}

Activity::Takeover::Takeover(Activity& activity)
    : m_activity(activity)
{
    ++m_activity.m_takeovers;
}

Activity::Takeover::~Takeover()
{
    if (--m_activity.m_takeovers > 0)
        return;
    m_activity.resynchronize();
    Q_EMIT m_activity.takenOver();
}

Activity::Reading::Reading(Activity& activity)
    : m_activity(activity)
{
    ++m_activity.m_readings;
}

Activity::Reading::~Reading()
{
    if (--m_activity.m_readings > 0 || !m_activity.m_hasRead)
        return;
    m_activity.noteActive();
    m_activity.noteActivation();
    m_activity.resynchronize();
}

} // namespace Panorel::Kit::Detail
