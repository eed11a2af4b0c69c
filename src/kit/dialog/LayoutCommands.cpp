// SPDX-License-Identifier: MIT
#include "LayoutCommands.h"

#include "LayoutEdits.h"
#include "NameList.h"

#include "../window/Session.h"

#include <panorel/Manager.h>

#include <QFileInfo>

namespace Panorel::Kit::Detail {

namespace {

QStringList namesOf(const LayoutIds& layouts)
{
    QStringList names;
    for (const LayoutId& layout : layouts)
        names.append(layout.name);
    return names;
}

} // namespace

LayoutCommands::LayoutCommands(Session& session, QObject* parent)
    : QObject(parent)
    , m_session(&session)
{}

LayoutCommands::~LayoutCommands() = default;

void LayoutCommands::activate(const LayoutId& layout)
{
    if (!m_session)
        return;
    Manager& manager = m_session->manager;
    if (layout.group != manager.activeGroup() && !manager.activateGroup(layout.group))
        return;
    (void)manager.activateView(layout.name); // One that is gone is not activated.
}

void LayoutCommands::rename(const LayoutId& layout, const QString& name)
{
    if (!m_session)
        return;
    const int slot = m_session->layoutSlots.slotOf(layout.group, layout.name);
    LayoutEdits edits(m_session->history.snapshot());
    edits.rename(layout, name);
    m_session->history.change(edits.result(), tr("Rename \"%1\" to \"%2\"").arg(layout.name, name));
    if (m_session)
        m_session->layoutSlots.follow(slot, layout.group, name);
}

void LayoutCommands::remove(const LayoutIds& layouts)
{
    if (!m_session || layouts.isEmpty())
        return;
    LayoutEdits edits(m_session->history.snapshot());
    edits.remove(layouts);
    m_session->history.change(edits.result(), layouts.size() == 1
                                                  ? tr("Delete \"%1\"").arg(layouts[0].name)
                                                  : tr("Delete Layouts"));
}

LayoutIds LayoutCommands::duplicate(const LayoutIds& layouts)
{
    if (!m_session)
        return {};
    LayoutEdits edits(m_session->history.snapshot());
    const LayoutIds copies = edits.duplicate(layouts);
    if (copies.isEmpty())
        return {};
    m_session->history.change(edits.result(), layouts.size() == 1
                                                  ? tr("Duplicate \"%1\"").arg(layouts[0].name)
                                                  : tr("Duplicate Layouts"));
    return copies;
}

LayoutIds LayoutCommands::move(const LayoutIds& layouts, const QString& group, int row)
{
    if (!m_session)
        return {};
    const Snapshot before = m_session->history.snapshot();
    QVector<int> slotsBefore; // Of those that are moved, which are all but those that are gone.
    for (const LayoutId& layout : layouts) {
        const Snapshot::Group* const source = before.find(layout.group);
        if (source && source->find(layout.name))
            slotsBefore.append(m_session->layoutSlots.slotOf(layout.group, layout.name));
    }
    LayoutEdits edits(before);
    const LayoutIds moved = edits.move(layouts, group, row);
    if (moved.isEmpty())
        return {};
    m_session->history.change(edits.result(), layouts.size() == 1
                                                  ? tr("Move \"%1\"").arg(layouts[0].name)
                                                  : tr("Move Layouts"));
    for (int i = 0; m_session && i < moved.size(); ++i)
        m_session->layoutSlots.follow(slotsBefore.value(i), moved[i].group, moved[i].name);
    return moved;
}

void LayoutCommands::import(const Snapshot& result, const LayoutIds& layouts,
                            const QString& fileName)
{
    if (!m_session)
        return;
    const QString file = QFileInfo(fileName).fileName();
    m_session->history.change(result, tr("Import \"%1\"").arg(file));
    Q_EMIT message(tr("Imported from \"%1\": %2").arg(file, nameList(namesOf(layouts))));
}

void LayoutCommands::exportTo(const QString& fileName, const LayoutIds& layouts)
{
    if (!m_session)
        return;
    LayoutEdits edits(m_session->history.snapshot());
    edits.keepOnly(layouts);
    const QString problem = Transfer::write(fileName, edits.result().toXml());
    const QString file = QFileInfo(fileName).fileName();
    Q_EMIT message(problem.isNull()
                       ? tr("Exported to \"%1\": %2").arg(file, nameList(namesOf(layouts)))
                       : problem);
}

} // namespace Panorel::Kit::Detail
