// SPDX-License-Identifier: MIT
#include "LayoutUndo.h"

#include "LayoutDocument.h"

#include <panorel/Manager.h>

namespace {

constexpr int maximumSteps = 50;

} // namespace

LayoutUndo::LayoutUndo(Panorel::Manager& manager, QObject* parent)
    : QObject(parent)
    , m_manager(manager)
{}

void LayoutUndo::remember(const QString& change, Windows windows)
{
    if (m_steps.size() == maximumSteps)
        m_steps.removeFirst();
    m_steps.append(
        {change, m_manager.toXml(/*markActive=*/true), m_manager.activeGroup(), windows});
    Q_EMIT lastChangeChanged();
}

void LayoutUndo::forgetLast()
{
    if (!m_steps.isEmpty())
        m_steps.removeLast();
    Q_EMIT lastChangeChanged();
}

bool LayoutUndo::canUndo() const
{
    return !m_steps.isEmpty();
}

QString LayoutUndo::lastChange() const
{
    return m_steps.isEmpty() ? QString() : m_steps.last().change;
}

void LayoutUndo::undo()
{
    if (m_steps.isEmpty())
        return;
    const Step step = m_steps.takeLast();
    // A document does not tell the active group. Where a change was made is where it is seen.
    if (m_manager.activeGroup() != step.group)
        (void)m_manager.activateGroup(step.group);
    QByteArray document = step.before;
    if (step.windows == Windows::Stay)
        document = LayoutDocument::withViewsOf(m_manager.toXml(/*markActive=*/true), step.before);
    (void)m_manager.fromXml(document, /*merge=*/false); // Its own document, so it is valid.
    Q_EMIT lastChangeChanged();
}
