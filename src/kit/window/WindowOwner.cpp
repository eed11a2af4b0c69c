// SPDX-License-Identifier: MIT
#include "WindowOwner.h"

#include <panorel/Manager.h>

#include <algorithm>

namespace Panorel::Kit::Detail {

WindowOwner::WindowOwner(Manager& manager)
    : QObject(&manager)
{
    manager.registerManagable(*this);
}

WindowOwner::~WindowOwner() = default;

void WindowOwner::addWindow(QMainWindow& window, const QString& id)
{
    if (has(window))
        return;
    m_windows.append({id.isEmpty() ? freeId(window.objectName()) : id, &window});
}

void WindowOwner::addOwner(IManagable& owner)
{
    auto* object = dynamic_cast<QObject*>(&owner);
    m_owners.append({&owner, object, object != nullptr});
}

QList<ManagedWindow> WindowOwner::windows() const
{
    QList<ManagedWindow> result;
    for (const Window& window : m_windows) {
        if (auto* const main = qobject_cast<QMainWindow*>(window.widget.data()))
            result.append({window.id, main});
    }
    // Copied, because an owner may add another one when it is asked.
    const QList<Owner> owners = m_owners;
    for (const Owner& owner : owners) {
        if (owner.object || !owner.isObject)
            result.append(owner.owner->managedWindows());
    }
    return result;
}

QList<ManagedWindow> WindowOwner::managedWindows()
{
    if (m_silences > 0)
        return {};
    return m_hook ? m_hook() : windows();
}

bool WindowOwner::has(const QMainWindow& window) const
{
    return std::any_of(m_windows.cbegin(), m_windows.cend(),
                       [&](const Window& known) { return known.widget == &window; });
}

bool WindowOwner::isTaken(const QString& id) const
{
    return std::any_of(m_windows.cbegin(), m_windows.cend(),
                       [&](const Window& known) { return known.widget && known.id == id; });
}

QString WindowOwner::freeId(const QString& wanted) const
{
    const QString first = wanted.isEmpty() ? QStringLiteral("window") : wanted;
    QString id = first;
    for (int number = 2; isTaken(id); ++number)
        id = first + QStringLiteral("-%1").arg(number);
    return id;
}

WindowOwner::Silence::Silence(WindowOwner& owner)
    : m_owner(owner)
{
    ++m_owner.m_silences;
}

WindowOwner::Silence::~Silence()
{
    --m_owner.m_silences;
}

} // namespace Panorel::Kit::Detail
