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
    add(take(change, windows));
}

LayoutUndo::Step LayoutUndo::take(const QString& change, Windows windows)
{
    return {change, m_manager.toXml(/*markActive=*/true), m_manager.activeGroup(), windows};
}

void LayoutUndo::add(const Step& step)
{
    if (m_steps.size() == maximumSteps)
        m_steps.removeFirst();
    m_steps.append(step);
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
    goBack(m_steps.takeLast());
    Q_EMIT lastChangeChanged();
}

void LayoutUndo::goBack(const Step& step)
{
    // A document does not tell the active group. Where a change was made is where it is seen.
    if (m_manager.activeGroup() != step.group)
        (void)m_manager.activateGroup(step.group);
    QByteArray document = step.before;
    if (step.windows == Windows::Stay)
        document = LayoutDocument::withViewsOf(m_manager.toXml(/*markActive=*/true), step.before);
    (void)m_manager.fromXml(document, /*merge=*/false); // Its own document, so it is valid.
}
