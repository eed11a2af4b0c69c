// SPDX-License-Identifier: MIT
#include "ImportSource.h"

#include "NameList.h"

#include <QSet>

namespace Panorel::Kit::Detail {

namespace {

QSet<QString> damagedViews(const Transfer::Content& content, const QString& group)
{
    QSet<QString> names;
    for (const Problem& problem : content.dropped) {
        if (problem.group == group && !problem.isInCurrentView)
            names.insert(problem.view);
    }
    return names;
}

} // namespace

ImportSource::ImportSource(const Transfer::Content& content, const QStringList& groups)
    : m_name(content.name)
    , m_problem(content.problem)
{
    const QStringList found = content.document.groupNames();
    for (const QString& group : groups) {
        if (found.contains(group))
            addGroup(content, group);
    }
    for (const QString& group : found) {
        if (!groups.contains(group))
            m_foreign += content.document.viewNames(group);
    }
    if (m_problem.isNull() && m_layouts.groups.isEmpty())
        m_problem = tr("Nothing in \"%1\" can be imported: %2").arg(m_name, leftOut());
}

void ImportSource::addGroup(const Transfer::Content& content, const QString& name)
{
    const QSet<QString> damaged = damagedViews(content, name);
    const QStringList views = content.document.viewNames(name);
    Snapshot::Group group;
    group.name = name;
    for (const QString& view : views) {
        const LayoutDocument::View read = content.document.view(name, view);
        if (damaged.contains(view) && read.states.isEmpty()) {
            m_damaged.append(view);
            continue;
        }
        if (damaged.contains(view))
            m_partlyDamaged.append(view);
        group.views.append({view, false, read.states, read.userData});
    }
    if (!group.views.isEmpty())
        m_layouts.groups.append(group);
}

QString ImportSource::leftOut() const
{
    QStringList sentences;
    if (!m_damaged.isEmpty())
        sentences += tr("Damaged, so left out: %1.").arg(nameList(m_damaged));
    if (!m_partlyDamaged.isEmpty())
        sentences += tr("Without their damaged parts: %1.").arg(nameList(m_partlyDamaged));
    if (!m_foreign.isEmpty())
        sentences += tr("Of groups that this program does not have, so left out: %1.")
                         .arg(nameList(m_foreign));
    return sentences.isEmpty() ? QString() : sentences.join(QLatin1Char(' '));
}

} // namespace Panorel::Kit::Detail
