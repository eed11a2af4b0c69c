// SPDX-License-Identifier: MIT
#include "Windows.h"

#include "Giver.h"
#include "WindowOwner.h"
#include "WindowWatch.h"

#include <algorithm>

namespace Panorel::Kit::Detail {

Windows::Windows(WindowOwner& owner, Giver& giver)
    : m_owner(owner)
    , m_giver(giver)
{
    connect(&m_giver, &Giver::given, this, &Windows::onGiven);
}

Windows::~Windows() = default;

void Windows::update()
{
    const QList<ManagedWindow> windows = m_owner.windows();
    for (const ManagedWindow& managed : windows) {
        if (managed.window && !managed.descriptorId.isEmpty() && !watchOf(managed.window))
            add(managed.descriptorId, *managed.window);
    }
}

void Windows::begin(const StateMap& states, const QMap<QString, QByteArray>& geometries)
{
    m_states = states;
    m_geometries = geometries;
    for (const auto& watch : m_watches) {
        giveGeometry(*watch);
        watch->setState(m_states.value(watch->id()));
    }
}

StateMap Windows::states()
{
    update();
    collect();
    return m_states;
}

void Windows::giveGeometry(WindowWatch& watch)
{
    if (m_keepsGeometry)
        watch.setGeometry(m_geometries.value(watch.id()));
}

QMap<QString, QByteArray> Windows::geometries()
{
    update();
    collect();
    return m_geometries;
}

void Windows::collect()
{
    for (const auto& watch : m_watches) {
        const QByteArray state = watch->state();
        if (!state.isEmpty())
            m_states.insert(watch->id(), state);
        const QByteArray geometry = m_keepsGeometry ? watch->geometry() : QByteArray();
        if (!geometry.isEmpty())
            m_geometries.insert(watch->id(), geometry);
    }
}

void Windows::add(const QString& id, QMainWindow& window)
{
    collect(); // What a window of this id has left.
    m_watches.erase(std::remove_if(m_watches.begin(), m_watches.end(),
                                   [](const auto& watch) { return !watch->window(); }),
                    m_watches.end());
    m_watches.push_back(std::make_unique<WindowWatch>(id, window, m_giver));
    WindowWatch* const watch = m_watches.back().get();
    connect(watch, &WindowWatch::touched, this, &Windows::touched);
    connect(watch, &WindowWatch::closing, this, &Windows::closing);
    giveGeometry(*watch);
    watch->setState(m_states.value(id));
    Q_EMIT added(&window);
}

void Windows::onGiven(QMainWindow* window, const QByteArray& state)
{
    if (WindowWatch* const watch = watchOf(window))
        watch->noteGiven(state);
}

WindowWatch* Windows::watchOf(const QMainWindow* window) const
{
    for (const auto& watch : m_watches) {
        if (watch->window() == window)
            return watch.get();
    }
    return nullptr;
}

} // namespace Panorel::Kit::Detail
