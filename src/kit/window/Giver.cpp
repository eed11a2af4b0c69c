// SPDX-License-Identifier: MIT
#include "Giver.h"

#include "DockFactory.h"
#include "Names.h"
#include "Parts.h"
#include "WindowOwner.h"

#include <panorel/kit/Difference.h>

#include <QDockWidget>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

// Qt docks the widgets of a floating tab group in the window when it restores that group again, so
// they are docked before.
void dockFloatingTabs(QMainWindow& window)
{
    const QList<QWidget*> groups = Parts::floatingTabGroups(window);
    for (const QWidget* group : groups) {
        const auto tabs = group->findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QDockWidget* tab : tabs)
            window.addDockWidget(Qt::LeftDockWidgetArea, tab);
    }
}

// Qt stores where such a window's content is and moves its frame there, so each time it would be a
// frame's width further on.
void moveFloatingTabs(const QMainWindow& window)
{
    const QList<QWidget*> groups = Parts::floatingTabGroups(window);
    for (QWidget* group : groups)
        group->setGeometry(QRect(group->pos(), group->size()));
}

bool isInFloatingTabs(const WindowState::DockWidget& dock)
{
    return dock.area == Qt::NoDockWidgetArea && !dock.isFloating;
}

bool hasLostFloatingTabsOnly(const WindowState& before, const WindowState& after)
{
    if (before.floatingTabs().isEmpty() || !after.floatingTabs().isEmpty())
        return false;
    QStringList floating;
    const auto docks = before.dockWidgets();
    for (const WindowState::DockWidget& dock : docks) {
        if (isInFloatingTabs(dock))
            floating.append(dock.name);
    }
    const QVector<Difference> found = differences(before, after);
    return std::all_of(found.cbegin(), found.cend(), [&](const Difference& difference) {
        // The merge stops there and loses tool bars too. The others make room for what was
        // floating.
        return difference.part == Difference::Part::ToolBar || floating.contains(difference.name) ||
               difference.aspect == Difference::Aspect::Size ||
               difference.aspect == Difference::Aspect::Order;
    });
}

} // namespace

Giver::Giver(WindowOwner& owner, Names& names, DockFactory& docks)
    : m_owner(owner)
    , m_names(names)
    , m_docks(docks)
{}

Giver::~Giver() = default;

StateMap Giver::live()
{
    return live(m_owner.windows());
}

StateMap Giver::live(const QList<ManagedWindow>& windows)
{
    StateMap states;
    for (const ManagedWindow& managed : windows) {
        if (managed.descriptorId.isEmpty() || !managed.window)
            continue;
        states.insert(managed.descriptorId, stateOf(*managed.window));
    }
    return states;
}

QByteArray Giver::stateOf(QMainWindow& window)
{
    const Names::Loan names(m_names, window);
    return window.saveState(0);
}

void Giver::nameParts(const QList<ManagedWindow>& windows)
{
    for (const ManagedWindow& managed : windows) {
        if (managed.window)
            m_names.give(*managed.window);
    }
}

void Giver::give(const StateMap& stored, const StateMap& toolBars)
{
    struct Target
    {
        // Giving one window its state may make the application destroy another.
        QPointer<QMainWindow> window;
        QString id;
    };
    QList<Target> targets;
    const QList<ManagedWindow> windows = m_owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (managed.window && stored.contains(managed.descriptorId))
            targets.append({managed.window, managed.descriptorId});
    }
    for (const Target& target : qAsConst(targets)) {
        if (!target.window)
            continue;
        const CheckedStates::Entry checked = m_checked.read(stored.value(target.id));
        if (!checked.isSound) {
            Q_EMIT refused(target.id);
            continue;
        }
        const QByteArray bars = toolBars.value(target.id);
        const QByteArray merged =
            bars.isEmpty() ? QByteArray() : WindowState::merged(checked.state, WindowState(bars));
        giveTo(*target.window, checked.state, merged.isEmpty() ? checked.tidied : merged);
    }
}

void Giver::prepareForRestoring()
{
    const QList<ManagedWindow> windows = m_owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (managed.window)
            dockFloatingTabs(*managed.window);
    }
}

StateMap Giver::withFloatingTabs(const StateMap& live, const StateMap& before)
{
    StateMap result = live;
    for (auto state = result.begin(); state != result.end(); ++state) {
        const QByteArray known = before.value(state.key());
        if (!known.isEmpty() && hasLostFloatingTabsOnly(WindowState(known), WindowState(*state)))
            *state = known;
    }
    return result;
}

void Giver::giveTo(QMainWindow& window, const QByteArray& state)
{
    const CheckedStates::Entry checked = m_checked.read(state);
    if (checked.isSound)
        giveTo(window, checked.state, checked.tidied);
}

void Giver::createMissingDocks()
{
    const QList<ManagedWindow> windows = m_owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (managed.window)
            (void)m_docks.createMissing(*managed.window, WindowState(stateOf(*managed.window)));
    }
}

void Giver::giveTo(QMainWindow& window, const WindowState& stored, const QByteArray& state)
{
    const QPointer<QMainWindow> watched(&window);
    m_docks.createMissing(window, stored);
    if (!watched)
        return;
    const Names::Loan names(m_names, window);
    dockFloatingTabs(window);
    (void)window.restoreState(state, 0); // It is sound. What a window refuses, it stays without.
    if (!watched)
        return;
    moveFloatingTabs(window);
    Q_EMIT given(&window, state);
}

} // namespace Panorel::Kit::Detail
