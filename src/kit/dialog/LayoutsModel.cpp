// SPDX-License-Identifier: MIT
#include "LayoutsModel.h"

#include "LayoutEdits.h"

#include <QMimeData>

#include <algorithm>

namespace Panorel::Kit::Detail {

namespace {

// What is dragged is known here, so it needs no content.
QString mimeType()
{
    return QStringLiteral("application/x-panorel-layouts");
}

} // namespace

LayoutsModel::LayoutsModel(QObject* parent)
    : LayoutTree(parent)
{}

LayoutsModel::~LayoutsModel() = default;

bool LayoutsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!isLayout(index) || role != Qt::EditRole)
        return false;
    const LayoutId layout = idOf(index);
    const QString text = value.toString();
    const QString name = LayoutEdits::nameFor(layout, text);
    if (name == layout.name)
        return true;
    if (!LayoutEdits::refusal(snapshot(), layout, text).isNull()) {
        Q_EMIT refused(index, text);
        return false;
    }
    Q_EMIT renamed(layout, name);
    return true;
}

Qt::ItemFlags LayoutsModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = LayoutTree::flags(index);
    if (!index.isValid())
        return flags;
    const Qt::ItemFlags own = isLayout(index) ? Qt::ItemIsEditable | Qt::ItemIsDragEnabled
                                              : Qt::ItemFlags(Qt::NoItemFlags);
    return flags | Qt::ItemIsDropEnabled | own;
}

Qt::DropActions LayoutsModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList LayoutsModel::mimeTypes() const
{
    return {mimeType()};
}

QMimeData* LayoutsModel::mimeData(const QModelIndexList& indexes) const
{
    m_dragged.clear();
    for (const QModelIndex& index : indexes) {
        if (isLayout(index))
            m_dragged.append(index);
    }
    if (m_dragged.isEmpty())
        return nullptr;
    // Not as they were selected.
    std::sort(m_dragged.begin(), m_dragged.end());
    auto* data = new QMimeData;
    data->setData(mimeType(), QByteArray());
    return data;
}

bool LayoutsModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                                   int column, const QModelIndex& parent) const
{
    Q_UNUSED(row)
    Q_UNUSED(column)
    return action == Qt::MoveAction && data->hasFormat(mimeType()) && parent.isValid();
}

bool LayoutsModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const QModelIndex group = isLayout(parent) ? parent.parent() : parent;
    if (isLayout(parent))
        row = parent.row();
    else if (row < 0)
        row = rowCount(group);
    LayoutIds layouts;
    for (const QPersistentModelIndex& index : qAsConst(m_dragged)) {
        if (index.isValid())
            layouts.append(idOf(index));
    }
    m_dragged.clear();
    if (!layouts.isEmpty())
        Q_EMIT dropped(layouts, group.data().toString(), row);
    return true;
}

QString LayoutsModel::noteOf(const QModelIndex& index) const
{
    QStringList notes;
    if (viewAt(index).isActive)
        notes.append(tr("Active"));
    if (m_reminder)
        notes += m_reminder(idOf(index));
    return notes.join(QStringLiteral(" \u00b7 "));
}

void LayoutsModel::updateReminders()
{
    for (int number = 0; number < rowCount(); ++number) {
        const QModelIndex group = index(number, 0);
        if (rowCount(group) > 0)
            Q_EMIT dataChanged(index(0, 0, group), index(rowCount(group) - 1, 0, group));
    }
}

} // namespace Panorel::Kit::Detail
